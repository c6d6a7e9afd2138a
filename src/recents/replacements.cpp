// The recents list, the detail header and the swipe menu are hooked, but left as the Phone
// application has them: every replacement calls through.
#include "recents/replacements.hpp"

void replace_PHRecentsViewController_viewWillAppear_(PHRecentsViewController self, SEL selector,
                                                     BOOL animated) {
    saved_PHRecentsViewController_viewWillAppear_(self, selector, animated);
}

void replace_PhoneViewController_viewWillAppear_(PhoneViewController self, SEL selector,
                                                 BOOL animated) {
    saved_PhoneViewController_viewWillAppear_(self, selector, animated);
}

void replace_PHRecentsCell_layoutSubviews(PHRecentsCell self, SEL selector) {
    saved_PHRecentsCell_layoutSubviews(self, selector);
}

id replace_PHRecentsViewController_showCallDetail_animate_(PHRecentsViewController self,
                                                           SEL selector, NSObject call,
                                                           BOOL animate) {
    return saved_PHRecentsViewController_showCallDetail_animate_(self, selector, call, animate);
}

CGFloat replace_ABContactViewController_tableView_heightForHeaderInSection_(
    ABContactViewController self, SEL selector, UIView tableView, NSInteger section) {
    return saved_ABContactViewController_tableView_heightForHeaderInSection_(self, selector,
                                                                             tableView, section);
}

id replace_ABContactViewController_tableView_viewForHeaderInSection_(ABContactViewController self,
                                                                     SEL selector, UIView tableView,
                                                                     NSInteger section) {
    return saved_ABContactViewController_tableView_viewForHeaderInSection_(self, selector,
                                                                           tableView, section);
}

void replace_ABContactHeaderView_layoutSubviews(ABContactHeaderView self, SEL selector) {
    saved_ABContactHeaderView_layoutSubviews(self, selector);
}

void replace_PHRecentsCell_setEditing_animated_(PHRecentsCell self, SEL selector, BOOL editing,
                                                BOOL animated) {
    saved_PHRecentsCell_setEditing_animated_(self, selector, editing, animated);
}

void replace_PHRecentsViewController_setEditing_animated_(PHRecentsViewController self,
                                                          SEL selector, BOOL editing,
                                                          BOOL animated) {
    saved_PHRecentsViewController_setEditing_animated_(self, selector, editing, animated);
}

void replace_PHRecentsCell_scrollViewWillEndDragging_withVelocity_targetContentOffset_(
    PHRecentsCell self, SEL selector, UIView scrollView, CGPoint velocity, CGPoint *target) {
    saved_PHRecentsCell_scrollViewWillEndDragging_withVelocity_targetContentOffset_(
        self, selector, scrollView, velocity, target);
}

void replace_UITableViewCellScrollView_setContentOffset_(UITableViewCellScrollView self,
                                                         SEL selector, CGPoint offset) {
    saved_UITableViewCellScrollView_setContentOffset_(self, selector, offset);
}

void replace_ABContactHeaderDisplayView__taglineStringForContact_() { __builtin_trap(); }
