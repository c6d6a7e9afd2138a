// The in-call display's text view draws its text itself.
#include "phone/incall/TPLCDTextView.hpp"

#include <algorithm>

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {

void TPLCDTextView::define() {
    using objc::member;
    using Self = TPLCDTextView;
    sim::defined("TPLCDTextView", objc::ClassBuilder<Self>("TPLCDTextView", "UIView")
                                      .ivar<&Self::text_>("_text")
                                      .ivar<&Self::font_>("_font")
                                      .method("text"_sel, member<&Self::text>)
                                      .method("setText:"_sel, member<&Self::setText>)
                                      .method("isTextCentered"_sel, member<&Self::isTextCentered>)
                                      .method("setCenterText:"_sel, member<&Self::setCenterText>)
                                      .method("font"_sel, member<&Self::font>)
                                      .method("setLCDTextFont:"_sel, member<&Self::setLCDTextFont>)
                                      .method("drawRect:"_sel, member<&Self::drawRect>)
                                      .finish());
}

void TPLCDTextView::setText(NSString text) { text_ = sim::copied(text); }

void TPLCDTextView::setLCDTextFont(UIFont font) { font_ = objc::Owned<UIFont>::share(font); }

UIFont TPLCDTextView::fontToFit(CGFloat width) const {
    constexpr CGFloat kSmallest = 0.7;
    const CGFloat wanted =
        objc::send<CGSize(UIFont)>(text_.get(), "sizeWithFont:"_sel, font_).width;
    if (wanted <= width) {
        return font_;
    }
    const auto points = objc::send<CGFloat()>(font_.get(), "pointSize"_sel);
    return objc::send<UIFont(CGFloat)>(font_.get(), "fontWithSize:"_sel,
                                       points * std::max(width / wanted, kSmallest));
}

void TPLCDTextView::drawRect(CGRect) {
    const CGFloat width = asView(*this).bounds().size.width;
    const UIFont font = fontToFit(width);
    // One line, however high the view is.
    const CGFloat height = objc::send<CGFloat()>(font, "lineHeight"_sel);
    drawLine(text_, font, rect(0, 0, width, height),
             centred_ ? sim::TextAlignment::Center : sim::TextAlignment::Left,
             UIColor::whiteColor());
}

}  // namespace phone
