// InCallLCDField.
#include "phone/incall/InCallLCDField.hpp"

#include "uikit/Registration.hpp"

namespace phone {

void InCallLCDField::define() {
    using objc::member;
    sim::defined("InCallLCDField",
                 objc::ClassBuilder<InCallLCDField>("InCallLCDField", "TPLCDView")
                     .method("initWithFrame:"_sel, member<&InCallLCDField::initWithFrame>)
                     .method("layoutSubviews"_sel, member<&InCallLCDField::layoutSubviews>)
                     .finish());
}

id InCallLCDField::initWithFrame(CGRect frame) {
    objc::sendSuper<InCallLCDField, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    useContentView();
    return *this;
}

}  // namespace phone
