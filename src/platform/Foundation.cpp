// Comparing texts, and asking what a message returns.
#include "platform/Foundation.hpp"

#include <algorithm>

#include "members/Encodings.hpp"

bool isSameText(NSString a, NSString b) {
    if (a.get() == b.get()) {
        return true;
    }
    constexpr NSUInteger kShort = 64;
    const NSUInteger length = a.length();
    if (!a || !b || length != b.length()) {
        return false;
    }
    if (length > kShort) {
        return a.isEqualToString(b);
    }
    char16_t mine[kShort];
    char16_t other[kShort];
    a.getCharacters(mine, {0, length});
    b.getCharacters(other, {0, length});
    return std::equal(mine, mine + length, other);
}

bool returnsObject(NSObject object, SEL selector) {
    const Method method =
        object ? class_getInstanceMethod(object_getClass(object), selector) : nullptr;
    const char *const text = method ? method_getTypeEncoding(method) : nullptr;
    std::string_view encoding = text ? text : "";
    return members::takeType(encoding).starts_with('@');
}
