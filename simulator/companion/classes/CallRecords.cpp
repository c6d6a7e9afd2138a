// Records and nothing but records.
#include "companion/classes/CallRecords.hpp"

#include "companion/classes/Conversions.hpp"
#include "objc/ClassBuilder.hpp"

namespace companion {

Class ZQCallRecord::define() {
    using Self = ZQCallRecord;
    return objc::ClassBuilder<Self>("ZQCallRecord", "NSObject")
        .property<&Self::_phoneNumber, objc::Keeping::Copied>("phoneNumber")
        .property<&Self::_date>("date")
        .finish();
}

ZQCallRecord *ZQCallRecord::withRecord(const StoredCall &call) {
    auto *const record = autoreleased<ZQCallRecord>();
    record->_phoneNumber = objc::Owned<NSString>::share(string(call.number));
    record->_date = objc::Owned<NSDate>::share(companion::date(call.date));
    return record;
}

Class ZQSystemHistoryRecord::define() {
    using Self = ZQSystemHistoryRecord;
    return objc::ClassBuilder<Self>("ZQSystemHistoryRecord", "NSObject")
        .getter<&Self::_phoneNumber>("phoneNumber")
        .getter<&Self::_date>("date")
        .getter<&Self::_actionType>("actionType")
        .finish();
}

ZQSystemHistoryRecord *ZQSystemHistoryRecord::withRecord(const HistoryEntry &entry) {
    auto *const record = autoreleased<ZQSystemHistoryRecord>();
    record->_phoneNumber = objc::Owned<NSString>::share(string(entry.number));
    record->_date = objc::Owned<NSDate>::share(companion::date(entry.date));
    record->_actionType = entry.action;
    return record;
}

}  // namespace companion
