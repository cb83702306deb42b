#include "peers_traces.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <random>

#include <QImage>
#include <QPainter>
#include <QTimer>

#include "Orvo/widgets/widgets.h"
#include "measure.h"

namespace Orvo::Benchmarks {
namespace {

constexpr int kFullScale = 255;

Integer sineAt(int index, double phase) {
    constexpr double kSamplesPerCycle = 32;
    const double angle = 2 * std::numbers::pi * (index / kSamplesPerCycle + phase);
    return Integer(std::lround(kFullScale / 2.0 * (1 + 0.9 * std::sin(angle))));
}

IntegerArray samplesOf(Wave wave, int count, int phase) {
    std::minstd_rand random(unsigned(phase) + 1);
    std::uniform_int_distribution<int> any(0, kFullScale);
    std::vector<Integer> samples(std::size_t(count), 0);
    for (int i = 0; i < count; ++i) {
        samples[std::size_t(i)] =
            wave == Wave::sine ? sineAt(i, 0.1 * phase) : Integer(any(random));
    }
    return {1, std::move(samples)};
}

// A tracer with what it traces.
class Traced {
public:
    Traced(Wave wave, int count, const MakeTracer& make)
        : samples_{samplesOf(wave, count, 0), samplesOf(wave, count, 1)}, tracer_(make()) {}

    void trace(int turn) { tracer_->trace(samples_[std::size_t(turn % 2)]); }

private:
    const std::array<IntegerArray, 2> samples_;
    const std::unique_ptr<Tracer> tracer_;
};

class LineDrawer final : public Tracer {
public:
    explicit LineDrawer(QSize size) : image_(size, QImage::Format_RGB32) {
        for (int value = 0; value <= kFullScale; ++value) {
            heights_[std::size_t(value)] = value * (size.height() - 1) / kFullScale;
        }
    }

    void trace(const IntegerArray& samples) override {
        image_.fill(Qt::black);
        QPainter painter(&image_);
        painter.setPen(QPen(Qt::green, 0));
        const auto values = samples.elements();
        const int width = image_.width();
        const int count = int(values.size());
        for (int i = 1; i < count; ++i) {
            painter.drawLine((i - 1) * width / count, heightOf(values[std::size_t(i) - 1]),
                             i * width / count, heightOf(values[std::size_t(i)]));
        }
    }

private:
    [[nodiscard]] int heightOf(Integer value) const { return heights_[std::size_t(value)]; }

    QImage image_;
    std::array<int, kFullScale + 1> heights_{};
};

}  // namespace

// What a call of one segment goes through; known elsewhere, so that it stays a virtual call.
class Pen {
public:
    virtual ~Pen() = default;
    virtual void line(Widgets::Point from, Widgets::Point to, Colour colour) = 0;
};

namespace {

class Recorder final : public Pen {
public:
    void line(Widgets::Point from, Widgets::Point to, Colour colour) override {
        lines_.push_back({from, to, colour});
    }
    void clear() { lines_.clear(); }

private:
    struct Line {
        Widgets::Point from;
        Widgets::Point to;
        Colour colour;
    };
    std::vector<Line> lines_;
};

class SegmentRecorder final : public Tracer {
public:
    void trace(const IntegerArray& samples) override {
        recorder_.clear();
        Pen* pen = &recorder_;
        asm volatile("" : "+r"(pen));  // from here on it might be any pen
        const auto values = samples.elements();
        for (std::size_t i = 1; i < values.size(); ++i) {
            pen->line({float(i - 1), float(values[i - 1])}, {float(i), float(values[i])}, {});
        }
    }

private:
    Recorder recorder_;
};

class Copier : public Tracer {
public:
    void trace(const IntegerArray& samples) override {
        const auto values = samples.elements();
        copy_.assign(values.begin(), values.end());
        keep(*copy_.data());
    }

private:
    std::vector<Integer> copy_;
};

class ScanningCopier final : public Copier {
public:
    void trace(const IntegerArray& samples) override {
        Copier::trace(samples);
        Integer least = kFullScale;
        Integer greatest = 0;
        for (const Integer value : samples.elements()) {
            least = std::min(least, value);
            greatest = std::max(greatest, value);
        }
        keep(least);
        keep(greatest);
    }
};

}  // namespace

Contender tracing(Wave wave, int count, const MakeTracer& make) {
    return repeated([=] { return std::make_shared<Traced>(wave, count, make); },
                    [](Traced& traced, int turn) { traced.trace(turn); });
}

Contender tracingAllTheTime(Wave wave, int count, const MakeTracer& make) {
    return [=]() -> Round {
        const auto traced = std::make_shared<Traced>(wave, count, make);
        const auto timer = std::make_shared<QTimer>();
        timer->setTimerType(Qt::PreciseTimer);
        QObject::connect(timer.get(), &QTimer::timeout,
                         [traced, turn = 0]() mutable { traced->trace(++turn); });
        return [timer] {
            constexpr int kFrame = 16;
            constexpr int kRound = 500;
            timer->start(kFrame);
            const double share = shareOfCore(kRound);
            timer->stop();
            return share;
        };
    };
}

std::unique_ptr<Tracer> makeLineDrawer(QSize size) { return std::make_unique<LineDrawer>(size); }

std::unique_ptr<Tracer> makeSegmentRecorder() { return std::make_unique<SegmentRecorder>(); }
std::unique_ptr<Tracer> makeCopier() { return std::make_unique<Copier>(); }
std::unique_ptr<Tracer> makeScanningCopier() { return std::make_unique<ScanningCopier>(); }

}  // namespace Orvo::Benchmarks
