// InCallLCDView.
#include "phone/incall/InCallLCDView.hpp"

#include "uikit/Registration.hpp"

namespace phone {

void InCallLCDView::define() {
    sim::defined("InCallLCDView",
                 objc::ClassBuilder<InCallLCDView>("InCallLCDView", "TPLCDView")
                     .method("layoutSubviews"_sel, objc::member<&InCallLCDView::layoutSubviews>)
                     .finish());
}

void InCallLCDView::layoutSubviews() {
    objc::sendSuper<InCallLCDView, void()>(this, "layoutSubviews"_sel);
}

}  // namespace phone
