// Where the recents' rows, the detail header and the swipe menu have their parts: plain numbers in,
// plain numbers out, all in points.
#pragma once

#include <cstdint>

#include "platform/CoreGraphics.hpp"

namespace recents {

// A row. Its numbers are fixed, whatever the screen is.

inline constexpr CGFloat kRowLeft = 34;
inline constexpr CGFloat kRowLineHeight = 15;

/// The room for a row's line, left of its date.
constexpr CGFloat rowLineWidth(CGFloat dateWidth) {
    constexpr CGFloat kRight = 273, kIconRoom = 14, kGap = 3;
    return kRight - dateWidth - kRowLeft - kIconRoom - kGap;
}

constexpr CGRect rowLine(CGFloat width) { return rect(kRowLeft, 28, width, kRowLineHeight); }

/// The icon follows the text.
constexpr CGRect rowIcon(CGFloat textWidth) {
    constexpr CGFloat kGap = 3;
    return rect(textWidth + kRowLeft + kGap, 29, 15, 12);
}

// The swipe menu: slots of one width, the Phone application's delete button in the last.

inline constexpr CGFloat kSlotWidth = 48;

constexpr CGFloat menuWidth(int32_t slots) { return static_cast<CGFloat>(slots) * kSlotWidth; }

constexpr CGRect menuSlot(int32_t index, CGFloat height) {
    return rect(menuWidth(index), 0, kSlotWidth, height);
}

struct Settling {
    bool staysOpen;
    CGPoint target;
    CGFloat rightInset;  // only where it stays open
    bool operator==(const Settling &) const = default;
};

/// Where a released swipe comes to rest: shut, or where the finger left it once half of the menu
/// shows.
constexpr Settling settle(CGPoint offset, int32_t slots) {
    const auto half = static_cast<CGFloat>(slots * 24);
    if (offset.x < half) {
        return {.staysOpen = false, .target = {0, offset.y}, .rightInset = 0};
    }
    return {.staysOpen = true, .target = offset, .rightInset = menuWidth(slots)};
}

// The detail header. iOS 8 has numbers of its own, though the header is only shown before it.

constexpr CGFloat headerLeft(bool from80) { return from80 ? 15 : 35; }

constexpr CGFloat headerHeight(bool hasInfo, bool isForeign, bool from80) {
    if (!hasInfo) {
        return from80 ? CGFloat(66.5) : 58;
    }
    return (from80 ? CGFloat(79.5) : 71) + (isForeign ? 20 : 0);
}

/// The frames that the header's views are made with; those of no size get theirs with each number.
struct NewHeader {
    CGRect logo, product, wholeButton, halfButton;
};

constexpr NewHeader newHeader(bool from80) {
    const CGFloat left = headerLeft(from80);
    constexpr CGFloat kLogoSide = 14;
    return {
        .logo = rect(left, 22, kLogoSide, kLogoSide),
        .product = rect(left + kLogoSide + 3, 22, 200, 13),
        .wholeButton = rect(left, 100, 280, 30),
        .halfButton = rect(left, 100, 140, 30),
    };
}

struct Header {
    bool from80;
    CGFloat screenWidth, productHeight;
    // A nil text has no description, an empty one has.
    bool hasInfo, isForeign, hasTagline;
    bool hasCorrect, hasMark;
};

/// Which part of its row a button is; as wide as the message that tells the button.
enum class RowPart : NSInteger { All, Left, Middle, Right };

/// One of the buttons that form a row together.
struct HeaderButton {
    CGRect frame;
    RowPart part;
    bool operator==(const HeaderButton &) const = default;
};

struct HeaderPlaces {
    CGFloat personY;
    CGRect description, warning;
    // Of the two first, those that are not shown have no meaning.
    HeaderButton correct, mark, search;
};

constexpr void placeButtons(HeaderPlaces &places, const Header &header, CGFloat y) {
    constexpr CGFloat kHeight = 44;
    const CGFloat left = headerLeft(header.from80);
    const CGFloat third = header.from80 ? 97 : 90;
    const CGFloat half = header.from80 ? 145 : 135;
    const CGFloat whole = header.from80 ? 292 : 272;
    const auto button = [&](CGFloat width, CGFloat before, RowPart part) {
        return HeaderButton{rect(left + before * (width + 1), y, width, kHeight), part};
    };
    if (header.hasCorrect && header.hasMark) {
        places.correct = button(third, 0, RowPart::Left);
        places.mark = button(third, 1, RowPart::Middle);
        places.search = button(third, 2, RowPart::Right);
    } else if (header.hasCorrect || header.hasMark) {
        places.correct = places.mark = button(half, 0, RowPart::Left);
        places.search = button(half, 1, RowPart::Right);
    } else {
        places.search = button(whole, 0, RowPart::All);
    }
}

constexpr HeaderPlaces place(const Header &header) {
    constexpr CGFloat kLineHeight = 13, kWarningStep = 20;
    const CGFloat left = headerLeft(header.from80);
    const CGFloat width = header.screenWidth - left - 13;
    CGFloat y = header.productHeight + 22 + 14 + 14 + 22;
    HeaderPlaces places{};
    places.personY = header.hasTagline || header.isForeign ? 187 : header.hasInfo ? 167 : 154;
    places.description = rect(left, y, width, kLineHeight);
    if (header.isForeign) {
        y += kWarningStep;
        places.warning = rect(left, y, width, kLineHeight);
    }
    placeButtons(places, header, y + (header.hasInfo ? 27 : 10));
    return places;
}

/// The icon of a button, which is centred together with a title of that many UTF-16 units.
constexpr CGRect buttonIcon(CGSize button, size_t titleUnits) {
    constexpr CGFloat kSide = 14, kGap = 6, kUnit = 13;
    const CGFloat all = static_cast<CGFloat>(titleUnits) * kUnit + kSide + kGap;
    return rect((button.width - all) / 2, (button.height - kSide) / 2, kSide, kSide);
}

}  // namespace recents
