#pragma once

#include <memory>
#include <utility>

#include <QWidget>

#include "row.h"

namespace Orvo::Benchmarks {

/// What this process has used of the processors so far, in nanoseconds: with all its threads, but
/// without what others do meanwhile.
double cpuTime();

/// What is in use of the heap, in bytes.
double heapInUse();

/// Brings everything that is to be repainted in a window to its picture now.
void paint(QWidget& window);

/// Lets events be handled for that long, and tells what share of a core that took, in percent.
double shareOfCore(int milliseconds);

/// Makes the compiler believe that a value is used, and that memory has changed.
template <class T>
void keep(const T& value) {
    asm volatile("" : : "m"(value) : "memory");
}

/// The cost of one time, measured over as many as make a round worth measuring.
template <class Body>
Round timed(Body body) {
    constexpr double kRound = 2e6;  // nanoseconds
    const auto measure = [body = std::make_shared<Body>(std::move(body))](long count) {
        const double start = cpuTime();
        for (long i = 0; i < count; ++i) (*body)();
        return cpuTime() - start;
    };
    measure(1);
    long count = 1;
    while (measure(count) < kRound) count *= 2;
    return [measure, count] { return measure(count) / double(count); };
}

/// Makes a subject once, and measures a call on it; the calls are counted from 1.
template <class Make, class Call>
Contender repeated(Make make, Call call) {
    return [make, call] {
        return timed([subject = make(), call, turn = 0]() mutable { call(*subject, ++turn); });
    };
}

/// The same for something that needs nothing beforehand.
template <class Call>
Contender repeated(Call call) {
    return [call] { return timed(call); };
}

/// A rival that is a figure.
inline Rival limit(std::string name, double figure, double aim = Limits::kNone) {
    const Contender fixed = [figure] { return [figure] { return figure; }; };
    return {Role::limit, std::move(name), fixed, {.must = 1, .aim = aim}};
}

}  // namespace Orvo::Benchmarks
