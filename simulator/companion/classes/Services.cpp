// Numbers come in as callers have them and are looked up in pure form.
#include "companion/classes/Services.hpp"

#include <cstdint>

#include "companion/Companion.hpp"
#include "companion/classes/CallRecords.hpp"
#include "companion/classes/Conversions.hpp"
#include "companion/classes/ZQNumberIdentity.hpp"
#include "objc/ClassBuilder.hpp"

namespace companion {

namespace {

bool isInAddressBook(ZQContactService *, NSString number) {
    return store().contactWithNumber(pure(number)).has_value();
}

NSArray emptyArray() { return objc::send<NSArray()>("NSMutableArray"_cls, "array"_sel); }

void add(NSArray array, NSObject object) {
    objc::send<void(NSObject)>(array, "addObject:"_sel, object);
}

/// The address book's record of a contact; nil in a process without the address book.
NSObject personRecord(const Contact &contact) {
    const NSArray values = emptyArray();
    const NSArray labels = emptyArray();
    for (const ContactNumber &number : contact.numbers) {
        add(values, string(number.number));
        add(labels, string(number.label));
    }
    const auto phones = objc::Owned<NSObject>::adopt(objc::send<NSObject(NSArray, NSArray)>(
        objc::send<id()>("ABMultiValueRecord"_cls, "alloc"_sel), "initWithValues:labels:"_sel,
        values, labels));
    return objc::Owned<NSObject>::adopt(objc::send<NSObject(NSString, NSObject)>(
                                            objc::send<id()>("ABPersonRecord"_cls, "alloc"_sel),
                                            "initWithName:phones:"_sel, string(contact.name),
                                            phones.get()))
        .autorelease();
}

const void *personWithNumber(ZQContactService *, NSString number) {
    const auto contact = store().contactWithNumber(pure(number));
    return contact ? personRecord(*contact).get() : nullptr;
}

void insertOrUpdate(ZQCallRecordService *, ZQNumberIdentity *identity) {
    if (identity != nullptr) {
        store().storeIdentity(identity->record());
    }
}

ZQCallRecord *recordForNumber(ZQCallRecordService *, NSString number, NSDate date) {
    if (date.get() == nullptr) {
        return nullptr;
    }
    const auto call = store().storedCall(pure(number), seconds(date));
    return call ? ZQCallRecord::withRecord(*call) : nullptr;
}

NSArray historyOfNumber(ZQSystemHistoryService *, NSString number, NSInteger most) {
    const NSArray result = emptyArray();
    for (const HistoryEntry &entry : store().history(pure(number), static_cast<int>(most))) {
        add(result, handle(ZQSystemHistoryRecord::withRecord(entry)));
    }
    return result;
}

bool isBlackListed(NSString number, bool inAddressBook) {
    return store().isBlackListed(pure(number), inAddressBook);
}

// Counts go to the store at once; there is no batch that could be sent early or late.
void count(ZQPingBackService *, NSString key, bool /*immediately*/) { store().count(utf8(key)); }

bool g_preferencesAreInitialized = false;

void initializePreferences() {
    ++journal().preferenceInitializations;
    g_preferencesAreInitialized = true;
}

/// Nil until the preferences are initialised.
ZQPreference *currentPreference() {
    return g_preferencesAreInitialized ? shared<ZQPreference>() : nullptr;
}

bool showNumberArea(ZQPreference *) { return store().showNumberArea(); }

void setShowNumberArea(ZQPreference *, bool shown) { store().setShowNumberArea(shown); }

}  // namespace

Class ZQContactService::define() {
    return objc::ClassBuilder<ZQContactService>("ZQContactService", "NSObject")
        .classMethod("currentService"_sel, objc::function<&shared<ZQContactService>>)
        .method("isInAddressBook:"_sel, objc::receiving<&isInAddressBook>)
        .method("getPersonWithRecordID:"_sel, objc::receiving<&personWithNumber>)
        .finish();
}

Class ZQCallRecordService::define() {
    return objc::ClassBuilder<ZQCallRecordService>("ZQCallRecordService", "NSObject")
        .method("insertOrUpdateNumberIdentityWithNumber:"_sel, objc::receiving<&insertOrUpdate>)
        .method("getRecordForNumber:atSysDate:"_sel, objc::receiving<&recordForNumber>)
        .finish();
}

Class ZQSystemHistoryService::define() {
    return objc::ClassBuilder<ZQSystemHistoryService>("ZQSystemHistoryService", "NSObject")
        .classMethod("defaultService"_sel, objc::function<&shared<ZQSystemHistoryService>>)
        .method("getAllCallHistoryByPhoneNumber:fromRecentCalls:"_sel,
                objc::receiving<&historyOfNumber>)
        .finish();
}

Class ZQBlackListService::define() {
    return objc::ClassBuilder<ZQBlackListService>("ZQBlackListService", "NSObject")
        .classMethod("isCallHittedBlackList:inAddressBook:"_sel, objc::function<&isBlackListed>)
        .finish();
}

Class ZQPingBackService::define() {
    return objc::ClassBuilder<ZQPingBackService>("ZQPingBackService", "NSObject")
        .classMethod("currentService"_sel, objc::function<&shared<ZQPingBackService>>)
        .method("asyncDoPingBackCount:immediately:"_sel, objc::receiving<&count>)
        .finish();
}

Class ZQPreference::define() {
    return objc::ClassBuilder<ZQPreference>("ZQPreference", "NSObject")
        .classMethod("InitializePreferences"_sel, objc::function<&initializePreferences>)
        .classMethod("currentPreference"_sel, objc::function<&currentPreference>)
        .method("showNumberArea"_sel, objc::receiving<&showNumberArea>)
        .method("setShowNumberArea:"_sel, objc::receiving<&setShowNumberArea>)
        .finish();
}

}  // namespace companion
