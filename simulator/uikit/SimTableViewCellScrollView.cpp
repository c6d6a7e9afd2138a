// UITableViewCellScrollView.
#include "uikit/SimTableViewCellScrollView.hpp"

#include <algorithm>
#include <cmath>

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimTableViewCell.hpp"

id SimTableViewCellScrollView::initWithFrame(CGRect frame) {
    objc::sendSuper<SimTableViewCellScrollView, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    setAlwaysBounceHorizontal(true);
    return *this;
}

bool SimTableViewCellScrollView::panShouldBegin(CGPoint way) {
    const auto *const cell = sim::instance<SimTableViewCell>(delegate());
    return cell != nullptr && std::abs(way.x) > std::abs(way.y) && cell->canBeSwiped() &&
           (way.x < 0 || cell->isSwiped());
}

CGPoint SimTableViewCellScrollView::offsetUnderFinger(CGPoint wanted) {
    return {std::max<CGFloat>(wanted.x, 0), 0};
}

void SimTableViewCellScrollView::setContentOffset(CGPoint offset) {
    objc::sendSuper<SimTableViewCellScrollView, void(CGPoint)>(this, "setContentOffset:"_sel,
                                                               offset);
}

void SimTableViewCellScrollView::define() {
    using Self = SimTableViewCellScrollView;
    sim::defined("UITableViewCellScrollView",
                 objc::ClassBuilder<Self>("UITableViewCellScrollView", "UIScrollView")
                     .method("initWithFrame:"_sel, objc::member<&Self::initWithFrame>)
                     .method("setContentOffset:"_sel, objc::member<&Self::setContentOffset>)
                     .method("panShouldBegin:"_sel, objc::member<&Self::panShouldBegin>)
                     .method("offsetUnderFinger:"_sel, objc::member<&Self::offsetUnderFinger>)
                     .finish());
}
