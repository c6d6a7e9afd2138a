// What the files of the stub companion share: its classes are spread over them as the companion's
// interface is over the add-on's headers.
#pragma once

#include "objc/ClassBuilder.hpp"
#include "support/StubCompanion.hpp"

namespace test {

inline StubCompanion &stub() { return StubCompanion::current(); }

/// Empty for nil.
std::string utf8(NSString text);
std::string digitsOf(NSString text);
MaybeText maybe(NSString text);
NSString string(const MaybeText &text);

/// Every message that asks or does something passes here: it is counted and raises when it is told
/// to. Returns whether an object that is asked for may be given.
bool asked(const char *message);

/// The entry of `number` among `answers`; nil for a number without one.
NSString answerFor(const char *message, const std::map<std::string, std::string> &answers,
                   const std::string &number);

template <class T>
NSObject autoreleased(T *object) {
    return objc::Owned<NSObject>::adopt(NSObject(*object)).autorelease();
}

/// The object that a shared-instance message returns.
template <class T>
NSObject onlyOne() {
    static auto *const instance = objc::make<T>().leak();
    return NSObject(*instance);
}

template <class T>
NSObject onlyOneIfAny() {
    return stub().knowsNothing ? nullptr : onlyOne<T>();
}

/// A class of class methods only, told apart from the others by its number.
template <int>
class Namespace : public objc::Instance {};

void registerNumberClasses();
void registerPartnerClasses();
void registerServiceClasses();
void registerUtilityClasses();

}  // namespace test
