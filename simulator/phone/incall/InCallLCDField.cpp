// InCallLCDField.
#include "phone/incall/InCallLCDField.hpp"

#include "uikit/Registration.hpp"

namespace phone {

void InCallLCDField::define() {
    sim::defined("InCallLCDField",
                 objc::ClassBuilder<InCallLCDField>("InCallLCDField", "TPLCDView")
                     .method("initWithFrame:"_sel, objc::member<&InCallLCDField::initWithFrame>)
                     .finish());
}

id InCallLCDField::initWithFrame(CGRect frame) {
    objc::sendSuper<InCallLCDField, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    useContentView();
    return *this;
}

}  // namespace phone
