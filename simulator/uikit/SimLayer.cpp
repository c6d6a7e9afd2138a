// CALayer's few properties.
#include "uikit/SimLayer.hpp"

#include "uikit/Registration.hpp"

void SimLayer::setBorderColor(UIColor color) { borderColor_ = objc::Owned<UIColor>::share(color); }

void SimLayer::define() {
    using objc::member;
    sim::defined("CALayer",
                 objc::ClassBuilder<SimLayer>("CALayer", "NSObject")
                     .method("cornerRadius"_sel, member<&SimLayer::cornerRadius>)
                     .method("setCornerRadius:"_sel, member<&SimLayer::setCornerRadius>)
                     .method("borderWidth"_sel, member<&SimLayer::borderWidth>)
                     .method("setBorderWidth:"_sel, member<&SimLayer::setBorderWidth>)
                     .method("borderColor"_sel, member<&SimLayer::borderColor>)
                     .method("setBorderColor:"_sel, member<&SimLayer::setBorderColor>)
                     .method("masksToBounds"_sel, member<&SimLayer::masksToBounds>)
                     .method("setMasksToBounds:"_sel, member<&SimLayer::setMasksToBounds>)
                     .finish());
}
