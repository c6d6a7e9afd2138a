// Records and nothing but records.
#include "companion/classes/CallRecords.hpp"

#include "companion/classes/Conversions.hpp"
#include "companion/classes/Property.hpp"

namespace companion {

Class ZQCallRecord::define() {
    using Self = ZQCallRecord;
    return objc::ClassBuilder<Self>("ZQCallRecord", "NSObject")
        .method("phoneNumber"_sel, getter<&Self::_phoneNumber>)
        .method("setPhoneNumber:"_sel, setter<&Self::_phoneNumber>)
        .method("date"_sel, getter<&Self::_date>)
        .method("setDate:"_sel, setter<&Self::_date>)
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
        .method("phoneNumber"_sel, getter<&Self::_phoneNumber>)
        .method("date"_sel, getter<&Self::_date>)
        .method("actionType"_sel, getter<&Self::_actionType>)
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
