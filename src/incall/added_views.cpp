// The views that the add-on adds to the in-call displays.
#include "incall/added_views.hpp"

namespace incall {

void addDescriptionLabel(UIView parent, CGRect frame, Tag tag) {
    const auto label = withFrame<UILabel>(frame);
    label->setFont(UIFont::systemFontOfSize(kFontSize));
    label->setTextColor(UIColor::whiteColor());
    label->setTextAlignment(kTextAlignmentCenter);
    label->setBackgroundColor(UIColor::clearColor());
    addTagged(parent, label, tag);
}

UIView addGreenIcon(UIView parent, CGRect frame, Tag tag) {
    const UIImageView icon = withFrame<UIImageView>(frame).autorelease();
    icon.setImage(resourceImage("zqr_green_icon.png"_ns));
    addTagged(parent, icon, tag);
    return icon;
}

UIView findContainer(InCallDisplay display) {
    const UIView found = display.viewWithTag(kContainerTag);
    if (!found || found.get() != findRegionIcon(display.labelView()).get()) {
        return found;
    }
    // The icon lies before the container in the tree, if there is one at all.
    const NSArray subviews = display.subviews();
    for (NSUInteger i = 0, count = subviews.count(); i < count; ++i) {
        const auto subview = subviews.objectAtIndex(i).as<UIView>();
        if (subview.viewWithTag(kContainerTag).get() == subview.get()) {
            return subview;
        }
    }
    return nullptr;
}

void hideAddedViews(InCallDisplay display) {
    findContainer(display).setHidden(true);
    findRegionIcon(display.labelView()).setHidden(true);
    for (const Tag tag : {kPictureTag, kFieldDescriptionTag, kFieldIconTag}) {
        display.viewWithTag(tag).setHidden(true);
    }
}

}  // namespace incall
