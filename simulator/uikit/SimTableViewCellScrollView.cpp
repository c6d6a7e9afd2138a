// UITableViewCellScrollView.
#include "uikit/SimTableViewCellScrollView.hpp"

#include "uikit/Registration.hpp"

void SimTableViewCellScrollView::setContentOffset(CGPoint offset) {
    objc::sendSuper<SimTableViewCellScrollView, void(CGPoint)>(this, "setContentOffset:"_sel,
                                                               offset);
}

void SimTableViewCellScrollView::define() {
    using Self = SimTableViewCellScrollView;
    sim::defined("UITableViewCellScrollView",
                 objc::ClassBuilder<Self>("UITableViewCellScrollView", "UIScrollView")
                     .method("setContentOffset:"_sel, objc::member<&Self::setContentOffset>)
                     .finish());
}
