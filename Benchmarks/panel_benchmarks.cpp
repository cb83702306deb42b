#include <vector>

#include <benchmark/benchmark.h>

#include "Orvo/core/marvane_assistant.h"
#include "Orvo/layout/roles.h"
#include "Orvo/store/store.h"

// Times mean little on a machine that others use too. Compare the rows of one run: a trace with the
// bare loop over its samples, a log line at the end of a long log with one at its beginning, a
// late-bound call or one that is listened to with the direct one.
namespace Orvo {
namespace {

struct Bench {
    std::shared_ptr<Runtime::Store> store = Runtime::Store::create();
    MarvaneAssistant panel{store};
};

std::vector<Integer> wave(std::int64_t samples) {
    std::vector<Integer> wave(static_cast<std::size_t>(samples));
    for (std::size_t i = 0; i < wave.size(); ++i) wave[i] = static_cast<Integer>(i * 37 % 256);
    return wave;
}

void perSample(benchmark::State& state) {
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void sumOfSamples(benchmark::State& state) {
    const IntegerArray samples(1, wave(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        double sum = 0;
        for (const Integer sample : samples.elements()) sum += sample * 1.07 / 255.0;
        benchmark::DoNotOptimize(sum);
    }
    perSample(state);
}

void trace(benchmark::State& state) {
    Bench bench;
    const IntegerArray samples(1, wave(state.range(0)));
    for ([[maybe_unused]] auto _ : state) bench.panel.DisegnaFormaDOnda(1, samples);
    perSample(state);
}

// What the same trace costs when every segment is an operation of its own.
void traceInSegments(benchmark::State& state) {
    Bench bench;
    auto& surface = (*bench.store)[Layout::channel(1).scope];
    const auto count = state.range(0);
    for ([[maybe_unused]] auto _ : state) {
        bench.panel.DisegnaAssi(1);
        for (std::int64_t i = 1; i < count; ++i) {
            const auto x = 165 * surface.scaleWidth() / static_cast<float>(i);
            surface.line({x, 0}, {x, surface.scaleHeight()}, Layout::kGreen);
        }
    }
    perSample(state);
}

void logLine(benchmark::State& state) {
    Bench bench;
    const String line = u"12:00:00  Power bus +: 118 V";
    for (std::int64_t i = 0; i < state.range(0); ++i) bench.panel.AggiugiTesto(line);
    for ([[maybe_unused]] auto _ : state) bench.panel.AggiugiTesto(line);
}

void callDirectly(Bench& bench, benchmark::State& state) {
    bool isHigh = false;
    for ([[maybe_unused]] auto _ : state) bench.panel.VPPower(1, (isHigh = !isHigh) ? 120 : 119);
}

void directCall(benchmark::State& state) {
    Bench bench;
    callDirectly(bench, state);
}

void directCallWithListener(benchmark::State& state) {
    CallListener nobody;
    Bench bench;
    const Connection listening = bench.panel.listen(nobody);
    callDirectly(bench, state);
}

void lateBoundCall(benchmark::State& state) {
    Bench bench;
    bool isHigh = false;
    for ([[maybe_unused]] auto _ : state) {
        const Integer volts = (isHigh = !isHigh) ? 120 : 119;
        const std::vector<Value> arguments{Integer{1}, volts};
        bench.panel.invoke(0x6803000F, MemberKind::let, arguments);
    }
}

void newPanel(benchmark::State& state) {
    for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(Bench());
}

BENCHMARK(sumOfSamples)->Arg(500)->Arg(32767);
BENCHMARK(trace)->Arg(500)->Arg(32767);
BENCHMARK(traceInSegments)->Arg(500)->Arg(32767);
BENCHMARK(logLine)->Arg(0)->Arg(1000000)->Iterations(100000);
BENCHMARK(directCall);
BENCHMARK(directCallWithListener);
BENCHMARK(lateBoundCall);
BENCHMARK(newPanel);

}  // namespace
}  // namespace Orvo
