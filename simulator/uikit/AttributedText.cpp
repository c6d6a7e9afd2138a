// The attribute keys, and runs of equal attributes made runs of equal style.
#include "uikit/AttributedText.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimFont.hpp"

// Owned by the process for good. The names are the platform's; programs compare them by content.
const id NSFontAttributeName = "NSFont"_ns;
const id NSForegroundColorAttributeName = "NSColor"_ns;

namespace sim {

TextStyle textStyle(NSDictionary attributes, const TextStyle &missing) {
    const auto font = attributes.objectForKey(NSObject(NSFontAttributeName)).as<UIFont>();
    const auto color = attributes.objectForKey(NSObject(NSForegroundColorAttributeName));
    return {font != nullptr ? SimFont::of(font) : missing.font,
            SimColor::of(color.as<UIColor>(), missing.color)};
}

NSDictionary attributesAtFirst(NSAttributedString text) {
    return objc::send<NSUInteger()>(text, "length"_sel) > 0
               ? objc::send<NSDictionary(NSUInteger, NSRange *)>(
                     text, "attributesAtIndex:effectiveRange:"_sel, NSUInteger{0}, nullptr)
               : NSDictionary();
}

StyledText styledText(NSAttributedString text, const TextStyle &missing) {
    StyledText result;
    result.text = units(objc::send<NSString()>(text, "string"_sel));
    for (NSUInteger at = 0; at < result.text.size();) {
        NSRange range{};
        const auto attributes = objc::send<NSDictionary(NSUInteger, NSRange *)>(
            text, "attributesAtIndex:effectiveRange:"_sel, at, &range);
        const NSUInteger end = range.location + range.length;
        result.runs.push_back({end - at, textStyle(attributes, missing)});
        at = end;
    }
    return result;
}

}  // namespace sim
