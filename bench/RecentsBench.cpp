// A recents row's text that comes from the cache: that must cost the same however many calls are
// cached. Beside the time: how often one lookup asks for memory, and the bytes that one entry
// keeps, key and text included.
#include <vector>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include "Allocations.hpp"
#include "CachedCalls.hpp"
#include "recents/ZQSystemCallHistoryViewHook.hpp"
#include "support/RecentCalls.hpp"
#include "support/StubCompanion.hpp"

namespace {

recents::RowTexts &rowTexts() {
    static const bool g_registered = [] {
        test::StubCompanion::registerClasses();
        ZQSystemCallHistoryViewHook::define().finish();
        return true;
    }();
    benchmark::DoNotOptimize(g_registered);
    return *recents::RowTexts::shared();
}

void lookUpCachedRow(benchmark::State &state) {
    const objc::AutoreleasePool pool;
    const int64_t entries = state.range(0);
    const size_t bytesBefore = mallinfo2().uordblks;
    const auto cache = bench::cachedCalls(entries);
    const size_t bytes = mallinfo2().uordblks - bytesBefore;
    rowTexts().setEntries(cache);

    std::vector<objc::Owned<NSObject>> rows;
    for (const double second : bench::cachedSeconds(entries)) {
        rows.push_back(test::recentCall(test::CallKind::Ios7,
                                        {.number = bench::kCachedNumber, .date = second}));
    }
    const long before = bench::allocations();
    size_t next = 0;
    for ([[maybe_unused]] auto _ : state) {
        const objc::AutoreleasePool inner;
        benchmark::DoNotOptimize(rowTexts().textOf(test::asCall(rows[next])).get().get());
        next = (next + 1) % rows.size();
    }
    state.counters["allocations"] = static_cast<double>(bench::allocations() - before) /
                                    static_cast<double>(state.iterations());
    state.counters["entry_bytes"] = static_cast<double>(bytes) / static_cast<double>(entries);
    if (!test::StubCompanion::current().queries.empty()) {
        state.SkipWithError("a row was not found in the cache");
    }
    rowTexts().setEntries(nullptr);
}

BENCHMARK(lookUpCachedRow)->Arg(1)->Arg(1000)->Arg(100000);

}  // namespace
