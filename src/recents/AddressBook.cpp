// Numbers of the address book's people.
#include "recents/AddressBook.hpp"

#include "companion/Interface.hpp"
#include "objc/Silently.hpp"
#include "platform/AddressBook.hpp"

namespace recents {
namespace {

NSObject valueForKey(NSObject object, NSString key) {
    return objc::send<NSObject(NSString)>(object, "valueForKey:"_sel, key);
}

/// Null for nobody.
AddressBookCopy phoneValues(const void *person) {
    return AddressBookCopy(person ? ABRecordCopyValue(person, kABPersonPhoneProperty) : nullptr);
}

bool areDifferent(const AddressBookCopy &texts) {
    const auto distinct = objc::create<NSMutableSet>();
    const NSInteger count = texts ? CFArrayGetCount(texts.get()) : 0;
    for (NSInteger i = 0; i < count; ++i) {
        if (const NSObject value = objectOf(CFArrayGetValueAtIndex(texts.get(), i))) {
            distinct->addObject(value);
        }
    }
    return distinct->count() > 1;
}

NSString firstNumberOf(const void *person) {
    const AddressBookCopy values = phoneValues(person);
    const NSInteger count = values ? ABMultiValueGetCount(values.get()) : 0;
    for (NSInteger i = 0; i < count; ++i) {
        const AddressBookCopy value(ABMultiValueCopyValueAtIndex(values.get(), i));
        const NSString number = asText(objectOf(value.get()));
        if (number.length() != 0) {
            return number.copy().autorelease();
        }
    }
    return nullptr;
}

}  // namespace

bool contactHasMoreThanOneNumber(RecentCall call) {
    const void *const person = ZQContactService::currentService().getPersonWithRecordID(
        ZQPhoneNumber::pureNumberOf(call.number()));
    const AddressBookCopy values = phoneValues(person);
    if (!values || ABMultiValueGetCount(values.get()) < 2) {
        return false;
    }
    return areDifferent(AddressBookCopy(ABMultiValueCopyArrayOfAllValues(values.get())));
}

bool isPersonTableDataSource(NSObject dataSource) {
    bool isOne = false;
    objc::silently([&] {
        isOne = valueForKey(dataSource, "personHeaderView"_ns) &&
                !objc::send<bool()>(valueForKey(dataSource, "allowsEditing"_ns), "boolValue"_sel);
    });
    return isOne;
}

NSString firstNumberIn(NSObject dataSource) {
    NSString number;
    objc::silently([&] {
        for (const NSObject person : valueForKey(dataSource, "people"_ns).as<ArrayOf<NSObject>>()) {
            number = firstNumberOf(person.get());
            if (number) {
                break;
            }
        }
    });
    return number;
}

}  // namespace recents
