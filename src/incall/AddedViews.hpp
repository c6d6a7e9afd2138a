// The views that the add-on adds to the in-call displays: their tags and what they are made of.
#pragma once

#include <initializer_list>

#include "companion/Interface.hpp"
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
/// Sets the description, in two tones where it has two parts, unless another pass lays `display`
/// out meanwhile.
void showDescription(InCallDisplay display, UILabel label, NSString description);
/// The small green icon beside a description. Owned by the pool as well, in case `parent` is nil.
UIView addGreenIcon(UIView parent, CGRect frame, Tag tag);

/// The icon before a contact's region.
inline UIView findRegionIcon(TPLCDTextView label) { return label.viewWithTag(kRegionIconTag); }

/// The container of an LCD view's description, a direct child of the display: an icon of the same
/// tag may lie in its label, also in one that the display no longer counts as its own. Nil when
/// there is none.
UIView findContainer(InCallDisplay display);

struct Placed {
    UIView view;
    CGRect frame{};
};

/// Sets the frames one after the other, as long as no other pass lays `display` out meanwhile.
void setFrames(InCallDisplay display, std::initializer_list<Placed> places);

/// Hides the description and the picture.
void hideAddedViews(InCallDisplay display);

}  // namespace incall
