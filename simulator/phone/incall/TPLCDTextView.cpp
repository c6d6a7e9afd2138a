// The in-call display's text views.
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
                                      .ivar<&Self::fontSize_>("_fontSize")
                                      .method("text"_sel, member<&Self::text>)
                                      .method("setText:"_sel, member<&Self::setText>)
                                      .method("setCenterText:"_sel, member<&Self::setCenterText>)
                                      .method("setLCDTextFont:"_sel, member<&Self::setLCDTextFont>)
                                      .method("textRect"_sel, member<&Self::textRect>)
                                      .method("drawRect:"_sel, member<&Self::drawRect>)
                                      .finish());
}

objc::Owned<UIView> TPLCDTextView::make(Line line) {
    auto view = makeView<TPLCDTextView>({});
    sim::instance<TPLCDTextView>(view)->line_ = line;
    return view;
}

void TPLCDTextView::setText(NSString text) {
    text_ = sim::copied(text);
    hasChanged();
}

void TPLCDTextView::setLCDTextFont(UIFont font) {
    font_ = objc::Owned<UIFont>::share(font);
    fontSize_ = font.pointSize();
    hasChanged();
}

CGSize TPLCDTextView::sizeIn(UIFont font) const {
    return objc::send<CGSize(UIFont)>(text_.get(), "sizeWithFont:"_sel, font);
}

UIFont TPLCDTextView::fontToFit(CGFloat width) const {
    constexpr CGFloat kSmallest = 0.7;
    const CGFloat wanted = sizeIn(font_).width;
    if (line_ == Line::Label || wanted <= width) {
        return font_;
    }
    return objc::send<UIFont(CGFloat)>(font_.get(), "fontWithSize:"_sel,
                                       fontSize_ * std::max(width / wanted, kSmallest));
}

CGRect TPLCDTextView::textRect() const {
    const CGSize room = asView(*this).bounds().size;
    const CGSize size = sizeIn(fontToFit(room.width));
    const CGFloat width = std::min(size.width, room.width);
    return rect(centred_ ? (room.width - width) / 2 : 0,
                line_ == Line::Name ? 0 : (room.height - size.height) / 2, width, size.height);
}

void TPLCDTextView::drawRect(CGRect) {
    using sim::TextAlignment;
    const CGFloat width = asView(*this).bounds().size.width;
    const CGRect text = textRect();
    // A name is centred by the drawing itself, a label by its rectangle.
    const bool isName = line_ == Line::Name;
    drawLine(text_, fontToFit(width), isName ? rect(0, 0, width, text.size.height) : text,
             isName && centred_ ? TextAlignment::Center : TextAlignment::Left,
             UIColor::whiteColor());
}

}  // namespace phone
