// The replaced methods of the recents list, the detail header and the swipe menu, and the slots of
// what they replaced.
#pragma once

#include "objc/Replacement.hpp"
#include "platform/PhoneApp.hpp"
#include "platform/Substrate.hpp"

ZQ_EXPORT void replace_PHRecentsViewController_viewWillAppear_(PHRecentsViewController self,
                                                               SEL selector, BOOL animated);
ZQ_EXPORT void replace_PhoneViewController_viewWillAppear_(PhoneViewController self, SEL selector,
                                                           BOOL animated);
ZQ_EXPORT void replace_PHRecentsCell_layoutSubviews(PHRecentsCell self, SEL selector);
ZQ_EXPORT id replace_PHRecentsViewController_showCallDetail_animate_(PHRecentsViewController self,
                                                                     SEL selector, NSObject call,
                                                                     BOOL animate);
ZQ_EXPORT CGFloat replace_ABContactViewController_tableView_heightForHeaderInSection_(
    ABContactViewController self, SEL selector, UIView tableView, NSInteger section);
ZQ_EXPORT id replace_ABContactViewController_tableView_viewForHeaderInSection_(
    ABContactViewController self, SEL selector, UIView tableView, NSInteger section);
ZQ_EXPORT void replace_ABContactHeaderView_layoutSubviews(ABContactHeaderView self, SEL selector);
ZQ_EXPORT void replace_PHRecentsCell_setEditing_animated_(PHRecentsCell self, SEL selector,
                                                          BOOL editing, BOOL animated);
ZQ_EXPORT void replace_PHRecentsViewController_setEditing_animated_(PHRecentsViewController self,
                                                                    SEL selector, BOOL editing,
                                                                    BOOL animated);
ZQ_EXPORT void replace_PHRecentsCell_scrollViewWillEndDragging_withVelocity_targetContentOffset_(
    PHRecentsCell self, SEL selector, UIView scrollView, CGPoint velocity, CGPoint *target);
ZQ_EXPORT void replace_UITableViewCellScrollView_setContentOffset_(UITableViewCellScrollView self,
                                                                   SEL selector, CGPoint offset);

/// Never to be installed: calling it is a mistake, and it traps.
ZQ_EXPORT void replace_ABContactHeaderDisplayView__taglineStringForContact_();
