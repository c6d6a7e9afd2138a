// An address book of somebody else's, with nobody in it.
extern "C" {
extern const int kABPersonPhoneProperty;  // or it would be this file's alone
const int kABPersonPhoneProperty = 3;
const void *ABRecordCopyValue(const void *, int) { return nullptr; }
long ABMultiValueGetCount(const void *) { return 0; }
const void *ABMultiValueCopyArrayOfAllValues(const void *) { return nullptr; }
const void *ABMultiValueCopyValueAtIndex(const void *, long) { return nullptr; }
long CFArrayGetCount(const void *) { return 0; }
const void *CFArrayGetValueAtIndex(const void *, long) { return nullptr; }
void CFRelease(const void *) {}
}
