// The views' class messages of the recents' hook class.
#include "recents/view_methods.hpp"

#include "recents/address_book.hpp"
#include "recents/cell.hpp"
#include "recents/detail_header.hpp"
#include "recents/swipe_menu.hpp"

namespace recents {

objc::ClassBuilder<ZQSystemCallHistoryViewHook> withViewMethods(
    objc::ClassBuilder<ZQSystemCallHistoryViewHook> hookClass) {
    using objc::function;
    return std::move(hookClass)
        .classMethod("getSubviewOfView:WithTag:"_sel, function<&subviewWithTag>)
        .classMethod("addButtonMenuToCell:"_sel, function<&addButtonMenu>)
        .classMethod("setTableStatus:"_sel, function<&setTableStatus>)
        .classMethod("updatePhoneNumberFromContact:"_sel, function<&updatePhoneNumberFromContact>)
        .classMethod("getHeaderViewHeight"_sel, function<&headerViewHeight>)
        .classMethod("addNumberInfoToHeaderView:withContact:"_sel, function<&addNumberInfo>)
        .classMethod("getRecordIcon"_sel, function<&recordIcon>)
        .classMethod("isContactHasMoreThanOneNumber:"_sel, function<&contactHasMoreThanOneNumber>)
        .classMethod("isTargetABPersonTableViewDataSource:"_sel, function<&isPersonTableDataSource>)
        .classMethod("getNumberFromDataSource:"_sel, function<&firstNumberIn>);
}

}  // namespace recents
