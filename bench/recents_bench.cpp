// A recents row that is laid out again while scrolling: its text comes from the cache, and that
// must cost the same however many calls are cached. Beside the time: how often one lookup asks for
// memory, and the bytes that one entry keeps, key and text included.
#include <algorithm>
#include <vector>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include "Allocations.hpp"
#include "platform/format.hpp"
#include "recents/ZQSystemCallHistoryViewHook.hpp"
#include "support/RecentCalls.hpp"
#include "support/StubCompanion.hpp"

namespace {

constexpr auto kNumber = "17700000061";
constexpr double kFirstCall = 1400000000;  // seconds since 1970; the others follow, one a second
constexpr int64_t kOnScreen = 16;          // rows

ZQSystemCallHistoryViewHook &hook() {
    static const bool g_registered = [] {
        test::StubCompanion::registerClasses();
        ZQSystemCallHistoryViewHook::define().finish();
        return true;
    }();
    benchmark::DoNotOptimize(g_registered);
    return *ZQSystemCallHistoryViewHook::currentHook();
}

/// Answers the bytes that the entries keep.
size_t fill(recents::InfoCache &cache, int64_t entries) {
    const size_t before = mallinfo2().uordblks;
    cache.replace(objc::create<NSMutableDictionary>());
    const NSString number = NSString::withUTF8String(kNumber);
    for (int64_t i = 0; i < entries; ++i) {
        const objc::AutoreleasePool pool;
        const NSString text = format<"云南昆明 %d">(static_cast<int32_t>(i));
        cache.keep(text, recents::rowKey(number, kFirstCall + static_cast<double>(i)));
    }
    return mallinfo2().uordblks - before;
}

void lookUpCachedRow(benchmark::State &state) {
    const objc::AutoreleasePool pool;
    const int64_t entries = state.range(0);
    recents::InfoCache cache;
    const size_t bytes = fill(cache, entries);
    hook().setNumberInfoAndCallCacheDict(cache.get());

    std::vector<objc::Owned<NSObject>> rows;
    const int64_t apart = entries / kOnScreen;
    for (int64_t i = 0; i < std::min(entries, kOnScreen); ++i) {
        const auto second = static_cast<double>(i * apart);
        rows.push_back(test::recentCall(test::CallKind::Ios7,
                                        {.number = kNumber, .date = kFirstCall + second}));
    }
    const long before = bench::allocations();
    size_t next = 0;
    for ([[maybe_unused]] auto _ : state) {
        const objc::AutoreleasePool inner;
        benchmark::DoNotOptimize(hook().getInfo(test::asCall(rows[next])).get());
        next = (next + 1) % rows.size();
    }
    state.counters["allocations"] = static_cast<double>(bench::allocations() - before) /
                                    static_cast<double>(state.iterations());
    state.counters["entry_bytes"] = static_cast<double>(bytes) / static_cast<double>(entries);
    if (!test::StubCompanion::current().queries.empty()) {
        state.SkipWithError("a row was not found in the cache");
    }
    hook().setNumberInfoAndCallCacheDict(nullptr);
}

BENCHMARK(lookUpCachedRow)->Arg(1)->Arg(1000)->Arg(100000);

}  // namespace
