// Date labels.
#include "phone/recents/UIDateLabel.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {

void UIDateLabel::define() {
    using objc::member;
    sim::defined("UIDateLabel",
                 objc::ClassBuilder<UIDateLabel>("UIDateLabel", "UILabel")
                     .method("timeDesignator"_sel, member<&UIDateLabel::timeDesignator>)
                     .method("setTimeDesignator:"_sel, member<&UIDateLabel::setTimeDesignator>)
                     .finish());
}

void UIDateLabel::setTimeDesignator(NSString designator) {
    timeDesignator_ = sim::copied(designator);
}

}  // namespace phone
