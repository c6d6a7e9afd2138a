// UIScrollView.
#include "uikit/SimScrollView.hpp"

#include <algorithm>

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace {

int g_draggedCount = 0;

}  // namespace

id SimScrollView::initWithFrame(CGRect frame) {
    objc::sendSuper<SimScrollView, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    setClipsToBounds(true);
    return *this;
}

void SimScrollView::setContentOffset(CGPoint offset) {
    if (offset == bounds().origin) {
        return;
    }
    setBounds({offset, bounds().size});
    setNeedsLayout();
    tell("scrollViewDidScroll:"_sel);
}

void SimScrollView::tell(SEL message) {
    const NSObject delegate(delegate_);
    if (delegate != nullptr && delegate.respondsToSelector(message)) {
        objc::Message<void(SimScrollView *)>::send(delegate, message, this);
    }
}

void SimScrollView::setContentOffsetAnimated(CGPoint offset, bool) {
    objc::send<void(CGPoint)>(id(*this), "setContentOffset:"_sel, offset);
}

CGPoint SimScrollView::nearestRest(CGPoint offset) const {
    const CGSize room = bounds().size;
    const CGFloat right = contentSize_.width + contentInset_.right - room.width;
    const CGFloat bottom = contentSize_.height + contentInset_.bottom - room.height;
    return {std::max(-contentInset_.left, std::min(offset.x, right)),
            std::max(-contentInset_.top, std::min(offset.y, bottom))};
}

bool SimScrollView::isAnyDragging() { return g_draggedCount > 0; }

void SimScrollView::beginDragging() {
    g_draggedCount += dragging_ ? 0 : 1;
    dragging_ = true;
}

void SimScrollView::cancelDragging() {
    g_draggedCount -= dragging_ ? 1 : 0;
    dragging_ = false;
}

void SimScrollView::endDragging(CGPoint velocity) {
    CGPoint target = contentOffset();
    cancelDragging();
    constexpr auto kWillEnd = "scrollViewWillEndDragging:withVelocity:targetContentOffset:"_sel;
    const NSObject delegate(delegate_);
    if (delegate != nullptr && delegate.respondsToSelector(kWillEnd)) {
        objc::send<void(SimScrollView *, CGPoint, CGPoint *)>(delegate, kWillEnd, this, velocity,
                                                              &target);
    }
    objc::send<void(CGPoint)>(id(*this), "setContentOffset:"_sel, nearestRest(target));
}

void SimScrollView::define() {
    using objc::member;
    using S = SimScrollView;
    sim::defined("UIScrollView",
                 objc::ClassBuilder<S>("UIScrollView", "UIView")
                     .method("initWithFrame:"_sel, member<&S::initWithFrame>)
                     .method("contentOffset"_sel, member<&S::contentOffset>)
                     .method("setContentOffset:"_sel, member<&S::setContentOffset>)
                     .method("setContentOffset:animated:"_sel, member<&S::setContentOffsetAnimated>)
                     .method("contentSize"_sel, member<&S::contentSize>)
                     .method("setContentSize:"_sel, member<&S::setContentSize>)
                     .method("contentInset"_sel, member<&S::contentInset>)
                     .method("setContentInset:"_sel, member<&S::setContentInset>)
                     .method("isScrollEnabled"_sel, member<&S::isScrollEnabled>)
                     .method("setScrollEnabled:"_sel, member<&S::setScrollEnabled>)
                     .method("isDragging"_sel, member<&S::isDragging>)
                     .method("delegate"_sel, member<&S::delegate>)
                     .method("setDelegate:"_sel, member<&S::setDelegate>)
                     .finish());
}
