// Between the companion's plain C++ texts and records and Foundation's objects. The companion does
// not lean on the simulator's UIKit for this, since it serves other Phone applications as well.
#pragma once

#include <string>
#include <string_view>

#include "objc/Instance.hpp"
#include "platform/Foundation.hpp"

namespace companion {

/// UTF-8 of a string; empty for nil. Half a surrogate pair becomes U+FFFD.
std::string utf8(NSString string);

/// A new autoreleased string.
NSString string(std::string_view utf8);

/// The pure number in a string; empty for nil.
std::string pure(NSString number);

/// A date, autoreleased, and back; nil is 0 seconds.
NSDate date(double secondsSince1970);
double seconds(NSDate date);

/// What a JSON text says, as Foundation's objects; nil for what is not JSON.
NSObject objectFromJson(std::string_view json);

/// The JSON text of an array or a dictionary; `fallback` for nil and for what JSON cannot say.
std::string jsonFromObject(NSObject object, std::string_view fallback);

/// An autoreleased instance of a C++ class of ours.
template <class T>
T *autoreleased() {
    return objc::make<T>().autorelease();
}

/// A nullable pointer to one of our objects, as a handle.
template <class T>
NSObject handle(T *object) {
    return NSObject(objc::Wire<T *>::to(object));
}

}  // namespace companion
