// An address book of somebody else's: a person is the array of its numbers, and so is the value
// that holds them. What is copied is the caller's; releasing nothing is a fault, as it ever was.
#include <cstdlib>

#import <Foundation/Foundation.h>

extern "C" {
extern const int kABPersonPhoneProperty;  // or it would be this file's alone
const int kABPersonPhoneProperty = 3;

id ABRecordCopyValue(NSArray *person, int property) {
    return property == kABPersonPhoneProperty ? [person retain] : nil;
}
long ABMultiValueGetCount(NSArray *values) { return [values count]; }
id ABMultiValueCopyArrayOfAllValues(NSArray *values) { return [values copy]; }
id ABMultiValueCopyValueAtIndex(NSArray *values, long index) {
    return [[values objectAtIndex:index] retain];
}
long CFArrayGetCount(NSArray *array) { return [array count]; }
id CFArrayGetValueAtIndex(NSArray *array, long index) { return [array objectAtIndex:index]; }
void CFRelease(id object) {
    if (!object) {
        std::abort();
    }
    [object release];
}
}
