// The small pieces that all screens are put together from.
#pragma once

#include <filesystem>

#include "objc/Owned.hpp"
#include "platform/UIKit.hpp"
#include "uikit/SimLabel.hpp"

namespace phone {

/// One of our own views as a handle.
inline UIView asView(const SimView &view) { return UIView(view); }

/// [[T alloc] initWithFrame:frame]
template <class T>
objc::Owned<UIView> makeView(CGRect frame) {
    const id memory = objc::send<id()>(objc::classOf<T>(), "alloc"_sel);
    return objc::Owned<UIView>::adopt(
        objc::send<UIView(CGRect)>(memory, "initWithFrame:"_sel, frame));
}

/// [[Name alloc] initWith...: first ...: second]; an address book's record, which another library
/// makes. Empty when that library is not loaded.
objc::Owned<NSObject> makeRecord(const char *className, auto initialiser, auto first, auto second) {
    const id memory = objc::send<id()>(objc::findClass(className), "alloc"_sel);
    return objc::Owned<NSObject>::adopt(objc::send<NSObject(decltype(first), decltype(second))>(
        memory, initialiser, first, second));
}

/// A label of one line with the system font in `points`.
objc::Owned<UILabel> makeLabel(CGRect frame, CGFloat points,
                               sim::TextAlignment alignment = sim::TextAlignment::Center);

/// The simulator's side of a label, for what the handle does not offer.
SimLabel *simLabel(UILabel label);

/// The picture in that file; nil when there is none.
UIImage picture(const std::filesystem::path &file);

/// The picture "share/phone/NAME.png"; nil when it is missing.
UIImage picture(const char *name);

/// An image view of the picture's size with its origin at `origin`.
objc::Owned<UIImageView> makePicture(const char *name, CGPoint origin);

/// A button of one icon, with a name for who cannot see it.
objc::Owned<UIView> makeButton(CGRect frame, const char *icon, NSString name);

/// Sends `action` to `target`, which is not retained, when one of the control events occurs.
void onTouch(UIView control, NSObject target, SEL action, NSUInteger events);

/// The system font's bold face.
UIFont boldFont(CGFloat points);

/// The light face that numbers are written in.
UIFont lightFont(CGFloat points);

/// Inside drawRect: one line of text, cut off at its end where it is too long.
void drawLine(NSString text, UIFont font, CGRect within, sim::TextAlignment alignment,
              UIColor textColor);

/// Components from 0 to 255.
UIColor color(int red, int green, int blue);

/// Whether the text is neither nil nor empty.
inline bool hasText(NSString text) { return text.length() > 0; }

}  // namespace phone
