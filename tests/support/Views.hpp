// What a person sees of a view.
#pragma once

#include <string>

#include "platform/UIKit.hpp"

namespace test {

/// "(nil)" for nil.
inline std::string readable(NSString text) {
    const char *const chars = text.UTF8String();
    return chars ? chars : "(nil)";
}
inline std::string textOf(UIView view) {
    return readable(objc::send<NSString()>(view, "text"_sel));
}
inline bool isHidden(UIView view) { return objc::send<bool()>(view, "isHidden"_sel); }
/// There, and not hidden itself.
inline bool isShown(UIView view) { return view && !isHidden(view); }

/// A layout pass, wanted or not.
inline void layOut(UIView view) {
    objc::send<void()>(view, "setNeedsLayout"_sel);
    objc::send<void()>(view, "layoutIfNeeded"_sel);
}

}  // namespace test
