// Texts of two parts, each in a colour of its own.
#pragma once

#include <algorithm>

#include "platform/UIKit.hpp"

/// `text` with its first part, up to the separator, in one colour, and what begins with the
/// separator in another. A missing colour paints nothing; where there is no separator, all of
/// `text` is the first part.
inline objc::Owned<NSMutableAttributedString> inTwoTones(NSString text, NSString separator,
                                                         UIColor first, UIColor second) {
    auto painted = objc::create<NSMutableAttributedString(NSString)>("initWithString:"_sel, text);
    const auto paint = [&](UIColor color, NSRange range) {
        if (color) {
            painted->addAttribute(NSString(NSForegroundColorAttributeName), color, range);
        }
    };
    const NSUInteger length = text.length();
    const NSUInteger split = std::min(text.indexOf(separator), length);
    paint(first, {0, split});
    paint(second, {split, length - split});
    return painted;
}
