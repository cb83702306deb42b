#include "Orvo/window/ticker.h"

namespace Orvo::Window {

Ticker::Ticker(Runtime::Store& store) : store_(store) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { catchUp(); });
    store_.runOn([this] { return elapsed(); });
    arm();
}

Ticker::~Ticker() { store_.runOn({}); }

Runtime::Store::Milliseconds Ticker::elapsed() const {
    return std::chrono::duration_cast<Runtime::Store::Milliseconds>(Clock::now() - caughtUp_);
}

void Ticker::arm() {
    const auto left = store_.untilNextTick();
    if (!left) return timer_.stop();
    timer_.start(*left);
}

// Each timer that ticks is a change of that timer, which arms for the next before its handler runs:
// one that opens a dialog doesn't stop the clock. By its end there may be no Ticker any more.
void Ticker::catchUp() {
    const auto time = elapsed();
    caughtUp_ += time;
    arm();
    store_.catchUp(time);
}

}  // namespace Orvo::Window
