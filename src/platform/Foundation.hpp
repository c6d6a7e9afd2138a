// Foundation's classes, as far as the add-on speaks to them. Results are not owned by the caller
// unless they come as Owned.
#pragma once

#include <atomic>
#include <cstdint>
#include <type_traits>

#include "objc/encoding.hpp"
#include "objc/handle.hpp"
#include "objc/owned.hpp"
#include "platform/CoreGraphics.hpp"

// Pointer-wide on every architecture, spelt as the encodings of both platforms have it.
using NSInteger = std::conditional_t<sizeof(void *) == 8, long, int>;
using NSUInteger = std::make_unsigned_t<NSInteger>;

struct NSRange {
    NSUInteger location, length;
    bool operator==(const NSRange &) const = default;
};

/// What a search that found nothing gives as location.
inline constexpr NSUInteger kNotFound = static_cast<NSUInteger>(~NSUInteger{0} >> 1U);

template <>
struct objc::StructEncoding<NSRange> {
    static constexpr auto text = objc::Text("{_NSRange=") + objc::encoding<NSUInteger>() +
                                 objc::encoding<NSUInteger>() + objc::Text("}");
};

class NSString;

class NSObject : public objc::Object {
  public:
    using objc::Object::Object;
    static Class classObject() { return "NSObject"_cls; }
    NSString description() const;
    bool isKindOfClass(Class cls) const { return send<bool(Class)>("isKindOfClass:"_sel, cls); }
    bool respondsToSelector(SEL selector) const {
        return send<bool(SEL)>("respondsToSelector:"_sel, selector);
    }
};

/// Lengths and indexes are in UTF-16 units.
class NSString : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "NSString"_cls; }

    NSUInteger length() const { return send<NSUInteger()>("length"_sel); }
    bool isEqualToString(NSString other) const {
        return send<bool(NSString)>("isEqualToString:"_sel, other);
    }
    bool hasPrefix(NSString prefix) const { return send<bool(NSString)>("hasPrefix:"_sel, prefix); }
    NSString lowercaseString() const { return send<NSString()>("lowercaseString"_sel); }
    /// Raises when `index` lies behind the end.
    NSString substringFromIndex(NSUInteger index) const {
        return send<NSString(NSUInteger)>("substringFromIndex:"_sel, index);
    }
    /// Copies units into `units`, which must have room for `range`.
    void getCharacters(char16_t *units, NSRange range) const {
        send<void(char16_t *, NSRange)>("getCharacters:range:"_sel, units, range);
    }
    /// Zero-terminated, valid as long as the innermost pool; null for nil.
    const char *UTF8String() const { return send<const char *()>("UTF8String"_sel); }

    static NSString withString(NSString text) {
        return objc::send<NSString(NSString)>(classObject(), "stringWithString:"_sel, text);
    }
    static NSString withUTF8String(const char *text) {
        return objc::send<NSString(const char *)>(classObject(), "stringWithUTF8String:"_sel, text);
    }
    static NSString withCharacters(const char16_t *units, NSUInteger length) {
        return objc::send<NSString(const char16_t *, NSUInteger)>(
            classObject(), "stringWithCharacters:length:"_sel, units, length);
    }
};

inline NSString NSObject::description() const { return send<NSString()>("description"_sel); }

class NSDictionary : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "NSDictionary"_cls; }

    NSObject objectForKey(NSObject key) const {
        return send<NSObject(NSObject)>("objectForKey:"_sel, key);
    }
    /// Raises when either is nil.
    static NSDictionary withObject(NSObject object, NSObject key) {
        return objc::send<NSDictionary(NSObject, NSObject)>(
            classObject(), "dictionaryWithObject:forKey:"_sel, object, key);
    }
};

class NSArray : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "NSArray"_cls; }

    NSUInteger count() const { return send<NSUInteger()>("count"_sel); }
    /// Raises when `index` lies behind the end.
    NSObject objectAtIndex(NSUInteger index) const {
        return send<NSObject(NSUInteger)>("objectAtIndex:"_sel, index);
    }
};

class NSDate : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "NSDate"_cls; }
};

class NSNotification : public NSObject {
  public:
    using NSObject::NSObject;
    NSString name() const { return send<NSString()>("name"_sel); }
    NSDictionary userInfo() const { return send<NSDictionary()>("userInfo"_sel); }
};

class NSAttributedString : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "NSAttributedString"_cls; }
};

class NSBundle : public NSObject {
  public:
    using NSObject::NSObject;
    static NSBundle mainBundle() {
        return objc::send<NSBundle()>("NSBundle"_cls, "mainBundle"_sel);
    }
    NSString bundleIdentifier() const { return send<NSString()>("bundleIdentifier"_sel); }
};

namespace objc {

/// A text constant: "标记"_ns is one immutable NSString, made on first use and never released.
template <Text utf8>
NSString constantString() {
    static constinit std::atomic<id> g_made{nullptr};
    id string = g_made.load(std::memory_order_acquire);
    if (!string) [[unlikely]] {
        Owned<NSString> fresh =
            create<NSString(const char *)>("initWithUTF8String:"_sel, utf8.chars);
        if (g_made.compare_exchange_strong(string, fresh.get(), std::memory_order_acq_rel)) {
            string = fresh.leak();
        }
    }
    return NSString(string);
}

}  // namespace objc

template <objc::Text utf8>
NSString operator""_ns() {
    return objc::constantString<utf8>();
}
