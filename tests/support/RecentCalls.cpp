// Recent calls as the Phone application hands them around.
#include "support/RecentCalls.hpp"

#include "companion/classes/Property.hpp"

namespace test {
namespace {

using companion::getter;

struct StubCall : objc::Instance {
    objc::Owned<NSString> _number;
    objc::Owned<NSDate> _date;
    objc::Owned<NSObject> _contact;
    int32_t _status = 0, _contactId = 0;
};
struct StubCallIos7 : StubCall {};
struct StubCallAddressBookless : StubCall {};
struct StubCallIos8 : StubCall {};
struct StubCallBare : StubCall {};

template <class T>
objc::ClassBuilder<T> define(const char *name) {
    return objc::ClassBuilder<T>(name, "NSObject").method("date"_sel, getter<&StubCall::_date>);
}

void registerClasses() {
    define<StubCallIos7>("StubCallIos7")
        .method("destination"_sel, getter<&StubCall::_number>)
        .method("type"_sel, getter<&StubCall::_status>)
        .method("addressBookRecord"_sel, getter<&StubCall::_contact>)
        .finish();
    define<StubCallAddressBookless>("StubCallAddressBookless")
        .method("destination"_sel, getter<&StubCall::_number>)
        .method("addressBookDestination"_sel, getter<&StubCall::_contact>)
        .finish();
    define<StubCallIos8>("StubCallIos8")
        .method("callerId"_sel, getter<&StubCall::_number>)
        .method("callStatus"_sel, getter<&StubCall::_status>)
        .method("addressBookRecordId"_sel, getter<&StubCall::_contactId>)
        .finish();
    define<StubCallBare>("StubCallBare").finish();
}

StubCall *makeCall(CallKind kind) {
    switch (kind) {
    case CallKind::Ios7:
        return objc::make<StubCallIos7>();
    case CallKind::AddressBookless:
        return objc::make<StubCallAddressBookless>();
    case CallKind::Ios8:
        return objc::make<StubCallIos8>();
    case CallKind::Bare:
        return objc::make<StubCallBare>();
    }
    return nullptr;
}

}  // namespace

objc::Owned<NSObject> recentCall(CallKind kind, const RecentCallFacts &facts) {
    if (!objc::findClass("StubCallBare")) {
        registerClasses();
    }
    StubCall *const call = makeCall(kind);
    if (facts.number) {
        call->_number = objc::Owned<NSString>::adopt(
            objc::send<NSString()>(NSString::withUTF8String(facts.number), "mutableCopy"_sel));
    }
    if (facts.date) {
        call->_date = objc::Owned<NSDate>::share(objc::send<NSDate(double)>(
            "NSDate"_cls, "dateWithTimeIntervalSince1970:"_sel, *facts.date));
    }
    if (facts.contact != 0) {
        call->_contact = objc::create<NSObject>();
    }
    call->_status = facts.status;
    call->_contactId = facts.contact;
    return objc::Owned<NSObject>::adopt(NSObject(*call));
}

recents::RecentCall asCall(const objc::Owned<NSObject> &call) {
    return call.get().as<recents::RecentCall>();
}

}  // namespace test
