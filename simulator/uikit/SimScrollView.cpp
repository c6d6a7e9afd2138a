// UIScrollView; what a finger does to it is in SimScrollViewDrag.cpp.
#include "uikit/SimScrollView.hpp"

#include <algorithm>

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

SimScrollView::~SimScrollView() { standStill(); }

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

CGPoint SimScrollView::nearestRest(CGPoint offset) const {
    const CGSize room = bounds().size;
    const CGFloat right = contentSize_.width + contentInset_.right - room.width;
    const CGFloat bottom = contentSize_.height + contentInset_.bottom - room.height;
    return {std::max(-contentInset_.left, std::min(offset.x, right)),
            std::max(-contentInset_.top, std::min(offset.y, bottom))};
}

void SimScrollView::define() {
    using objc::member;
    using S = SimScrollView;
    sim::defined(
        "UIScrollView",
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
            .method("alwaysBounceVertical"_sel, member<&S::alwaysBounceVertical>)
            .method("setAlwaysBounceVertical:"_sel, member<&S::setAlwaysBounceVertical>)
            .method("alwaysBounceHorizontal"_sel, member<&S::alwaysBounceHorizontal>)
            .method("setAlwaysBounceHorizontal:"_sel, member<&S::setAlwaysBounceHorizontal>)
            .method("delaysContentTouches"_sel, member<&S::delaysContentTouches>)
            .method("setDelaysContentTouches:"_sel, member<&S::setDelaysContentTouches>)
            .method("isDragging"_sel, member<&S::isDragging>)
            .method("isDecelerating"_sel, member<&S::isDecelerating>)
            .method("panShouldBegin:"_sel, member<&S::panShouldBegin>)
            .method("touchesShouldCancelInContentView:"_sel,
                    member<&S::touchesShouldCancelInContentView>)
            .method("offsetUnderFinger:"_sel, member<&S::offsetUnderFinger>)
            .method("delegate"_sel, member<&S::delegate>)
            .method("setDelegate:"_sel, member<&S::setDelegate>)
            .finish());
}
