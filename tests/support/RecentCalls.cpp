// Recent calls as the Phone application hands them around.
#include "support/RecentCalls.hpp"

#include "objc/ClassBuilder.hpp"

namespace test {
namespace {

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
    return objc::ClassBuilder<T>(name, "NSObject").template getter<&StubCall::_date>("date");
}

void registerClasses() {
    define<StubCallIos7>("StubCallIos7")
        .getter<&StubCall::_number>("destination")
        .getter<&StubCall::_status>("type")
        .getter<&StubCall::_contact>("addressBookRecord")
        .finish();
    define<StubCallAddressBookless>("StubCallAddressBookless")
        .getter<&StubCall::_number>("destination")
        .getter<&StubCall::_contact>("addressBookDestination")
        .finish();
    define<StubCallIos8>("StubCallIos8")
        .getter<&StubCall::_number>("callerId")
        .getter<&StubCall::_status>("callStatus")
        .getter<&StubCall::_contactId>("addressBookRecordId")
        .finish();
    define<StubCallBare>("StubCallBare").finish();
}

objc::Owned<NSObject> makeCall(CallKind kind) {
    constexpr const char *kNames[] = {"StubCallIos7", "StubCallAddressBookless", "StubCallIos8",
                                      "StubCallBare"};
    const Class cls = objc::findClass(kNames[static_cast<size_t>(kind)]);
    return objc::Owned<NSObject>::adopt(NSObject(objc::send<id()>(cls, "new"_sel)));
}

}  // namespace

objc::Owned<NSObject> recentCall(CallKind kind, const RecentCallFacts &facts) {
    if (!objc::findClass("StubCallBare")) {
        registerClasses();
    }
    auto made = makeCall(kind);
    StubCall *const call = objc::Wire<StubCall *>::from(made.get());
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
    return made;
}

recents::RecentCall asCall(const objc::Owned<NSObject> &call) {
    return call.get().as<recents::RecentCall>();
}

}  // namespace test
