// The views that the add-on adds to the in-call displays.
#include "incall/AddedViews.hpp"

#include "incall/Description.hpp"
#include "platform/LayoutPass.hpp"

namespace incall {

void addDescriptionLabel(UIView parent, CGRect frame, Tag tag) {
    const auto label = withFrame<UILabel>(frame);
    label->setFont(UIFont::systemFontOfSize(kFontSize));
    label->setTextColor(UIColor::whiteColor());
    label->setTextAlignment(kTextAlignmentCenter);
    label->setBackgroundColor(UIColor::clearColor());
    addTagged(parent, label, tag);
}

void showDescription(InCallDisplay display, UILabel label, NSString description) {
    const auto attributed = twoToned(description);  // asks for colours
    if (LayoutPass::isOvertaken(display)) {
        return;
    }
    label.setText(description);
    if (attributed && !LayoutPass::isOvertaken(display)) {
        label.setAttributedText(attributed.get());
    }
}

UIView addGreenIcon(UIView parent, CGRect frame, Tag tag) {
    const UIImageView icon = withFrame<UIImageView>(frame).autorelease();
    icon.setImage(resourceImage("zqr_green_icon.png"_ns));
    addTagged(parent, icon, tag);
    return icon;
}

UIView findContainer(InCallDisplay display) {
    const UIView found = display.viewWithTag(kContainerTag);
    if (!found || found.superview().get() == display.get()) {
        return found;
    }
    for (const UIView subview : display.subviews()) {
        if (subview.tag() == kContainerTag) {
            return subview;
        }
    }
    return nullptr;
}

void setFrames(InCallDisplay display, std::initializer_list<Placed> places) {
    for (const auto &[view, frame] : places) {
        if (!LayoutPass::isOvertaken(display)) {
            view.setFrame(frame);
        }
    }
}

void hideAddedViews(InCallDisplay display) {
    findContainer(display).setHidden(true);
    for (const Tag tag : {kPictureTag, kFieldDescriptionTag, kFieldIconTag}) {
        display.viewWithTag(tag).setHidden(true);
    }
}

}  // namespace incall
