// UIImageView: one image, placed by the content mode. It takes no touches unless told to.
#pragma once

#include "uikit/SimView.hpp"

class SimImage;

class SimImageView : public SimView {
  public:
    static void define();

    id initWithFrame(CGRect frame);
    /// Takes the image's size.
    id initWithImage(UIImage image);
    UIImage image() const { return image_; }
    void setImage(UIImage image);
    UIImage highlightedImage() const { return highlightedImage_; }
    void setHighlightedImage(UIImage image);
    bool isHighlighted() const { return highlighted_; }
    void setHighlighted(bool highlighted) { change(highlighted_, highlighted); }
    CGSize sizeThatFits(CGSize room) const;
    CGSize intrinsicContentSize() const;
    void drawRect(CGRect rect);

  private:
    SimImage *shown() const;

    objc::Owned<UIImage> image_;
    objc::Owned<UIImage> highlightedImage_;
    bool highlighted_ = false;
};
