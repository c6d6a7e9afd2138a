// Foundation's classes, as far as the add-on speaks to them. Results are not owned by the caller
// unless they come as Owned.
#pragma once

#include <atomic>
#include <cstdint>

#include "objc/Encoding.hpp"
#include "objc/Handle.hpp"
#include "objc/Owned.hpp"
#include "platform/CoreGraphics.hpp"

struct NSRange {
    NSUInteger location, length;
    bool operator==(const NSRange &) const = default;
};

/// A text encoding's number, as wide as each Foundation has it.
#if defined(__APPLE__)
using NSStringEncoding = NSUInteger;
#else
using NSStringEncoding = unsigned;
#endif
inline constexpr NSStringEncoding kAsciiEncoding = 1;

/// What a search that found nothing gives as location.
inline constexpr NSUInteger kNotFound = static_cast<NSUInteger>(~NSUInteger{0} >> 1U);

template <>
struct objc::StructEncoding<NSRange> {
    static constexpr auto text = objc::Literal("{_NSRange=") + objc::encoding<NSUInteger>() +
                                 objc::encoding<NSUInteger>() + objc::Literal("}");
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
    /// The units before `index`; raises when it lies behind the end.
    NSString substringToIndex(NSUInteger index) const {
        return send<NSString(NSUInteger)>("substringToIndex:"_sel, index);
    }
    /// Where `part` first begins, kNotFound where it does not occur; in a nil text nothing occurs.
    NSUInteger indexOf(NSString part) const {
        return *this ? send<NSRange(NSString)>("rangeOfString:"_sel, part).location : kNotFound;
    }
    bool contains(NSString part) const { return indexOf(part) != kNotFound; }
    /// Copies units into `units`, which must have room for `range`.
    void getCharacters(char16_t *units, NSRange range) const {
        send<void(char16_t *, NSRange)>("getCharacters:range:"_sel, units, range);
    }
    /// What the text is now, whoever changes it later; empty for nil.
    objc::Owned<NSString> copy() const {
        return objc::Owned<NSString>::adopt(send<NSString()>("copy"_sel));
    }
    /// Zero-terminated, valid as long as the innermost pool; null for nil.
    const char *UTF8String() const { return send<const char *()>("UTF8String"_sel); }

    static NSString withUTF8String(const char *text) {
        return objc::send<NSString(const char *)>(classObject(), "stringWithUTF8String:"_sel, text);
    }
    static NSString withCharacters(const char16_t *units, NSUInteger length) {
        return objc::send<NSString(const char16_t *, NSUInteger)>(
            classObject(), "stringWithCharacters:length:"_sel, units, length);
    }
};

/// Whether both are the same text, unit by unit, or both nil. For texts that are mostly the same
/// object, or else short.
bool isSameText(NSString a, NSString b);

/// What a container holds, as a text; nil when it holds something else.
inline NSString asText(NSObject object) {
    return object.isKindOfClass(NSString::classObject()) ? object.as<NSString>() : nullptr;
}

inline NSString NSObject::description() const { return send<NSString()>("description"_sel); }

/// What `object` returns to a message that it may not know; zero when it does not, or is nil.
template <class T, objc::Literal name>
T ifKnown(NSObject object, objc::Selector<name> selector) {
    return object.respondsToSelector(selector) ? objc::send<T()>(object, selector) : T();
}

/// Whether the method that `object` has for this message returns an object, as far as the runtime
/// knows.
bool returnsObject(NSObject object, SEL selector);

// What a container holds, as a number; 0 or NO when it is neither a number nor a text of one.
inline NSInteger integerOf(NSObject object) {
    return ifKnown<NSInteger>(object, "integerValue"_sel);
}
inline int32_t intOf(NSObject object) { return ifKnown<int32_t>(object, "intValue"_sel); }
inline float floatOf(NSObject object) { return ifKnown<float>(object, "floatValue"_sel); }
inline bool boolOf(NSObject object) { return ifKnown<bool>(object, "boolValue"_sel); }

class NSNumber : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "NSNumber"_cls; }

    static NSNumber withBool(bool value) {
        return objc::send<NSNumber(bool)>(classObject(), "numberWithBool:"_sel, value);
    }
};

