// What lies behind the in-call screen: a wallpaper, or the contact's own large picture.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimView.hpp"

namespace phone {

class TPWallpaperView : public SimView {
  public:
    static void define();

    id initWithFrame(CGRect frame);
    UIImage contactImage() const { return image_; }
    /// Nil brings the wallpaper back. There is no animation between two pictures here.
    void setContactImage(UIImage image, bool animated);
    void layoutSubviews();

  private:
    objc::Owned<UIImage> image_;
    objc::Owned<UIImageView> imageView_;
    objc::Owned<UIView> shade_;  // over a contact's picture, so that white text can be read
};

}  // namespace phone
