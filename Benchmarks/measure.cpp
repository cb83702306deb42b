#include "measure.h"

#include <chrono>
#include <ctime>

#include <malloc.h>

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

namespace Orvo::Benchmarks {

double cpuTime() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e9 + double(time.tv_nsec);
}

double heapInUse() {
    const auto heap = mallinfo2();
    return double(heap.uordblks) + double(heap.hblkhd);
}

void paint(QWidget& window) {
    QApplication::processEvents();
    QEvent request(QEvent::UpdateRequest);
    QApplication::sendEvent(&window, &request);
}

double shareOfCore(int milliseconds) {
    using Nanoseconds = std::chrono::duration<double, std::nano>;
    const auto start = std::chrono::steady_clock::now();
    const double before = cpuTime();
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    const Nanoseconds elapsed = std::chrono::steady_clock::now() - start;
    return 100 * (cpuTime() - before) / elapsed.count();
}

}  // namespace Orvo::Benchmarks
