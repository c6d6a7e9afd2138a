// Every method of the Phone application that is replaced, in the order of installation: class,
// selector, the systems it belongs to, and what takes its place.
#pragma once

#include "dialer/Replacements.hpp"
#include "hook/HookRow.hpp"
#include "incall/Replacements.hpp"
#include "recents/Replacements.hpp"

namespace hook {

inline constexpr std::array kRows{
    row(Group::Dialer, "DialerController", "viewWillAppear:"_sel, Gate::Before80,
        with<&replace_DialerController_viewWillAppear>),
    row(Group::Dialer, "DialerController", "viewWillDisappear:"_sel, Gate::Before80,
        with<&replace_DialerController_viewWillDisappear>),
    row(Group::Dialer, "DialerController", "newPersonViewController:didCompleteWithNewPerson:"_sel,
        Gate::Before80,
        with<&replace_DialerController_newPersonViewController_didCompleteWithNewPerson_>),
    row(Group::Dialer, "PHHandsetDialerLCDView", "setName:numberLabel:"_sel, Gate::Before80,
        with<&replace_PHHandsetDialerLCDView_setName_numberLabel_>),
    row(Group::Dialer, "PHHandsetDialerLCDView", "touchesBegan:withEvent:"_sel, Gate::Before80,
        with<&replace_PHHandsetDialerLCDView_touchesBegan_withEvent_>),
    row(Group::Dialer, "PHHandsetDialerLCDView", "touchesCancelled:withEvent:"_sel, Gate::Before80,
        with<&replace_PHHandsetDialerLCDView_touchesCancelled_withEvent_>),
    row(Group::InCall, "TUTelephonyCall", "initWithCall:"_sel, Gate::Within7,
        with<&replace_TUTelephonyCall_initWithCall_>),
    row(Group::InCall, "TUTelephonyCall", "dealloc"_sel, Gate::Within7,
        with<&replace_TUTelephonyCall_dealloc>),
    row(Group::InCall, "InCallLCDField", "layoutSubviews"_sel, Gate::Within7,
        with<&replace_InCallLCDField_layoutSubviews>),
    row(Group::InCall, "InCallLCDView", "layoutSubviews"_sel, Gate::Within7,
        with<&replace_InCallLCDView_layoutSubviews>),
    row(Group::InCall, "InCallController", "_callStatusChangedNotification:"_sel, Gate::Within7,
        with<&replace_InCallController__callStatusChangedNotification_>),
    row(Group::InCall, "TPLCDTextView", "setCenterText:"_sel, Gate::Within70,
        with<&replace_TPLCDTextView_setCenterText_>),
    row(Group::InCall, "TPWallpaperView", "setContactImage:animated:"_sel, Gate::Within70,
        with<&replace_TPWallpaperView_setContactImage_animated_>),
    row(Group::InCall, "TPLCDTextView", "setLCDTextFont:"_sel, Gate::Within7OnShortScreen,
        with<&replace_TPLCDTextView_setLCDTextFont_>),
    row(Group::Recents, "PHRecentsViewController", "viewWillAppear:"_sel, Gate::From80,
        with<&replace_PHRecentsViewController_viewWillAppear_>),
    row(Group::Recents, "PHRecentsCell", "layoutSubviews"_sel, Gate::From80,
        with<&replace_PHRecentsCell_layoutSubviews>),
    row(Group::Recents, "PhoneViewController", "viewWillAppear:"_sel, Gate::Within7,
        with<&replace_PhoneViewController_viewWillAppear_>),
    row(Group::Recents, "PHRecentsViewController", "showCallDetail:animate:"_sel, Gate::Within7,
        with<&replace_PHRecentsViewController_showCallDetail_animate_>),
    row(Group::Recents, "PHRecentsCell", "layoutSubviews"_sel, Gate::Within7,
        with<&replace_PHRecentsCell_layoutSubviews>),
    row(Group::Recents, "ABContactViewController", "tableView:heightForHeaderInSection:"_sel,
        Gate::Within7, with<&replace_ABContactViewController_tableView_heightForHeaderInSection_>),
    row(Group::Recents, "ABContactViewController", "tableView:viewForHeaderInSection:"_sel,
        Gate::Within7, with<&replace_ABContactViewController_tableView_viewForHeaderInSection_>),
    row(Group::Recents, "ABContactHeaderView", "layoutSubviews"_sel, Gate::Within7,
        with<&replace_ABContactHeaderView_layoutSubviews>),
    row(Group::Recents, "PHRecentsCell", "setEditing:animated:"_sel, Gate::Within7,
        with<&replace_PHRecentsCell_setEditing_animated_>),
    row(Group::Recents, "PHRecentsViewController", "setEditing:animated:"_sel, Gate::Within7,
        with<&replace_PHRecentsViewController_setEditing_animated_>),
    row(Group::Recents, "PHRecentsCell",
        "scrollViewWillEndDragging:withVelocity:targetContentOffset:"_sel, Gate::Within7,
        with<&replace_PHRecentsCell_scrollViewWillEndDragging_withVelocity_targetContentOffset_>),
    row(Group::Recents, "UITableViewCellScrollView", "setContentOffset:"_sel, Gate::Within7,
        with<&replace_UITableViewCellScrollView_setContentOffset_>),
};

inline constexpr size_t kRepeatedRow = firstRepeated(kRows);  // the compiler shows it
static_assert(kRepeatedRow == kRows.size(),
              "the row of this number, counted from 0, replaces what an earlier one does: mend or "
              "merge them");
#if defined(OBJC_LEDGER)
inline constexpr auto kIsListed = [](const HookRow &row) {
    return members::isReplaceable(row.className, row.selectorName, row.encoding);
};
inline constexpr size_t kUnlistedRow =
    static_cast<size_t>(std::ranges::find_if_not(kRows, kIsListed) - kRows.begin());
static_assert(
    kUnlistedRow == kRows.size(),
    "the method of the row of this number, counted from 0, is not in src/members/Apple.hpp "
    "with the replacement's types: list it there");
#endif

}  // namespace hook
