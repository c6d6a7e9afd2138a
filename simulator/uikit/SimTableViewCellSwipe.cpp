// UITableViewCell under a finger that swipes it, as iOS 7 has it: the content and, right of it, the
// delete confirmation lie in the cell's scroll view and move with its offset.
#include <utility>

#include "uikit/Foundation.hpp"
#include "uikit/SimDeleteConfirmation.hpp"
#include "uikit/SimTableView.hpp"
#include "uikit/SimTableViewCell.hpp"

using sim::handle;

namespace {

constexpr NSInteger kDeleteStyle = 1;
constexpr auto kCommit = "tableView:commitEditingStyle:forRowAtIndexPath:"_sel;

void setRightInset(SimScrollView *view, CGFloat points) {
    UIEdgeInsets inset = view->contentInset();
    inset.right = points;
    view->setContentInset(inset);
}

}  // namespace

bool SimTableViewCell::canBeSwiped() const {
    const SimTableView *const owner = table();
    const NSObject source = owner != nullptr ? owner->dataSource() : NSObject();
    return scrollView_ && (isSwiped() || !editing_) && source != nullptr &&
           source.respondsToSelector(kCommit);
}

void SimTableViewCell::scrollViewWillBeginDragging(SimScrollView *) {
    if (isSwiped()) {
        return;
    }
    confirmation_ = SimDeleteConfirmationView::make(bounds().size, handle<NSObject>(this));
    scrollView_->addSubview(confirmation_);
    objc::send<void(bool, bool)>(id(*this), "setEditing:animated:"_sel, true, true);
}

void SimTableViewCell::scrollViewDidEndDecelerating(SimScrollView *scrollView) {
    if (scrollView->contentOffset().x <= 0) {
        closeSwipe();
    }
}

void SimTableViewCell::scrollViewWillEndDragging(SimScrollView *scrollView, CGPoint velocity,
                                                 CGPoint *target) {
    const CGFloat width = isSwiped() ? swipeWidth() : 0;
    const bool halfOpen = scrollView->contentOffset().x >= width / 2;
    const bool staysOpen = velocity.x > 0 || (velocity.x == 0 && halfOpen);
    setRightInset(scrollView, staysOpen ? width : 0);
    *target = {staysOpen ? width : 0, 0};
}

void SimTableViewCell::foldSwipe() {
    if (isSwiped()) {
        setRightInset(scrollView(), 0);
        scrollView()->runTo({});
    }
}

void SimTableViewCell::closeSwipe() {
    if (!isSwiped()) {
        return;
    }
    scrollView()->standStill();
    setRightInset(scrollView(), 0);
    objc::send<void(CGPoint)>(scrollView_, "setContentOffset:"_sel, CGPoint{});
    const auto confirmation = std::exchange(confirmation_, {});
    confirmation->removeFromSuperview();
    objc::send<void(bool, bool)>(id(*this), "setEditing:animated:"_sel, false, true);
}

void SimTableViewCell::deletePressed(NSObject) {
    SimTableView *const owner = table();
    const NSObject source = owner != nullptr ? owner->dataSource() : NSObject();
    if (source != nullptr && source.respondsToSelector(kCommit)) {
        objc::send<void(SimTableView *, NSInteger, NSObject)>(source, kCommit, owner, kDeleteStyle,
                                                              owner->indexPathForCell(this));
    }
}
