// The recents screen's hook class.
#include "recents/ZQSystemCallHistoryViewHook.hpp"

#include "recents/Actions.hpp"
#include "recents/AddressBook.hpp"
#include "recents/Cell.hpp"
#include "recents/DetailHeader.hpp"
#include "recents/HeaderViews.hpp"
#include "recents/HistoryDescription.hpp"
#include "recents/Lookup.hpp"
#include "recents/LookupContext.hpp"
#include "recents/SwipeMenu.hpp"

namespace {

using namespace recents;

// Results go to the innermost pool, as callers of a message expect.

NSString rowText(RowTexts *texts, RecentCall call) { return texts->textOf(call).autorelease(); }
ZQNumberIdentity identity(NSString number) { return identityOf(number).autorelease(); }
ZQCallRecord record(NSString number, NSDate date) { return callRecord(number, date).autorelease(); }
NSString description(NSString number, ZQNumberIdentity identity) {
    return detailLine(number, identity).autorelease();
}

/// The exception: the caller owns the result, in spite of the message's name.
NSAttributedString attributedString(NSString text) { return twoToned(text).leak(); }

void showButtons(id *showsCorrect, id *showsMark, ZQNumberIdentity identity) {
    const OfferedActions offered = offeredActions(phonePureNumber(), identity);
    if (showsCorrect) {
        *showsCorrect = NSNumber::withBool(offered.correct);
    }
    if (showsMark) {
        *showsMark = NSNumber::withBool(offered.mark);
    }
}

}  // namespace

objc::ClassBuilder<RowTexts> ZQSystemCallHistoryViewHook::define() {
    using objc::function;
    using objc::member;
    return objc::ClassBuilder<RowTexts>("ZQSystemCallHistoryViewHook", "NSObject")
        .ivar<&RowTexts::_entries>("numberInfoAndCallCacheDict")
        .classMethod("currentHook"_sel, function<&RowTexts::shared>)
        .method("init"_sel, member<&RowTexts::init>)
        .method("numberInfoAndCallCacheDict"_sel, member<&RowTexts::entries>)
        .method("setNumberInfoAndCallCacheDict:"_sel, member<&RowTexts::setEntries>)
        .method("onReloadCacheNotification:"_sel, member<&RowTexts::forgetAll>)
        .method("getInfoWithRecentCall:"_sel, objc::receiving<&rowText>)
        // Lookups
        .classMethod("getNumberIdentityWithNumber:"_sel, function<&identity>)
        .classMethod("callRecordInfoOfNumber:sysDate:"_sel, function<&record>)
        .classMethod("setCurrentRecordDate:"_sel, function<&setCurrentRecordDate>)
        .classMethod("setPhonePureNumber:"_sel, function<&setPhonePureNumber>)
        // Rules
        .classMethod("isTypeSearch:"_sel, function<&isSearchResult>)
        .classMethod("isTypeCloudMark:"_sel, function<&isCloudMark>)
        .classMethod("isTypeBrand:"_sel, function<&isBrand>)
        .classMethod("getNumberInfo:identity:"_sel, function<&description>)
        .classMethod("parseNumberInfoWithNumber:identity:"_sel, function<&twoPartDescription>)
        .classMethod("mergeDesc:diagnose:"_sel, function<&merged>)
        .classMethod("getAttributedString:"_sel, function<&attributedString>)
        .classMethod("showCorrectButton:showMarkButton:withNumberIdentity:"_sel,
                     function<&showButtons>)
        .classMethod("isContactHasMoreThanOneNumber:"_sel, function<&contactHasMoreThanOneNumber>)
        .classMethod("isTargetABPersonTableViewDataSource:"_sel, function<&isPersonTableDataSource>)
        .classMethod("getNumberFromDataSource:"_sel, function<&firstNumberIn>)
        // The buttons' actions
        .classMethod("correctButtonPressed"_sel, function<&openCorrectLink>)
        .classMethod("markButtonPressed"_sel, function<&openMarkLink>)
        .classMethod("searchNumBtnPressed"_sel, function<&openSearchLink>)
        // Views
        .classMethod("getSubviewOfView:WithTag:"_sel, function<&subviewWithTag>)
        .classMethod("addButtonMenuToCell:"_sel, function<&addButtonMenu>)
        .classMethod("setTableStatus:"_sel, function<&setTableStatus>)
        .classMethod("updatePhoneNumberFromContact:"_sel, function<&updatePhoneNumberFromContact>)
        .classMethod("getHeaderViewHeight"_sel, function<&headerViewHeight>)
        .classMethod("addNumberInfoToHeaderView:withContact:"_sel, function<&addNumberInfo>)
        .classMethod("getRecordIcon"_sel, function<&recordIcon>);
}
