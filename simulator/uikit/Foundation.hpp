// Small conversions between the C++ side of the simulator and Foundation's objects.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "objc/Instance.hpp"
#include "platform/Foundation.hpp"

namespace sim {

/// The C++ object behind an id that is known to be one; null for nil.
template <class T>
T *instance(id object) {
    return objc::Wire<T *>::from(object);
}

/// A handle for a C++ object; nil for null.
template <class Handle, class T>
Handle handle(const T *object) {
    return Handle(objc::Wire<T *>::to(const_cast<T *>(object)));
}

/// A new autoreleased instance of T, made by alloc and init.
template <class T>
T *autoreleased() {
    return objc::make<T>().autorelease();
}

/// The UTF-16 units of a string; empty for nil.
std::u16string units(NSString string);
std::string utf8(NSString string);

/// New autoreleased strings.
NSString string(std::u16string_view units);
NSString string(std::string_view utf8);

/// The immutable copy that a text property keeps; empty for nil.
objc::Owned<NSString> copied(NSString string);

/// A new autoreleased array; no object may be nil.
NSArray array(std::span<const id> objects);

template <class T>
NSArray array(const std::vector<objc::Owned<T>> &objects) {
    std::vector<id> ids;
    ids.reserve(objects.size());
    for (const auto &object : objects) {
        ids.push_back(object.get());
    }
    return array(std::span<const id>(ids));
}

/// Raises an Objective-C exception of that name; `reason` says what was wrong.
[[noreturn]] void raise(NSString name, NSString reason);

}  // namespace sim
