// The address book's C interface over messages.
#include "addressbook/AddressBook.hpp"

#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"

namespace {

/// What a Copy function hands out: a reference that the caller releases.
id copied(id object) { return objc::send<id()>(object, "retain"_sel); }

}  // namespace

extern "C" {

extern const int32_t kABPersonPhoneProperty = 3;

id ABRecordCopyValue(id record, int32_t property) {
    return copied(objc::send<id(int32_t)>(record, "valueForProperty:"_sel, property));
}

long ABMultiValueGetCount(id multiValue) {
    return static_cast<long>(objc::send<NSUInteger()>(multiValue, "count"_sel));
}

id ABMultiValueCopyArrayOfAllValues(id multiValue) {
    return copied(objc::send<id()>(multiValue, "allValues"_sel));
}

id ABMultiValueCopyValueAtIndex(id multiValue, long index) {
    return copied(objc::send<id(NSUInteger)>(multiValue, "valueAtIndex:"_sel,
                                             static_cast<NSUInteger>(index)));
}

long CFArrayGetCount(id array) { return static_cast<long>(NSArray(array).count()); }

id CFArrayGetValueAtIndex(id array, long index) {
    return array ? NSArray(array).objectAtIndex(static_cast<NSUInteger>(index)).get() : nullptr;
}

void CFRelease(id object) { objc::send<void()>(object, "release"_sel); }
}
