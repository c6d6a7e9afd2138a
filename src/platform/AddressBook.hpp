// The address book's C interface, as far as the add-on speaks to it. Objects that a Copy function
// returns are the caller's; here they come as AddressBookCopy.
#pragma once

#include <cstdint>
#include <utility>

#include "platform/Foundation.hpp"

extern "C" {
extern const int32_t kABPersonPhoneProperty;
const void *ABRecordCopyValue(const void *record, int32_t property);
NSInteger ABMultiValueGetCount(const void *values);
const void *ABMultiValueCopyArrayOfAllValues(const void *values);
const void *ABMultiValueCopyValueAtIndex(const void *values, NSInteger index);
NSInteger CFArrayGetCount(const void *array);
const void *CFArrayGetValueAtIndex(const void *array, NSInteger index);
void CFRelease(const void *object);
}

/// Core Foundation's objects are Objective-C objects too.
inline NSObject objectOf(const void *object) {
    return NSObject(static_cast<id>(const_cast<void *>(object)));
}

/// Releases at its end what a Copy function gave; null is nothing to release.
class AddressBookCopy {
  public:
    explicit AddressBookCopy(const void *object) : object_(object) {}
    AddressBookCopy(const AddressBookCopy &) = delete;
    AddressBookCopy &operator=(const AddressBookCopy &) = delete;
    ~AddressBookCopy() {
        if (object_) {
            CFRelease(object_);
        }
    }

    const void *get() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

  private:
    const void *object_;
};
