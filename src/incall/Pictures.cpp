// Logos and avatars at the right of an in-call display.
#include "incall/Pictures.hpp"

#include "incall/AddedViews.hpp"
#include "incall/Geometry.hpp"

namespace incall {
namespace {

UIImage logoImage(NSString path) {
    const UIImage logo = path ? UIImage::withContentsOfFile(path) : nullptr;
    return logo ? logo : resourceImage("brand_defualt_logo.png"_ns);
}

void addAvatarContainer(UIView display, UIImage image) {
    const AvatarPlaces places = placeAvatar(ZQPhoneUtil::isScreen35Inch());
    const auto container = withFrame<UIView>(places.container);

    const auto avatar = withFrame<UIImageView>(places.avatar);
    avatar->setImage(image);
    constexpr CGFloat kBorderWidth = 2;
    ZQUIUtil::setRoundRectView(avatar, places.cornerRadius, kBorderWidth, UIColor::whiteColor(),
                               true);
    container->addSubview(avatar);

    const auto border = withFrame<UIImageView>(places.border);
    border->setImage(resourceImage("head_border_Ta.png"_ns));
    container->addSubview(border);

    addTagged(display, container, kPictureTag);
}

bool showsBadge(NSString mobile) {
    id profile = nullptr;
    id content = nullptr;
    objc::create<ZQWeiboService>()->getWeiboInfo(mobile, &profile, &content);
    const ZQWeiboProfile found(profile);
    return found.avatarType() != 1 && found.boundType() == 1;
}

}  // namespace

bool addLogo(UIView view, bool hasSecondCall) {
    const UIView found = view.viewWithTag(kPictureTag);
    found.setHidden(hasSecondCall);
    if (found) {
        return false;
    }
    const auto container = withFrame<UIView>(kLogoContainer);
    addTagged(container, withFrame<UIImageView>(kLogo), kLogoTag);
    addTagged(view, container, kPictureTag);
    return true;
}

void showLogo(UIView container, NSString path) {
    const auto logo = container.viewWithTag(kLogoTag).as<UIImageView>();
    const UIImage image = logoImage(path);
    logo.setFrame(shownLogo(logo.frame()));
    logo.setImage(image);
}

bool addAvatar(InCallDisplay display, const Caller &caller) {
    if (caller.hasBigPicture) {
        return false;
    }
    const auto mobile =
        objc::Owned<NSString>::share(ZQPhoneNumber::getMobileNumberFromNumber(caller.number()));
    if (mobile->length() == 0) {
        return false;
    }
    if (const UIView systemPicture = display.imageView()) {
        systemPicture.setHidden(false);
        return true;
    }
    const UIImage image = ZQWeiboService::getLocalAvatarForNumber(mobile);
    if (!image) {
        return false;
    }
    const bool hasBadge = showsBadge(mobile);
    const UIView found = display.viewWithTag(kPictureTag);
    if (!found) {
        addAvatarContainer(display, image);
    }
    // One made just now stays as it is: shown.
    found.setHidden(caller.hasSecondCall());
    display.viewWithTag(kBadgeTag).setHidden(!hasBadge);
    return true;
}

}  // namespace incall
