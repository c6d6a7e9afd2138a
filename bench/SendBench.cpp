// A typed send against the same send compiled by the Objective-C front end. The two are timed in
// turns within one benchmark, so that a change of the machine's pace hits both; what counts is the
// ratio that each reports.
#include <chrono>

#include <benchmark/benchmark.h>

#include "Sends.hpp"
#include "support/Probe.hpp"

namespace {

using Loop = double (*)(void *, long);
using Clock = std::chrono::steady_clock;

double seconds(Loop loop, void *receiver, long count) {
    const auto start = Clock::now();
    benchmark::DoNotOptimize(loop(receiver, count));
    return std::chrono::duration<double>(Clock::now() - start).count();
}

void compare(benchmark::State &state, Loop bridge, Loop frontEnd) {
    constexpr long kSends = 200'000;
    const objc::AutoreleasePool pool;
    const auto owner = test::newProbe();
    void *const probe = owner.get().get();
    double ours = 0;
    double theirs = 0;
    for ([[maybe_unused]] auto _ : state) {
        const double bridgeTime = seconds(bridge, probe, kSends);
        theirs += seconds(frontEnd, probe, kSends);
        ours += bridgeTime;
        state.SetIterationTime(bridgeTime / kSends);
    }
    const auto sends = static_cast<double>(state.iterations()) * kSends;
    state.counters["bridge_ns"] = ours / sends * 1e9;
    state.counters["front_end_ns"] = theirs / sends * 1e9;
    state.counters["ratio"] = ours / theirs;
}

BENCHMARK_CAPTURE(compare, integer_result, bench::kBridgeSends.integerResult,
                  bench::kFrontEndSends.integerResult)
    ->UseManualTime()
    ->Iterations(50);
BENCHMARK_CAPTURE(compare, struct_result, bench::kBridgeSends.structResult,
                  bench::kFrontEndSends.structResult)
    ->UseManualTime()
    ->Iterations(50);
BENCHMARK_CAPTURE(compare, struct_argument, bench::kBridgeSends.structArgument,
                  bench::kFrontEndSends.structArgument)
    ->UseManualTime()
    ->Iterations(50);

}  // namespace
