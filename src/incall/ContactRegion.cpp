// A contact's region before the number label.
#include "incall/ContactRegion.hpp"

#include <algorithm>

#include "incall/AddedViews.hpp"
#include "incall/Description.hpp"
#include "incall/Geometry.hpp"
#include "objc/Silently.hpp"
#include "platform/Format.hpp"
#include "platform/LayoutPass.hpp"

namespace incall {
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

void placeRegionIcon(UIView icon, TPLCDTextView label, CGRect frame, const RegionText &text) {
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

void layOutContactRegion(InCallDisplay display, const Caller &caller) {
    if (LayoutPass::isOvertaken(display)) {
        return;
    }
    const TPLCDTextView label = display.labelView();
    UIView icon = findRegionIcon(label);
    icon.setHidden(true);
    const auto original = objc::Owned<NSString>::share(label.text());
    RegionText text{.whole = original, .region = {}};
    const NSUInteger separatorIndex = text.whole.indexOf(separator());
    const bool hasRegion = separatorIndex != kNotFound;
    if (caller.hasSecondCall()) {
        if (hasRegion) {
            label.setText(text.whole.substringFromIndex(separatorIndex + 1));
        }
        return;
    }
    const auto newRegion = hasRegion ? objc::Owned<NSString>() : regionOf(caller.number());
    text.region = hasRegion ? regionBefore(text.whole, separatorIndex) : newRegion.get();
    if (text.region.length() == 0 || LayoutPass::isOvertaken(display)) {
        return;
    }
    const CGRect frame = label.frame();
    objc::Undo undo([&] {
        label.setText(original);
        label.setFrame(frame);
    });
    if (!hasRegion) {
        text.whole = format<"%@ | %@">(text.region, text.whole);
        label.setText(text.whole);
    }
    if (!LayoutPass::isOvertaken(display)) {
        if (!icon) {
            icon = addGreenIcon(label, {}, kRegionIconTag);
        }
        icon.setHidden(false);
        placeRegionIcon(icon, label, frame, text);
    }
    undo.keep();
}

void removeContactRegion(InCallDisplay display) {
    const TPLCDTextView label = display.labelView();
    const UIView icon = findRegionIcon(label);
    if (!icon) {
        return;
    }
    icon.setHidden(true);
    const NSString text = label.text();
    if (const NSUInteger separatorIndex = text.indexOf(separator()); separatorIndex != kNotFound) {
        label.setText(text.substringFromIndex(std::min(separatorIndex + 2, text.length())));
    }
}

}  // namespace incall
