// The in-call display's label view draws its text itself.
#include "phone/incall/TPLCDLabelView.hpp"

#include <algorithm>

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {

void TPLCDLabelView::define() {
    using objc::member;
    using Self = TPLCDLabelView;
    sim::defined("TPLCDLabelView", objc::ClassBuilder<Self>("TPLCDLabelView", "UIView")
                                       .ivar<&Self::text_>("_text")
                                       .ivar<&Self::fontSize_>("_fontSize")
                                       .method("text"_sel, member<&Self::text>)
                                       .method("setText:"_sel, member<&Self::setText>)
                                       .method("setFontSize:"_sel, member<&Self::setFontSize>)
                                       .method("setCenterText:"_sel, member<&Self::setCenterText>)
                                       .method("textRect"_sel, member<&Self::textRect>)
                                       .method("drawRect:"_sel, member<&Self::drawRect>)
                                       .finish());
}

UIFont TPLCDLabelView::font() const { return UIFont::systemFontOfSize(CGFloat{fontSize_}); }

void TPLCDLabelView::setText(NSString text) { text_ = sim::copied(text); }

CGRect TPLCDLabelView::textRect() const {
    const CGSize room = asView(*this).bounds().size;
    const CGSize size = objc::send<CGSize(UIFont)>(text_.get(), "sizeWithFont:"_sel, font());
    const CGFloat width = std::min(size.width, room.width);
    return rect(centred_ ? (room.width - width) / 2 : 0, (room.height - size.height) / 2, width,
                size.height);
}

void TPLCDLabelView::drawRect(CGRect) {
    drawLine(text_, font(), textRect(), sim::TextAlignment::Left, UIColor::whiteColor());
}

}  // namespace phone