class NSDictionary : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "NSDictionary"_cls; }

    NSUInteger count() const { return send<NSUInteger()>("count"_sel); }
    NSObject objectForKey(NSObject key) const {
        return send<NSObject(NSObject)>("objectForKey:"_sel, key);
    }
    /// Raises when either is nil.
    static NSDictionary withObject(NSObject object, NSObject key) {
        return objc::send<NSDictionary(NSObject, NSObject)>(
            classObject(), "dictionaryWithObject:forKey:"_sel, object, key);
    }
};

/// What a container holds, as a dictionary; nil when it holds something else.
inline NSDictionary asDictionary(NSObject object) {
    return object.isKindOfClass(NSDictionary::classObject()) ? object.as<NSDictionary>() : nullptr;
}

class NSMutableDictionary : public NSDictionary {
  public:
    using NSDictionary::NSDictionary;
    static Class classObject() { return "NSMutableDictionary"_cls; }

    /// Raises when either is nil.
    void setObject(NSObject object, NSObject key) const {
        send<void(NSObject, NSObject)>("setObject:forKey:"_sel, object, key);
    }
    void removeAllObjects() const { send<void()>("removeAllObjects"_sel); }
};

class NSMutableSet : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "NSMutableSet"_cls; }

    NSUInteger count() const { return send<NSUInteger()>("count"_sel); }
    bool containsObject(NSObject object) const {
        return send<bool(NSObject)>("containsObject:"_sel, object);
    }
    /// Raises when `object` is nil.
    void addObject(NSObject object) const { send<void(NSObject)>("addObject:"_sel, object); }
    void removeObject(NSObject object) const { send<void(NSObject)>("removeObject:"_sel, object); }
    void removeAllObjects() const { send<void()>("removeAllObjects"_sel); }
};

class NSArray : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "NSArray"_cls; }

    static NSArray array() { return objc::send<NSArray()>(classObject(), "array"_sel); }
    /// Raises when `object` is nil.
    static NSArray withObject(NSObject object) {
        return objc::send<NSArray(NSObject)>(classObject(), "arrayWithObject:"_sel, object);
    }
    NSUInteger count() const { return send<NSUInteger()>("count"_sel); }
    /// Raises when `index` lies behind the end.
    NSObject objectAtIndex(NSUInteger index) const {
        return send<NSObject(NSUInteger)>("objectAtIndex:"_sel, index);
    }
};

/// An array whose elements are all of one type, as its source vouches for. Walked with `for`: the
/// elements that it has when the walk begins, which it holds. Where it may change on the way, walk
/// a copy. T is a handle; it may still be incomplete where only the name ArrayOf<T> is used.
template <class T>
class ArrayOf : public NSArray {
  public:
    using NSArray::NSArray;

    class Iterator {
      public:
        Iterator(NSArray array, NSUInteger index) : array_(array), index_(index) {}
        T operator*() const { return array_.objectAtIndex(index_).template as<T>(); }
        Iterator &operator++() {
            ++index_;
            return *this;
        }
        bool operator!=(const Iterator &other) const { return index_ != other.index_; }

      private:
        NSArray array_;
        NSUInteger index_;
    };

    Iterator begin() const { return {*this, 0}; }
    Iterator end() const { return {*this, count()}; }
};

class NSDate : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "NSDate"_cls; }
    /// 0 for nil.
    double secondsSince1970() const { return send<double()>("timeIntervalSince1970"_sel); }
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
    NSString string() const { return send<NSString()>("string"_sel); }
};

class NSMutableAttributedString : public NSAttributedString {
  public:
    using NSAttributedString::NSAttributedString;
    static Class classObject() { return "NSMutableAttributedString"_cls; }

    /// Raises when `range` reaches behind the end.
    void addAttribute(NSString name, NSObject value, NSRange range) const {
        send<void(NSString, NSObject, NSRange)>("addAttribute:value:range:"_sel, name, value,
                                                range);
    }
};

class NSFileManager : public NSObject {
  public:
    using NSObject::NSObject;
    static NSFileManager defaultManager() {
        return objc::send<NSFileManager()>("NSFileManager"_cls, "defaultManager"_sel);
    }
    bool fileExistsAtPath(NSString path) const {
        return send<bool(NSString)>("fileExistsAtPath:"_sel, path);
    }
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
template <Literal utf8>
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

template <objc::Literal utf8>
NSString operator""_ns() {
    return objc::constantString<utf8>();
}
