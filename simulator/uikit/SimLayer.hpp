// CALayer, as far as views are styled through it.
#pragma once

#include "objc/ClassBuilder.hpp"
#include "platform/UIKit.hpp"

class SimLayer : public objc::Instance {
  public:
    static void define();

    CGFloat cornerRadius() const { return cornerRadius_; }
    void setCornerRadius(CGFloat radius) { cornerRadius_ = radius; }
    CGFloat borderWidth() const { return borderWidth_; }
    void setBorderWidth(CGFloat width) { borderWidth_ = width; }
    /// A CGColor is the UIColor object itself; nil is opaque black, a layer's default.
    UIColor borderColor() const { return borderColor_; }
    void setBorderColor(UIColor color);
    bool masksToBounds() const { return masksToBounds_; }
    void setMasksToBounds(bool masks) { masksToBounds_ = masks; }

  private:
    objc::Owned<UIColor> borderColor_;
    CGFloat cornerRadius_ = 0;
    CGFloat borderWidth_ = 0;
    bool masksToBounds_ = false;
};
