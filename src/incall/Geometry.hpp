// Where the caller's information stands on the in-call screen: plain numbers in, plain numbers out,
// all in points. Both displays have a column of text at the left, which is narrower beside a
// picture, and centre the green icon and the description together within it.
#pragma once

#include <algorithm>

#include "platform/CoreGraphics.hpp"

namespace incall {

inline constexpr CGFloat kIconSide = 15;

struct Column {
    CGFloat x, width;
    bool operator==(const Column &) const = default;
};

/// What stands at the right of the text.
enum class Beside : unsigned char { Nothing, SystemPicture, Logo, Avatar };

constexpr CGFloat columnWidth(Beside beside) {
    switch (beside) {
    case Beside::Nothing:
        return 280;
    case Beside::Logo:
        return 220;
    case Beside::SystemPicture:
    case Beside::Avatar:
        return 190;
    }
    return 0;
}

/// The column's first points are the icon's, also where it stands further right.
constexpr CGRect descriptionFrame(Column column, CGFloat y, CGFloat height) {
    constexpr CGFloat kIconRoom = 18;
    return rect(column.x + kIconRoom, y, column.width - kIconRoom, height);
}

/// Icon and text, 3 apart, in the middle of the column, but never left of it.
constexpr CGFloat iconX(Column column, CGFloat textWidth) {
    constexpr CGFloat kGap = 3;
    const CGFloat centred = (column.width - (textWidth + kGap + kIconSide)) / 2;
    return column.x + std::max(centred, CGFloat{0});
}

/// The Phone application's two lines and what the add-on puts around them. In the LCD view `line`
/// is the description's container, whose label and icon have x and width only; in the LCD field it
/// is the description itself.
struct Frames {
    CGRect picture, text, label, line;
    bool operator==(const Frames &) const = default;
};

// The LCD view.

/// The frames that the description's views are made with, in a display of that size.
struct NewLine {
    CGRect container, label, icon;
};

constexpr NewLine newLine(CGSize display) {
    const CGFloat height = display.height / 6;
    return {
        .container = rect(0, 0, display.width, height),
        .label = rect(37, 0, 218, height),
        .icon = rect(0, 0, kIconSide, kIconSide),
    };
}

struct LCDView {
    Frames frames;
    CGFloat height;
    Beside beside;
    bool describes;  // there is a description to make room for
    bool shortScreen;
};

/// The text column of the LCD view: where its text view stands, but at the margin beside a logo.
constexpr Column columnOf(const LCDView &view) {
    constexpr CGFloat kMargin = 20;
    return {view.beside == Beside::Logo ? kMargin : view.frames.text.origin.x,
            columnWidth(view.beside)};
}

constexpr Frames place(LCDView view) {
    auto &[picture, text, label, line] = view.frames;
    const bool placesPicture = view.beside == Beside::Logo || view.beside == Beside::Avatar;
    if (placesPicture) {
        picture.origin = {220, 12};
    }
    if (view.beside == Beside::Logo) {
        text.origin.x = label.origin.x = columnOf(view).x;
    }
    text.size.width = label.size.width = columnWidth(view.beside);
    if (view.describes) {
        const CGFloat bottom = view.height - line.size.height;
        text.origin.y = 5;
        label.origin.y = view.shortScreen ? 44 : 45;
        line.origin.y = bottom - (view.shortScreen ? 16 : 6);
        if (view.shortScreen) {
            picture.origin.y = 5;
        }
    }
    return view.frames;
}

// The LCD field.

constexpr CGRect newFieldLabel(bool is71) { return rect(0, is71 ? 70 : 75, 320, 20); }

constexpr CGRect newFieldIcon(CGRect label) {
    return rect(0, label.origin.y + (label.size.height - kIconSide) / 2, kIconSide, kIconSide);
}

struct LCDField {
    Frames frames;
    CGRect icon;
    Beside beside;
    CGFloat textWidth;  // of the description
    bool shortScreen, is71;
};

struct FieldPlaces {
    Frames frames;
    CGRect icon;
};

constexpr FieldPlaces place(LCDField field) {
    auto &[picture, text, label, line] = field.frames;
    const Column column{text.origin.x, columnWidth(field.beside)};
    if (field.beside == Beside::Logo || field.beside == Beside::Avatar) {
        picture.origin = {220, 20};
    }
    text.size.width = label.size.width = column.width;
    CGFloat lineY = line.origin.y;
    if (field.shortScreen) {
        picture.origin.y = text.origin.y = 15;
        text.size.height = 55;
        label.origin.y = field.is71 ? 42 : 54;
        lineY = field.is71 ? 54 : 68;
    } else {
        label.origin.y = field.is71 ? 53 : 55;
    }
    field.icon.origin = {iconX(column, field.textWidth),
                         field.icon.origin.y + lineY - line.origin.y};
    line = descriptionFrame(column, lineY, line.size.height);
    return {field.frames, field.icon};
}

// A contact's region, written into the Phone application's own label.

/// Beside a text that the label centres: its width comes from measuring it.
constexpr CGRect regionIcon(CGFloat labelWidth, CGFloat textWidth, bool shortScreen) {
    return rect((labelWidth - textWidth) / 2 - 20, shortScreen ? 0 : 3, kIconSide, kIconSide);
}

/// The same with a running time in it. The text's width is estimated from its length, so that the
/// icon does not move every second; separators and colons, of which a time of 8 units has one more,
/// are taken off. Lengths in UTF-16 units.
constexpr CGRect regionIconBesideTime(CGFloat labelWidth, size_t units, size_t timeUnits,
                                      CGFloat fontSize, bool shortScreen) {
    const CGFloat wide = static_cast<CGFloat>(units) - (timeUnits == 8 ? 6 : 4);
    return rect((labelWidth - wide * fontSize) / 2 - 15, shortScreen ? 0 : 3, kIconSide, kIconSide);
}

/// A label whose text stands at its left end moves to make room for the icon before it.
constexpr CGRect labelBehindIcon(CGRect label, size_t regionUnits, CGFloat fontSize) {
    constexpr CGFloat kWidest = 200;
    const CGFloat wanted = label.size.width + fontSize * static_cast<CGFloat>(regionUnits + 2);
    return rect(40, label.origin.y, std::min(wanted, kWidest), label.size.height);
}

inline constexpr CGRect kIconBeforeLabel = rect(-20, 3, kIconSide, kIconSide);

// Pictures at the right.

inline constexpr CGRect kLogoContainer = rect(0, 0, 74, 74);
inline constexpr CGRect kLogo = rect(29, 0, 45, 45);

/// A logo shown: as wide as this, whatever it was made with.
constexpr CGRect shownLogo(CGRect logo) {
    constexpr CGFloat kWidth = 44;
    return {logo.origin, {kWidth, logo.size.height}};
}

struct AvatarPlaces {
    CGRect container, avatar, border;
    CGFloat cornerRadius;
};

constexpr AvatarPlaces placeAvatar(bool shortScreen) {
    const CGFloat side = shortScreen ? 67 : 74;
    const CGRect whole = rect(0, 0, side, side);
    const CGRect inner = rect(2, 2, side - 4, side - 4);
    return {
        .container = whole, .avatar = inner, .border = whole, .cornerRadius = inner.size.width / 2};
}

}  // namespace incall
