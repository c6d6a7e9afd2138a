// A contact's region before the number label, which the Phone application itself shows since 7.1.
#include "incall/ZQDialWaitUIHook.hpp"
#include "incall/added_views.hpp"
#include "platform/format.hpp"

using namespace incall;

namespace {

/// The label's text as this pass leaves it.
struct RegionText {
    NSString whole, region;
};

/// The region that stands before the separator; there is a blank between the two.
NSString regionBefore(NSString text, NSUInteger separatorIndex) {
    return text.substringToIndex(separatorIndex > 0 ? separatorIndex - 1 : 0);
}

/// What the Phone application itself wrote behind the region and " | ".
NSString ownText(const RegionText &text) {
    constexpr NSUInteger kBetween = 3;
    const NSUInteger begin = text.region.length() + kBetween;
    return begin < text.whole.length() ? text.whole.substringFromIndex(begin) : ""_ns;
}

CGFloat measuredWidth(NSString text, CGSize room, CGFloat fontSize) {
    return boundingWidth(text, UIFont::systemFontOfSize(fontSize), room,
                         kUsesLineFragmentOrigin | kTruncatesLastVisibleLine);
}

void placeRegionIcon(UIView icon, TPLCDLabelView label, const RegionText &text) {
    const CGRect frame = label.frame();
    const CGFloat fontSize = label.fontSize();
    if (label.textRect().origin.x == 0) {
        label.setFrame(labelBehindIcon(frame, text.region.length(), fontSize));
        icon.setFrame(kIconBeforeLabel);
        return;
    }
    const bool shortScreen = ZQPhoneUtil::isScreen35Inch();
    const NSString own = ownText(text);
    icon.setFrame(own.contains(":"_ns)
                      ? regionIconBesideTime(frame.size.width, text.whole.length(), own.length(),
                                             fontSize, shortScreen)
                      : regionIcon(frame.size.width,
                                   measuredWidth(text.whole, frame.size, fontSize), shortScreen));
}

}  // namespace

void ZQDialWaitUIHook::layoutContactRegionInfoOfView(InCallDisplay display) const {
    const TPLCDLabelView label = display.labelView();
    UIView icon = findRegionIcon(label);
    icon.setHidden(true);
    RegionText text{.whole = label.text(), .region = {}};
    const NSUInteger separatorIndex = text.whole.indexOf(separator());
    const bool hasRegion = separatorIndex != kNotFound;
    if (moreThanOneCall()) {
        if (hasRegion) {
            label.setText(text.whole.substringFromIndex(separatorIndex + 1));
        }
        return;
    }
    if (hasRegion) {
        text.region = regionBefore(text.whole, separatorIndex);
    } else if (text.region = getNumberRegion(); text.region.length() != 0) {
        text.whole = format<"%@ | %@">(text.region, text.whole);
        label.setText(text.whole);
    }
    if (text.region.length() == 0) {
        return;
    }
    if (!icon) {
        icon = addGreenIcon(label, {}, kRegionIconTag);
    }
    icon.setHidden(false);
    placeRegionIcon(icon, label, text);
}
