// Date labels.
#include "phone/recents/UIDateLabel.hpp"

#include <cmath>

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {

void UIDateLabel::define() {
    using objc::member;
    using Self = UIDateLabel;
    sim::defined("UIDateLabel",
                 objc::ClassBuilder<Self>("UIDateLabel", "UILabel")
                     .method("timeDesignator"_sel, member<&Self::timeDesignator>)
                     .method("setTimeDesignator:"_sel, member<&Self::setTimeDesignator>)
                     .method("accessibilityLabel"_sel, member<&Self::shownText>)
                     .method("sizeThatFits:"_sel, member<&Self::sizeThatFits>)
                     .method("intrinsicContentSize"_sel, member<&Self::intrinsicContentSize>)
                     .method("drawTextInRect:"_sel, member<&Self::drawTextInRect>)
                     .finish());
}

void UIDateLabel::setTimeDesignator(NSString designator) {
    timeDesignator_ = sim::copied(designator);
}

NSString UIDateLabel::shownText() const {
    if (!hasText(timeDesignator_)) {
        return text();
    }
    return sim::string(sim::utf8(timeDesignator_) + " " + sim::utf8(text()));
}

CGSize UIDateLabel::sizeThatFits(CGSize) const {
    const CGSize size = lineSize(shownText(), font());
    return {std::ceil(size.width), std::ceil(size.height)};
}

void UIDateLabel::drawTextInRect(CGRect within) {
    drawLine(shownText(), font(), within, textAlignment(), textColor());
}

}  // namespace phone
