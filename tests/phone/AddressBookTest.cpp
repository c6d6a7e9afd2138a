// The address book's C functions over person records, and over nothing.
#include <gtest/gtest.h>

#include "addressbook/AddressBook.hpp"
#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"

namespace {

using objc::send;

objc::Owned<NSObject> made(Class cls, auto initialiser, NSObject first, NSObject second) {
    return objc::Owned<NSObject>::adopt(send<NSObject(NSObject, NSObject)>(
        send<id()>(cls, "alloc"_sel), initialiser, first, second));
}

TEST(AddressBook, CopiesThePhonesOfAPersonAndNothingOfNobody) {
    const objc::AutoreleasePool pool;
    const auto numbers =
        send<NSArray(NSString)>("NSArray"_cls, "arrayWithObject:"_sel, "13800000001"_ns);
    const auto phones =
        made("ABMultiValueRecord"_cls, "initWithValues:labels:"_sel, numbers, numbers);
    const auto person = made("ABPersonRecord"_cls, "initWithName:phones:"_sel, "王小明"_ns, phones);
    const auto references = [&] { return send<NSUInteger()>(phones.get(), "retainCount"_sel); };
    const NSUInteger before = references();
    const id copied = ABRecordCopyValue(person.get(), kABPersonPhoneProperty);
    ASSERT_EQ(copied, phones.get().get());
    EXPECT_EQ(references(), before + 1);
    EXPECT_EQ(ABMultiValueGetCount(copied), 1);
    const id first = ABMultiValueCopyValueAtIndex(copied, 0);
    EXPECT_STREQ(NSString(first).UTF8String(), "13800000001");
    EXPECT_EQ(ABMultiValueCopyValueAtIndex(copied, 1), nullptr);
    const id all = ABMultiValueCopyArrayOfAllValues(copied);
    EXPECT_EQ(CFArrayGetCount(all), 1);
    EXPECT_EQ(CFArrayGetValueAtIndex(all, 0), first);
    for (const id object : {all, first, copied}) {
        CFRelease(object);
    }
    EXPECT_EQ(references(), before);
    EXPECT_EQ(ABRecordCopyValue(person.get(), kABPersonPhoneProperty + 1), nullptr);
    // Nothing comes of nothing.
    EXPECT_EQ(ABRecordCopyValue(nullptr, kABPersonPhoneProperty), nullptr);
    EXPECT_EQ(ABMultiValueGetCount(nullptr), 0);
    EXPECT_EQ(ABMultiValueCopyArrayOfAllValues(nullptr), nullptr);
    const id nothing = ABMultiValueCopyValueAtIndex(nullptr, 0);
    EXPECT_EQ(nothing, nullptr);
    EXPECT_EQ(CFArrayGetCount(nullptr), 0);
    EXPECT_EQ(CFArrayGetValueAtIndex(nullptr, 0), nullptr);
    CFRelease(nothing);
}

}  // namespace
