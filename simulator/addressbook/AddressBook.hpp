// The address book's C interface, as far as anybody here calls it. Records, multi-values and arrays
// are Objective-C objects, asked by message, so any object that knows the message will do. A null
// argument gives null or 0; what a Copy function returns is the caller's to CFRelease.
#pragma once

#include <cstdint>

#include "objc/Runtime.hpp"

extern "C" {
/// A person's phone numbers: a multi-value of texts.
extern const int32_t kABPersonPhoneProperty;

/// `record` has valueForProperty: (int32_t).
id ABRecordCopyValue(id record, int32_t property);

/// `multiValue` has count, valueAtIndex: and allValues.
long ABMultiValueGetCount(id multiValue);
id ABMultiValueCopyArrayOfAllValues(id multiValue);
id ABMultiValueCopyValueAtIndex(id multiValue, long index);

long CFArrayGetCount(id array);
id CFArrayGetValueAtIndex(id array, long index);
void CFRelease(id object);
}
