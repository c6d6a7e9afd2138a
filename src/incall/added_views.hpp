// The views that the add-on adds to the in-call displays: their tags and what they are made of.
#pragma once

#include "identity/companion.hpp"
#include "platform/PhoneApp.hpp"

namespace incall {

enum Tag : NSInteger {
    // In an LCD view's container.
    kDescriptionTag = 1000,
    kIconTag = 1003,
    // In either display.
    kPictureTag = 1001,  // container of a logo or an avatar
    kBadgeTag = 1002,    // the companion's, only shown or hidden here
    // Two views: in an LCD view the container of its description, in a label view the icon before a
    // contact's region.
    kContainerTag = 1004,
    kRegionIconTag = 1004,
    // In an LCD field's content view.
    kFieldDescriptionTag = 1005,
    kFieldIconTag = 1006,
    // In a picture's container.
    kLogoTag = 1007,
};

inline constexpr CGFloat kFontSize = 14;

/// White, centred and clear behind.
void addDescriptionLabel(UIView parent, CGRect frame, Tag tag);
/// The small green icon beside a description. Owned by the pool as well, in case `parent` is nil.
UIView addGreenIcon(UIView parent, CGRect frame, Tag tag);

/// The icon before a contact's region.
inline UIView findRegionIcon(TPLCDLabelView label) { return label.viewWithTag(kRegionIconTag); }

/// The container of an LCD view's description, not to be taken for the icon inside its label; nil
/// when there is none.
UIView findContainer(InCallDisplay display);

/// Hides whatever was added, so that the Phone application's own screen stands.
void hideAddedViews(InCallDisplay display);

/// iOS 7.1 up to, but not including, 8.0.
inline bool is71() {
    return ZQPhoneUtil::isEalierThanIOSVersion(8.0, false) &&
           ZQPhoneUtil::isLaterThanIOSVersion(7.1, true);
}

}  // namespace incall
