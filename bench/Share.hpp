// What the add-on adds to something the Phone application does, and what the sends alone would cost
// that it cannot do without.
#pragma once

#include <ctime>

#include <benchmark/benchmark.h>

#include "objc/Owned.hpp"

namespace bench {

/// What this thread has computed so far; a busy machine does not count.
inline double processorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// One run of `work`, averaged over a few hundred.
template <class Work>
double seconds(Work work) {
    constexpr int kRuns = 200;
    const objc::AutoreleasePool pool;
    const double start = processorSeconds();
    for (int i = 0; i < kRuns; ++i) {
        work();
    }
    return (processorSeconds() - start) / kRuns;
}

/// The three take turns, so that what else slows the machine down troubles all alike. The
/// benchmark's time is the add-on's share, the counters are both sides and their ratio.
template <class Hooked, class Unhooked, class Sends>
void measureShare(benchmark::State &state, Hooked hooked, Unhooked unhooked, Sends sends) {
    double share = 0;
    double required = 0;
    for ([[maybe_unused]] auto _ : state) {
        const double with = seconds(hooked);
        const double without = seconds(unhooked);
        required += seconds(sends);
        share += with - without;
        state.SetIterationTime(with - without);
    }
    const auto runs = static_cast<double>(state.iterations());
    state.counters["share_ns"] = share / runs * 1e9;
    state.counters["sends_ns"] = required / runs * 1e9;
    state.counters["ratio"] = share / required;
}

}  // namespace bench
