// Where the dialer's row stands: plain numbers in, plain numbers out, all in points. The row is the
// icon, the description and, before iOS 7.1, a separator and the offer to add a contact; it takes
// the place of the Phone application's name line and is centred as a whole.
#pragma once

#include "platform/CoreGraphics.hpp"

namespace dialer {

inline constexpr CGFloat kGap = 5;  // between neighbours in the row

/// The row's y in the LCD view: that of the name line it stands in for.
constexpr CGFloat rowTop(bool fourInchScreen, bool from71) {
    return (fourInchScreen ? 48 : 41) - (from71 ? 4 : 0);
}

/// The frames the row's views are made with; those of width 0 get theirs with each description.
struct NewRow {
    CGRect container, icon, description, separator, addContact;
};

constexpr NewRow newRow(CGFloat top, CGFloat lineHeight) {
    return {
        .container = rect(0, top, 0, lineHeight),
        .icon = rect(0, 5, 15, 15),
        .description = rect(0, 0, 0, lineHeight),
        .separator = rect(0, 5, 1, lineHeight - 10),
        .addContact = rect(0, 0, 97, 25),
    };
}

struct RowWidths {
    CGFloat lcd, icon, text;
    // The offer to add a contact and its separator: from iOS 7.1 on the row has neither.
    bool hasOffer;
    CGFloat separator, addContact;
};

struct RowPlaces {
    CGFloat containerX, containerWidth, descriptionX, separatorX, addContactX;
};

constexpr RowPlaces placeRow(RowWidths widths) {
    const CGFloat offer = widths.hasOffer ? widths.addContact + widths.separator + 2 * kGap : 0;
    const CGFloat total = widths.icon + kGap + widths.text + offer;
    const CGFloat descriptionX = widths.icon + kGap;
    const CGFloat separatorX = descriptionX + widths.text + kGap;
    return {
        .containerX = (widths.lcd - total) / 2,
        .containerWidth = total,
        .descriptionX = descriptionX,
        .separatorX = separatorX,
        .addContactX = separatorX + widths.separator + kGap,
    };
}

/// The frame of the older hint's label: the last line of the view it belongs to.
constexpr CGRect olderHintFrame(CGRect superview) {
    constexpr CGFloat kHeight = 15, kMargin = 2;
    return rect(0, superview.origin.y + superview.size.height - kHeight - kMargin,
                superview.size.width, kHeight);
}

/// Where a logo stands beside a text of that intrinsic width: behind it, or, for a short text,
/// behind its middle.
constexpr CGFloat logoX(CGFloat textWidth, CGFloat boundsX) {
    constexpr CGFloat kShortText = 97, kMargin = 3;
    return (textWidth > kShortText ? textWidth : (boundsX + textWidth) / 2) + kMargin;
}

}  // namespace dialer
