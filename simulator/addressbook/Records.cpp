// Persons and their numbers, known to the runtime as soon as the library is mapped.
#include "addressbook/Records.hpp"

#include <cstdio>
#include <cstdlib>

#include "addressbook/AddressBook.hpp"
#include "objc/ClassBuilder.hpp"

namespace addressbook {
namespace {

NSObject at(NSArray array, NSUInteger index) {
    return index < array.count() ? array.objectAtIndex(index) : NSObject();
}

__attribute__((constructor)) void defineClasses() {
    const objc::AutoreleasePool pool;
    using objc::member;
    const Class multiValue =
        objc::ClassBuilder<MultiValue>("ABMultiValueRecord", "NSObject")
            .method("initWithValues:labels:"_sel, member<&MultiValue::initWithValues>)
            .method("count"_sel, member<&MultiValue::count>)
            .method("valueAtIndex:"_sel, member<&MultiValue::valueAtIndex>)
            .method("labelAtIndex:"_sel, member<&MultiValue::labelAtIndex>)
            .method("allValues"_sel, member<&MultiValue::allValues>)
            .finish();
    const Class person = objc::ClassBuilder<Person>("ABPersonRecord", "NSObject")
                             .method("initWithName:phones:"_sel, member<&Person::initWithName>)
                             .method("name"_sel, member<&Person::name>)
                             .method("valueForProperty:"_sel, member<&Person::valueForProperty>)
                             .finish();
    if (!multiValue || !person) {
        std::fputs("libAddressBook.so: its classes cannot be defined; is it loaded twice?\n",
                   stderr);
        std::abort();
    }
}

}  // namespace

id MultiValue::initWithValues(NSArray values, NSArray labels) {
    const id self = objc::sendSuper<MultiValue, id()>(this, "init"_sel);
    _values = objc::Owned<NSArray>::share(values);
    _labels = objc::Owned<NSArray>::share(labels);
    return self;
}

NSObject MultiValue::valueAtIndex(NSUInteger index) const { return at(_values, index); }

NSObject MultiValue::labelAtIndex(NSUInteger index) const { return at(_labels, index); }

id Person::initWithName(NSString name, NSObject phones) {
    const id self = objc::sendSuper<Person, id()>(this, "init"_sel);
    _name = objc::Owned<NSString>::share(name);
    _phones = objc::Owned<NSObject>::share(phones);
    return self;
}

NSObject Person::valueForProperty(int32_t property) const {
    return property == kABPersonPhoneProperty ? _phones.get() : NSObject();
}

}  // namespace addressbook
