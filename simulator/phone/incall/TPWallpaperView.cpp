// The in-call screen's background.
#include "phone/incall/TPWallpaperView.hpp"

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
    imageView_ = objc::create<UIImageView(CGRect)>("initWithFrame:"_sel, CGRect{});
    asView(*this).setBackgroundColor(color(44, 62, 80));
    asView(*this).addSubview(imageView_);
    return *this;
}

void TPWallpaperView::setContactImage(UIImage image, bool) {
    image_ = objc::Owned<UIImage>::share(image);
    imageView_->setImage(image);
}

void TPWallpaperView::layoutSubviews() { imageView_->setFrame(asView(*this).bounds()); }

}  // namespace phone
