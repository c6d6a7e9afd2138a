// The address book's C functions over person records, and over nothing.
#include <gtest/gtest.h>

#include "addressbook/AddressBook.hpp"
#include "objc/owned.hpp"
#include "platform/Foundation.hpp"

namespace {

class Records : public testing::Test {
  protected:
    static NSArray list(NSString first, NSString second) {
        const NSArray one =
            objc::send<NSArray(NSString)>("NSArray"_cls, "arrayWithObject:"_sel, first);
        return objc::send<NSArray(NSString)>(one, "arrayByAddingObject:"_sel, second);
    }

    static objc::Owned<NSObject> made(const char *name, auto initialiser, auto first, auto second) {
        const id memory = objc::send<id()>(objc::findClass(name), "alloc"_sel);
        return objc::Owned<NSObject>::adopt(objc::send<NSObject(decltype(first), decltype(second))>(
            memory, initialiser, first, second));
    }

    objc::AutoreleasePool pool_;
    objc::Owned<NSObject> phones_ =
        made("ABMultiValueRecord", "initWithValues:labels:"_sel,
             list("13800000001"_ns, "02100000002"_ns), list("手机"_ns, "住宅"_ns));
    objc::Owned<NSObject> person_ = made("ABPersonRecord", "initWithName:phones:"_sel, "王小明"_ns,
                                         static_cast<NSObject>(phones_));
};

TEST_F(Records, PhonesOfAPerson) {
    const id phones = ABRecordCopyValue(person_.get(), kABPersonPhoneProperty);
    ASSERT_EQ(phones, phones_.get().get());
    EXPECT_EQ(ABMultiValueGetCount(phones), 2);
    const id second = ABMultiValueCopyValueAtIndex(phones, 1);
    EXPECT_STREQ(NSString(second).UTF8String(), "02100000002");
    EXPECT_EQ(ABMultiValueCopyValueAtIndex(phones, 2), nullptr);
    const id all = ABMultiValueCopyArrayOfAllValues(phones);
    EXPECT_EQ(CFArrayGetCount(all), 2);
    EXPECT_STREQ(NSString(CFArrayGetValueAtIndex(all, 0)).UTF8String(), "13800000001");
    CFRelease(all);
    CFRelease(second);
    CFRelease(phones);
    EXPECT_EQ(ABRecordCopyValue(person_.get(), kABPersonPhoneProperty + 1), nullptr);
}

TEST_F(Records, CopyAddsOneReferenceForTheCaller) {
    const auto references = [this] {
        return objc::send<NSUInteger()>(phones_.get(), "retainCount"_sel);
    };
    const NSUInteger before = references();
    const id phones = ABRecordCopyValue(person_.get(), kABPersonPhoneProperty);
    EXPECT_EQ(references(), before + 1);
    CFRelease(phones);
    EXPECT_EQ(references(), before);
}

TEST_F(Records, NothingGivesNothing) {
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
