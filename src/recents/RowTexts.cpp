// The texts of the recents' rows, and what they are kept under.
#include "recents/RowTexts.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "objc/Silently.hpp"
#include "platform/Format.hpp"
#include "recents/Lookup.hpp"

using objc::Owned;

namespace recents {
namespace {

/// Of the entries alone, held for one operation. One for all instances: there is only one.
id lockObject() {
    static const id g_lock = objc::create<NSObject>().leak();
    return g_lock;
}

/// Writes a whole number that an int64_t can hold, as "%.0f" shows it; returns where it ends.
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

RowTexts *RowTexts::shared() {
    if (objc::Shared<RowTexts>::create()) {
        objc::silently([] {
            ZQIPCService::addObserver(*objc::Shared<RowTexts>::get(),
                                      "onReloadCacheNotification:"_sel, reloadAllNumbersMessage());
        });
    }
    return objc::Shared<RowTexts>::get();
}

NSObject RowTexts::init() {
    const auto self = objc::sendSuper<RowTexts, NSObject()>(this, "init"_sel);
    if (self) {
        setEntries(objc::create<NSMutableDictionary>());
    }
    return self;
}

Owned<NSString> RowTexts::textOf(RecentCall call, bool from80) {
    const double seconds = call.date().secondsSince1970();
    const NSString number = call.ownNumber(from80);
    if (!number) {
        return {};
    }
    const auto key = rowKey(number, seconds);
    if (auto known = find(key)) {
        return known;
    }
    const uint32_t asked = generation();
    auto text = describe(call);
    keep(text->length() != 0 ? text.get() : ""_ns, key, asked);
    return text;
}

void RowTexts::setEntries(NSMutableDictionary entries) {
    auto other = Owned<NSMutableDictionary>::share(entries);
    const objc::Monitor lock(lockObject());
    std::swap(_entries, other);
}

void RowTexts::forgetAll(NSObject /*message*/) {
    const objc::Monitor monitor(*this);
    const objc::Monitor lock(lockObject());
    ++_generation;
    _entries->removeAllObjects();
}

Owned<NSString> RowTexts::find(NSString key) const {
    const objc::Monitor lock(lockObject());
    return Owned<NSString>::share(_entries->objectForKey(key).as<NSString>());
}

uint32_t RowTexts::generation() const {
    const objc::Monitor lock(lockObject());
    return _generation;
}

void RowTexts::keep(NSString text, NSString key, uint32_t generation) {
    const objc::Monitor lock(lockObject());
    if (generation == _generation) {
        _entries->setObject(text, key);
    }
}

Owned<NSString> rowKey(NSString number, double seconds) {
    constexpr NSUInteger kUsualLength = 64;
    constexpr double kEveryWholeNumber = 9007199254740992;  // 2^53
    const NSUInteger length = number.length();
    Owned<NSString> key;
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
    return key ? std::move(key) : Owned<NSString>::share(format<"%@_%.0f">(number, seconds));
}

}  // namespace recents
