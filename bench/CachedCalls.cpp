// A cache of as many rows as wanted.
#include "CachedCalls.hpp"

#include <algorithm>
#include <utility>

#include "platform/Format.hpp"

namespace bench {
namespace {

double secondOf(int64_t index) { return 1400000000 + static_cast<double>(index); }

}  // namespace

objc::Owned<NSMutableDictionary> cachedCalls(int64_t entries) {
    auto cache = objc::create<NSMutableDictionary>();
    const NSString number = NSString::withUTF8String(kCachedNumber);
    for (int64_t i = 0; i < entries; ++i) {
        const objc::AutoreleasePool pool;
        const NSString text = format<"云南昆明 %d">(static_cast<int32_t>(i));
        cache->setObject(text, recents::rowKey(number, secondOf(i)));
    }
    return cache;
}

std::vector<double> cachedSeconds(int64_t entries) {
    constexpr int64_t kOnScreen = 16;  // rows
    const int64_t apart = std::max<int64_t>(entries / kOnScreen, 1);
    std::vector<double> seconds(static_cast<size_t>(std::min(entries, kOnScreen)));
    std::ranges::generate(seconds, [next = int64_t{0}, apart]() mutable {
        return secondOf(std::exchange(next, next + apart));
    });
    return seconds;
}

}  // namespace bench
