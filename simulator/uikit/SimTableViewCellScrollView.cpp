// UITableViewCellScrollView.
#include "uikit/SimTableViewCellScrollView.hpp"

#include "uikit/Registration.hpp"

id SimTableViewCellScrollView::initWithFrame(CGRect frame) {
    objc::sendSuper<SimTableViewCellScrollView, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    setClipsToBounds(false);  // what the cell reveals lies outside
    return *this;
}

void SimTableViewCellScrollView::define() {
    sim::defined(
        "UITableViewCellScrollView",
        objc::ClassBuilder<SimTableViewCellScrollView>("UITableViewCellScrollView", "UIScrollView")
            .method("initWithFrame:"_sel, objc::member<&SimTableViewCellScrollView::initWithFrame>)
            .finish());
}
