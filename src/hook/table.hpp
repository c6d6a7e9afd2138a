// Every method of the Phone application that is replaced, in the order of installation: class,
// selector, the systems it belongs to, and the name that replacement and slot share.
#pragma once

#include "dialer/replacements.hpp"
#include "hook/HookRow.hpp"
#include "incall/replacements.hpp"
#include "recents/replacements.hpp"

namespace hook {

// Pasted rather than written twice, so a replacement cannot be given another one's slot.
#define ZQ_HOOK(name) (Hooked<&replace_##name, &saved_##name>{})

inline constexpr std::array kRows{
    row(Group::Dialer, "DialerController", "viewWillAppear:"_sel, Gate::Before80,
        ZQ_HOOK(DialerController_viewWillAppear)),
    row(Group::Dialer, "DialerController", "viewWillDisappear:"_sel, Gate::Before80,
        ZQ_HOOK(DialerController_viewWillDisappear)),
    row(Group::Dialer, "DialerController", "newPersonViewController:didCompleteWithNewPerson:"_sel,
        Gate::Before80,
        ZQ_HOOK(DialerController_newPersonViewController_didCompleteWithNewPerson_)),
    row(Group::Dialer, "PHHandsetDialerLCDView", "setName:numberLabel:"_sel, Gate::Before80,
        ZQ_HOOK(PHHandsetDialerLCDView_setName_numberLabel_)),
    row(Group::Dialer, "PHHandsetDialerLCDView", "touchesBegan:withEvent:"_sel, Gate::Before80,
        ZQ_HOOK(PHHandsetDialerLCDView_touchesBegan_withEvent_)),
    row(Group::Dialer, "PHHandsetDialerLCDView", "touchesCancelled:withEvent:"_sel, Gate::Before80,
        ZQ_HOOK(PHHandsetDialerLCDView_touchesCancelled_withEvent_)),
    row(Group::InCall, "TUTelephonyCall", "initWithCall:"_sel, Gate::Within7,
        ZQ_HOOK(TUTelephonyCall_initWithCall_)),
    row(Group::InCall, "TUTelephonyCall", "dealloc"_sel, Gate::Within7,
        ZQ_HOOK(TUTelephonyCall_dealloc)),
    row(Group::InCall, "InCallLCDField", "layoutSubviews"_sel, Gate::Within7,
        ZQ_HOOK(InCallLCDField_layoutSubviews)),
    row(Group::InCall, "InCallLCDView", "layoutSubviews"_sel, Gate::Within7,
        ZQ_HOOK(InCallLCDView_layoutSubviews)),
    row(Group::InCall, "InCallController", "_callStatusChangedNotification:"_sel, Gate::Within7,
        ZQ_HOOK(InCallController__callStatusChangedNotification_)),
    row(Group::InCall, "TPLCDTextView", "setCenterText:"_sel, Gate::Within70,
        ZQ_HOOK(TPLCDTextView_setCenterText_)),
    row(Group::InCall, "TPWallpaperView", "setContactImage:animated:"_sel, Gate::Within70,
        ZQ_HOOK(TPWallpaperView_setContactImage_animated_)),
    row(Group::InCall, "TPLCDTextView", "setLCDTextFont:"_sel, Gate::Within7OnShortScreen,
        ZQ_HOOK(TPLCDTextView_setLCDTextFont_)),
    row(Group::Recents, "PHRecentsViewController", "viewWillAppear:"_sel, Gate::From80,
        ZQ_HOOK(PHRecentsViewController_viewWillAppear_)),
    row(Group::Recents, "PHRecentsCell", "layoutSubviews"_sel, Gate::From80,
        ZQ_HOOK(PHRecentsCell_layoutSubviews)),
    row(Group::Recents, "PhoneViewController", "viewWillAppear:"_sel, Gate::Within7,
        ZQ_HOOK(PhoneViewController_viewWillAppear_)),
    row(Group::Recents, "PHRecentsViewController", "showCallDetail:animate:"_sel, Gate::Within7,
        ZQ_HOOK(PHRecentsViewController_showCallDetail_animate_)),
    row(Group::Recents, "PHRecentsCell", "layoutSubviews"_sel, Gate::Within7,
        ZQ_HOOK(PHRecentsCell_layoutSubviews)),
    row(Group::Recents, "ABContactViewController", "tableView:heightForHeaderInSection:"_sel,
        Gate::Within7, ZQ_HOOK(ABContactViewController_tableView_heightForHeaderInSection_)),
    row(Group::Recents, "ABContactViewController", "tableView:viewForHeaderInSection:"_sel,
        Gate::Within7, ZQ_HOOK(ABContactViewController_tableView_viewForHeaderInSection_)),
    row(Group::Recents, "ABContactHeaderView", "layoutSubviews"_sel, Gate::Within7,
        ZQ_HOOK(ABContactHeaderView_layoutSubviews)),
    row(Group::Recents, "PHRecentsCell", "setEditing:animated:"_sel, Gate::Within7,
        ZQ_HOOK(PHRecentsCell_setEditing_animated_)),
    row(Group::Recents, "PHRecentsViewController", "setEditing:animated:"_sel, Gate::Within7,
        ZQ_HOOK(PHRecentsViewController_setEditing_animated_)),
    row(Group::Recents, "PHRecentsCell",
        "scrollViewWillEndDragging:withVelocity:targetContentOffset:"_sel, Gate::Within7,
        ZQ_HOOK(PHRecentsCell_scrollViewWillEndDragging_withVelocity_targetContentOffset_)),
    row(Group::Recents, "UITableViewCellScrollView", "setContentOffset:"_sel, Gate::Within7,
        ZQ_HOOK(UITableViewCellScrollView_setContentOffset_)),
};

#undef ZQ_HOOK

static_assert(noDuplicates(kRows));

}  // namespace hook
