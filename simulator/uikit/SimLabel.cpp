// UILabel: measured and drawn by the same layout.
#include "uikit/SimLabel.hpp"

#include <algorithm>
#include <cmath>

#include "uikit/AttributedText.hpp"
#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/GraphicsContext.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimFont.hpp"

using objc::Owned;

namespace {

/// Up to the next whole pixel; sums of advances may lie above one by rounding.
CGFloat wholePixels(CGFloat points) {
    const double scale = sim::Device::current().scale;
    return std::ceil(points * scale - 1e-6) / scale;
}

}  // namespace

id SimLabel::initWithFrame(CGRect frame) {
    objc::sendSuper<SimLabel, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    setUserInteractionEnabled(false);
    setFont(nullptr);
    setTextColor(nullptr);
    return *this;
}

NSString SimLabel::text() const {
    return attributedText_ ? objc::send<NSString()>(attributedText_, "string"_sel) : text_.get();
}

void SimLabel::setText(NSString text) {
    const bool isNew = attributedText_ || !isSameText(text_, text);
    text_ = sim::copied(text);
    attributedText_ = {};
    if (isNew) {
        textHasChanged();
    }
}

void SimLabel::textHasChanged() {
    hasChanged();
    objc::send<void()>(id(*this), "invalidateIntrinsicContentSize"_sel);
}

NSAttributedString SimLabel::attributedText() const {
    if (attributedText_ || !text_) {
        return attributedText_;
    }
    const id keys[] = {NSFontAttributeName, NSForegroundColorAttributeName};
    const id values[] = {font_.get(), textColor_.get()};
    const auto attributes = objc::send<NSDictionary(const id *, const id *, NSUInteger)>(
        "NSDictionary"_cls, "dictionaryWithObjects:forKeys:count:"_sel, values, keys,
        NSUInteger{2});
    return objc::create<NSAttributedString(NSString, NSDictionary)>(
               "initWithString:attributes:"_sel, text_, attributes)
        .autorelease();
}

void SimLabel::setAttributedText(NSAttributedString text) {
    attributedText_ =
        Owned<NSAttributedString>::adopt(objc::send<NSAttributedString()>(text, "copy"_sel));
    text_ = {};
    const auto first = sim::attributesAtFirst(attributedText_);
    const auto font = first.objectForKey(NSObject(NSFontAttributeName)).as<UIFont>();
    const auto color = first.objectForKey(NSObject(NSForegroundColorAttributeName)).as<UIColor>();
    font_ = font != nullptr ? Owned<UIFont>::share(font) : std::move(font_);
    textColor_ = color != nullptr ? Owned<UIColor>::share(color) : std::move(textColor_);
    textHasChanged();
}

void SimLabel::setFont(UIFont font) {
    font_ = Owned<UIFont>::share(
        font != nullptr ? font : SimFont::systemFontOfSize(SimFont::kDefaultPoints));
    hasChanged();
}

void SimLabel::setTextColor(UIColor color) {
    textColor_ = Owned<UIColor>::share(color != nullptr ? color : SimColor::make(sim::kBlack));
    hasChanged();
}

sim::StyledText SimLabel::styled() const {
    const sim::TextStyle style{SimFont::of(font_), SimColor::of(textColor_)};
    return attributedText_ ? sim::styledText(attributedText_, style)
                           : sim::StyledText(sim::units(text_), style);
}

void SimLabel::shrinkToFit(sim::StyledText &text, CGFloat width) const {
    if (!adjustsFontSize_ || numberOfLines_ != 1) {
        return;
    }
    const double wanted = sim::layOut(text, {}).size.width;
    if (wanted <= width || wanted <= 0) {
        return;
    }
    const double factor = std::max(width / wanted, minimumScaleFactor_);
    for (sim::TextRun &run : text.runs) {
        run.style.font.points *= factor;
    }
}

sim::TextLayout SimLabel::laidOut(CGSize room, NSInteger lines) const {
    sim::StyledText text = styled();
    if (room.width > 0) {
        shrinkToFit(text, room.width);
    }
    return sim::layOut(text, {room.width, room.height, static_cast<int>(lines), lineBreakMode_});
}

