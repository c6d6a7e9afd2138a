// What UIKit adds to Foundation's strings: measuring and drawing them.
#include "uikit/StringDrawing.hpp"

#include <cmath>

#include "platform/UIKit.hpp"
#include "uikit/AttributedText.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/GraphicsContext.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimFont.hpp"
#include "uikit/drawing/TextLayout.hpp"

namespace {

using sim::LineBreak;
using sim::StyledText;
using sim::TextAlignment;
using sim::TextStyle;

/// NSStringDrawingTruncatesLastVisibleLine
constexpr NSInteger kTruncatesLastVisibleLine = 32;

/// What text without attributes is measured and drawn in on the platform.
constexpr TextStyle kPlain{{12, sim::FontWeight::Regular}, sim::kBlack};

StyledText styled(NSString text, UIFont font) {
    return {sim::units(text), {SimFont::of(font), sim::kBlack}};
}

StyledText styled(NSString text, NSDictionary attributes) {
    return {sim::units(text), sim::textStyle(attributes, kPlain)};
}

/// The older messages return whole points, rounded up.
CGSize wholePoints(CGSize size) {
    constexpr double kTolerance = 1e-6;
    return {std::ceil(size.width - kTolerance), std::ceil(size.height - kTolerance)};
}

sim::Paragraph singleLine(CGFloat width, LineBreak mode) { return {width, 0, 1, mode}; }

CGRect bounding(const StyledText &text, CGSize room, NSInteger options) {
    if ((options & kUsesLineFragmentOrigin) == 0) {
        return {{0, 0}, sim::layOut(text, singleLine(0, LineBreak::Clip)).size};
    }
    const bool truncates = (options & kTruncatesLastVisibleLine) != 0;
    const LineBreak mode = truncates ? LineBreak::TruncateTail : LineBreak::WordWrap;
    return {{0, 0}, sim::layOut(text, {room.width, room.height, 0, mode}).size};
}

CGSize sizeWithFont(NSString text, UIFont font) {
    return wholePoints(sim::layOut(styled(text, font), singleLine(0, LineBreak::Clip)).size);
}

CGSize sizeWithFontConstrained(NSString text, UIFont font, CGSize room) {
    const sim::Paragraph paragraph{room.width, room.height, 0, LineBreak::WordWrap};
    return wholePoints(sim::layOut(styled(text, font), paragraph).size);
}

CGSize sizeWithFontBreaking(NSString text, UIFont font, CGSize room, LineBreak mode) {
    const sim::Paragraph paragraph{room.width, room.height, 0, mode};
    return wholePoints(sim::layOut(styled(text, font), paragraph).size);
}

CGSize sizeWithFontForWidth(NSString text, UIFont font, CGFloat width, LineBreak mode) {
    return wholePoints(sim::layOut(styled(text, font), singleLine(width, mode)).size);
}

CGSize sizeWithAttributes(NSString text, NSDictionary attributes) {
    return sim::layOut(styled(text, attributes), {}).size;
}

CGRect stringBounding(NSString text, CGSize room, NSInteger options, NSDictionary attributes,
                      NSObject) {
    return bounding(styled(text, attributes), room, options);
}

CGSize attributedSize(NSAttributedString text) {
    return sim::layOut(sim::styledText(text, kPlain), {}).size;
}

CGRect attributedBounding(NSAttributedString text, CGSize room, NSInteger options, NSObject) {
    return bounding(sim::styledText(text, kPlain), room, options);
}

/// Draws in `rect`, or outside of any drawing nothing; returns the size of what was laid out.
CGSize draw(const StyledText &text, CGRect rect, LineBreak mode, TextAlignment alignment) {
    const sim::TextLayout layout = sim::layOut(text, {rect.size.width, rect.size.height, 0, mode});
    if (auto *const context = sim::GraphicsContext::current(); context != nullptr) {
        context->canvas.draw(layout, rect, alignment);
    }
    return layout.size;
}

/// The older messages draw in the current fill colour.
StyledText inFillColor(NSString text, UIFont font) {
    const auto *const context = sim::GraphicsContext::current();
    return {sim::units(text),
            {SimFont::of(font), context != nullptr ? context->fill : sim::kBlack}};
}

CGSize drawAtPointWithFont(NSString text, CGPoint point, UIFont font) {
    return draw(inFillColor(text, font), {point, {0, 0}}, LineBreak::Clip, TextAlignment::Left);
}

CGSize drawInRectWithFont(NSString text, CGRect rect, UIFont font) {
    return draw(inFillColor(text, font), rect, LineBreak::WordWrap, TextAlignment::Left);
}

CGSize drawAligned(NSString text, CGRect rect, UIFont font, LineBreak mode,
                   TextAlignment alignment) {
    return draw(inFillColor(text, font), rect, mode, alignment);
}

void drawAtPointWithAttributes(NSString text, CGPoint point, NSDictionary attributes) {
    draw(styled(text, attributes), {point, {0, 0}}, LineBreak::Clip, TextAlignment::Left);
}

void drawInRectWithAttributes(NSString text, CGRect rect, NSDictionary attributes) {
    draw(styled(text, attributes), rect, LineBreak::WordWrap, TextAlignment::Left);
}

void drawAttributedAtPoint(NSAttributedString text, CGPoint point) {
    draw(sim::styledText(text, kPlain), {point, {0, 0}}, LineBreak::Clip, TextAlignment::Left);
}

void drawAttributedInRect(NSAttributedString text, CGRect rect) {
    draw(sim::styledText(text, kPlain), rect, LineBreak::WordWrap, TextAlignment::Left);
}

}  // namespace

namespace sim {

void addStringDrawing() {
    using objc::receiving;
    const Class string = "NSString"_cls;
    addMethod(string, "sizeWithFont:"_sel, receiving<&sizeWithFont>);
    addMethod(string, "sizeWithFont:constrainedToSize:"_sel, receiving<&sizeWithFontConstrained>);
    addMethod(string, "sizeWithFont:constrainedToSize:lineBreakMode:"_sel,
              receiving<&sizeWithFontBreaking>);
    addMethod(string, "sizeWithFont:forWidth:lineBreakMode:"_sel, receiving<&sizeWithFontForWidth>);
    addMethod(string, "sizeWithAttributes:"_sel, receiving<&sizeWithAttributes>);
    addMethod(string, "boundingRectWithSize:options:attributes:context:"_sel,
              receiving<&stringBounding>);
    addMethod(string, "drawAtPoint:withFont:"_sel, receiving<&drawAtPointWithFont>);
    addMethod(string, "drawInRect:withFont:"_sel, receiving<&drawInRectWithFont>);
    addMethod(string, "drawInRect:withFont:lineBreakMode:alignment:"_sel, receiving<&drawAligned>);
    addMethod(string, "drawAtPoint:withAttributes:"_sel, receiving<&drawAtPointWithAttributes>);
    addMethod(string, "drawInRect:withAttributes:"_sel, receiving<&drawInRectWithAttributes>);

    const Class attributed = "NSAttributedString"_cls;
    addMethod(attributed, "size"_sel, receiving<&attributedSize>);
    addMethod(attributed, "boundingRectWithSize:options:context:"_sel,
              receiving<&attributedBounding>);
    addMethod(attributed, "drawAtPoint:"_sel, receiving<&drawAttributedAtPoint>);
    addMethod(attributed, "drawInRect:"_sel, receiving<&drawAttributedInRect>);
}

}  // namespace sim
