// The replaced methods of the recents list, the detail header and the swipe menu.
#include "recents/Replacements.hpp"

#include "companion/Interface.hpp"
#include "objc/Silently.hpp"
#include "platform/LayoutPass.hpp"
#include "recents/Cell.hpp"
#include "recents/DetailHeader.hpp"
#include "recents/LookupContext.hpp"
#include "recents/RecentCall.hpp"
#include "recents/SwipeMenu.hpp"

namespace {

using objc::silently;

/// Rows that are laid out again show what has become known meanwhile.
void reload(UITableView table) {
    silently([&] { table.reloadData(); });
}

/// A row whose content has left its place shows what lies behind.
void followSwipe(UITableViewCellScrollView scrollView, CGPoint offset) {
    constexpr CGFloat kAtRest = 1;
    const Class cellClass = "PHRecentsCell"_cls;
    const auto cell = scrollView.superview().as<PHRecentsCell>();
    if (!cellClass || !cell.isKindOfClass(cellClass)) {
        return;
    }
    if (offset.x > kAtRest) {
        recents::addButtonMenu(cell);
    } else {
        recents::menuIsShut(cell);
    }
}

/// Opens or shuts the swiped row.
void settle(UIScrollView scrollView, CGPoint *target) {
    if (recents::isListEditing()) {
        return;
    }
    const recents::Settling settling = recents::settleSwipe(scrollView);
    if (settling.staysOpen) {
        UIEdgeInsets inset = scrollView.contentInset();
        inset.right = settling.rightInset;
        scrollView.setContentInset(inset);
    }
    if (target) {
        *target = settling.target;
    }
}

}  // namespace

void replace_PHRecentsViewController_viewWillAppear_(PHRecentsViewController self, SEL selector,
                                                     BOOL animated) {
    objc::saved<&replace_PHRecentsViewController_viewWillAppear_>(self, selector, animated);
    reload(self.table());
}

void replace_PhoneViewController_viewWillAppear_(PhoneViewController self, SEL selector,
                                                 BOOL animated) {
    objc::saved<&replace_PhoneViewController_viewWillAppear_>(self, selector, animated);
    reload(self.table());
}

void replace_PHRecentsCell_layoutSubviews(PHRecentsCell self, SEL selector) {
    objc::saved<&replace_PHRecentsCell_layoutSubviews>(self, selector);
    const LayoutPass pass(self);
    const auto layOut = [&] { recents::layOutCell(self); };
    if (!silently([&] { LayoutPass::untilCurrent(self, layOut); })) {
        silently([&] { recents::restoreCell(self); });
    }
}

id replace_PHRecentsViewController_showCallDetail_animate_(PHRecentsViewController self,
                                                           SEL selector, NSObject call,
                                                           BOOL animate) {
    silently([&] { recents::setCurrentRecordDate(recents::RecentCall(call).date()); });
    return objc::saved<&replace_PHRecentsViewController_showCallDetail_animate_>(self, selector,
                                                                                 call, animate);
}

CGFloat replace_ABContactViewController_tableView_heightForHeaderInSection_(
    ABContactViewController self, SEL selector, UIView tableView, NSInteger section) {
    CGFloat height = 0;
    bool isOurs = false;
    silently([&] {
        if (recents::hasHeader(self, section)) {
            recents::updatePhoneNumber(self);
            height = recents::headerViewHeight();
            isOurs = true;
        }
    });
    return isOurs
               ? height
               : objc::saved<&replace_ABContactViewController_tableView_heightForHeaderInSection_>(
                     self, selector, tableView, section);
}

id replace_ABContactViewController_tableView_viewForHeaderInSection_(ABContactViewController self,
                                                                     SEL selector, UIView tableView,
                                                                     NSInteger section) {
    UIView spacer;
    silently([&] {
        if (recents::hasHeader(self, section)) {
            spacer = recents::makeHeaderSpacer();
        }
    });
    return spacer ? spacer.get()
                  : objc::saved<&replace_ABContactViewController_tableView_viewForHeaderInSection_>(
                        self, selector, tableView, section);
}

void replace_ABContactHeaderView_layoutSubviews(ABContactHeaderView self, SEL selector) {
    const LayoutPass pass(self);
    objc::saved<&replace_ABContactHeaderView_layoutSubviews>(self, selector);
    silently([&] { recents::layOutHeader(self, pass.isOutermost()); });
}

void replace_PHRecentsCell_setEditing_animated_(PHRecentsCell self, SEL selector, BOOL editing,
                                                BOOL animated) {
    objc::saved<&replace_PHRecentsCell_setEditing_animated_>(self, selector, editing, animated);
    if (editing && !recents::isListEditing()) {
        silently([&] { recents::rememberCall(self); });
    }
}

// Half a second late on purpose: the rows' own messages, which the list sends while it enters or
// leaves edit mode, still see the old state.
void replace_PHRecentsViewController_setEditing_animated_(PHRecentsViewController self,
                                                          SEL selector, BOOL editing,
                                                          BOOL animated) {
    silently([&] {
        constexpr double kDelay = 0.5;  // seconds
        objc::send<void(SEL, NSObject, double)>(
            "ZQSystemCallHistoryViewHook"_cls, "performSelector:withObject:afterDelay:"_sel,
            "setTableStatus:"_sel, NSNumber::withBool(editing != 0), kDelay);
    });
    objc::saved<&replace_PHRecentsViewController_setEditing_animated_>(self, selector, editing,
                                                                       animated);
}

void replace_PHRecentsCell_scrollViewWillEndDragging_withVelocity_targetContentOffset_(
    PHRecentsCell self, SEL selector, UIView scrollView, CGPoint velocity, CGPoint *target) {
    silently([&] { settle(scrollView.as<UIScrollView>(), target); });
    objc::saved<&replace_PHRecentsCell_scrollViewWillEndDragging_withVelocity_targetContentOffset_>(
        self, selector, scrollView, velocity, target);
}

void replace_UITableViewCellScrollView_setContentOffset_(UITableViewCellScrollView self,
                                                         SEL selector, CGPoint offset) {
    silently([&] {
        if (ios::isFrom(7.1)) {
            followSwipe(self, offset);
        }
    });
    objc::saved<&replace_UITableViewCellScrollView_setContentOffset_>(self, selector, offset);
}

void replace_ABContactHeaderDisplayView__taglineStringForContact_() { __builtin_trap(); }