CGSize SimLabel::sizeThatFits(CGSize room) const {
    // A label of one line is as wide as its text, whatever room there is.
    const CGFloat width = numberOfLines_ == 1 ? 0 : room.width;
    const CGSize size =
        sim::layOut(styled(), {width, 0, static_cast<int>(numberOfLines_), lineBreakMode_}).size;
    return {wholePixels(size.width), wholePixels(size.height)};
}

CGSize SimLabel::intrinsicContentSize() const { return sizeThatFits({0, 0}); }

CGRect SimLabel::textRectForBounds(CGRect bounds, NSInteger lines) const {
    const CGSize size = laidOut(bounds.size, lines).size;
    const CGFloat y = bounds.origin.y + (bounds.size.height - size.height) / 2;
    CGFloat x = bounds.origin.x;
    if (textAlignment_ == sim::TextAlignment::Center) {
        x += (bounds.size.width - size.width) / 2;
    } else if (textAlignment_ == sim::TextAlignment::Right) {
        x += bounds.size.width - size.width;
    }
    return {{x, y}, size};
}

void SimLabel::drawRect(CGRect) {
    objc::send<void(CGRect)>(id(*this), "drawTextInRect:"_sel, bounds());
}

void SimLabel::drawTextInRect(CGRect rect) {
    auto *const context = sim::GraphicsContext::current();
    if (context == nullptr || rect.size.width <= 0) {
        return;
    }
    const sim::TextLayout layout = laidOut(rect.size, numberOfLines_);
    const CGFloat top = rect.origin.y + (rect.size.height - layout.size.height) / 2;
    const sim::Canvas::State state(context->canvas);
    context->canvas.clip(rect);
    context->canvas.draw(layout, {{rect.origin.x, top}, rect.size}, textAlignment_);
}

void SimLabel::define() {
    using objc::member;
    sim::defined(
        "UILabel",
        objc::ClassBuilder<SimLabel>("UILabel", "UIView")
            .method("initWithFrame:"_sel, member<&SimLabel::initWithFrame>)
            .method("text"_sel, member<&SimLabel::text>)
            .method("setText:"_sel, member<&SimLabel::setText>)
            .method("attributedText"_sel, member<&SimLabel::attributedText>)
            .method("setAttributedText:"_sel, member<&SimLabel::setAttributedText>)
            .method("font"_sel, member<&SimLabel::font>)
            .method("setFont:"_sel, member<&SimLabel::setFont>)
            .method("textColor"_sel, member<&SimLabel::textColor>)
            .method("setTextColor:"_sel, member<&SimLabel::setTextColor>)
            .method("textAlignment"_sel, member<&SimLabel::textAlignment>)
            .method("setTextAlignment:"_sel, member<&SimLabel::setTextAlignment>)
            .method("lineBreakMode"_sel, member<&SimLabel::lineBreakMode>)
            .method("setLineBreakMode:"_sel, member<&SimLabel::setLineBreakMode>)
            .method("numberOfLines"_sel, member<&SimLabel::numberOfLines>)
            .method("setNumberOfLines:"_sel, member<&SimLabel::setNumberOfLines>)
            .method("adjustsFontSizeToFitWidth"_sel, member<&SimLabel::adjustsFontSizeToFitWidth>)
            .method("setAdjustsFontSizeToFitWidth:"_sel,
                    member<&SimLabel::setAdjustsFontSizeToFitWidth>)
            .method("minimumScaleFactor"_sel, member<&SimLabel::minimumScaleFactor>)
            .method("setMinimumScaleFactor:"_sel, member<&SimLabel::setMinimumScaleFactor>)
            .method("sizeThatFits:"_sel, member<&SimLabel::sizeThatFits>)
            .method("intrinsicContentSize"_sel, member<&SimLabel::intrinsicContentSize>)
            .method("textRectForBounds:limitedToNumberOfLines:"_sel,
                    member<&SimLabel::textRectForBounds>)
            .method("drawRect:"_sel, member<&SimLabel::drawRect>)
            .method("drawTextInRect:"_sel, member<&SimLabel::drawTextInRect>)
            .finish());
}
