// The texts of the recents' rows, and what they are kept under.
#include "recents/InfoCache.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/format.hpp"

namespace recents {
namespace {

/// One lock for all caches: there is only one outside of tests.
id lockObject() {
    static const id g_lock = objc::create<NSObject>().leak();
    return g_lock;
}

/// Writes a whole number that an int64_t can hold, as "%.0f" shows it; answers where it ends.
char16_t *writeWhole(double whole, char16_t *out) {
    if (std::signbit(whole)) {  // of -0 too
        *out++ = u'-';
    }
    char16_t reversed[20];
    char16_t *end = reversed;
    auto rest = static_cast<uint64_t>(std::abs(whole));
    do {
        *end++ = static_cast<char16_t>(u'0' + rest % 10);
        rest /= 10;
    } while (rest != 0);
    return std::reverse_copy(reversed, end, out);
}

}  // namespace

void InfoCache::replace(NSMutableDictionary entries) {
    auto other = objc::Owned<NSMutableDictionary>::share(entries);
    const objc::Monitor lock(lockObject());
    std::swap(entries_, other);
}

NSString InfoCache::find(NSString key) const {
    const objc::Monitor lock(lockObject());
    const auto text = entries_->objectForKey(key).as<NSString>();
    return objc::Owned<NSString>::share(text).autorelease();
}

void InfoCache::keep(NSString text, NSString key) const {
    const objc::Monitor lock(lockObject());
    entries_->setObject(text, key);
}

void InfoCache::clear() const {
    const objc::Monitor lock(lockObject());
    entries_->removeAllObjects();
}

objc::Owned<NSString> rowKey(NSString number, double seconds) {
    constexpr NSUInteger kUsualLength = 64;
    constexpr double kEveryWholeNumber = 9007199254740992;  // 2^53
    const NSUInteger length = number.length();
    objc::Owned<NSString> key;
    if (length <= kUsualLength && std::abs(seconds) < kEveryWholeNumber) {
        // Every row asks on every scroll step, so this way is short.
        char16_t units[kUsualLength + 20];
        number.getCharacters(units, {0, length});
        units[length] = u'_';
        const char16_t *const end = writeWhole(std::nearbyint(seconds), units + length + 1);
        key = objc::create<NSString(const char16_t *, NSUInteger)>(
            "initWithCharacters:length:"_sel, units, static_cast<NSUInteger>(end - units));
    }
    // Long numbers, times that are no numbers, and what the host's Foundation refuses
    return key ? std::move(key) : objc::Owned<NSString>::share(format<"%@_%.0f">(number, seconds));
}

}  // namespace recents
