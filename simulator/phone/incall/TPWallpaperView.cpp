// The in-call screen's background.
#include "phone/incall/TPWallpaperView.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {

void TPWallpaperView::define() {
    using objc::member;
    using Self = TPWallpaperView;
    sim::defined("TPWallpaperView",
                 objc::ClassBuilder<Self>("TPWallpaperView", "UIView")
                     .method("initWithFrame:"_sel, member<&Self::initWithFrame>)
                     .method("contactImage"_sel, member<&Self::contactImage>)
                     .method("setContactImage:animated:"_sel, member<&Self::setContactImage>)
                     .method("layoutSubviews"_sel, member<&Self::layoutSubviews>)
                     .finish());
}

id TPWallpaperView::initWithFrame(CGRect frame) {
    objc::sendSuper<TPWallpaperView, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    setClipsToBounds(true);
    imageView_ = objc::create<UIImageView(CGRect)>("initWithFrame:"_sel, CGRect{});
    sim::instance<SimView>(imageView_)->setContentMode(ContentMode::ScaleAspectFill);
    shade_ = makeView<SimView>({});
    shade_->setBackgroundColor(UIColor::withWhite(0, 0.4));
    asView(*this).addSubview(imageView_);
    asView(*this).addSubview(shade_);
    setContactImage({}, false);
    return *this;
}

void TPWallpaperView::setContactImage(UIImage image, bool) {
    image_ = objc::Owned<UIImage>::share(image);
    imageView_->setImage(image ? image : picture("incall_wallpaper"));
    shade_->setHidden(!image);
}

void TPWallpaperView::layoutSubviews() {
    imageView_->setFrame(asView(*this).bounds());
    shade_->setFrame(asView(*this).bounds());
}

}  // namespace phone
