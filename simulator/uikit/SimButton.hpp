// UIButton: a title, an icon and a background for each state. What a state lacks is that of the
// normal one.
#pragma once

#include <map>

#include "uikit/SimControl.hpp"

class SimImageView;
class SimLabel;

class SimButton : public SimControl {
  public:
    static void define();

    /// 0 custom (white title), 1 system (title in the tint colour); others look like the system's.
    static id withType(Class cls, NSInteger type);
    NSInteger buttonType() const { return type_; }

    NSString titleForState(NSUInteger state) const;
    void setTitle(NSString title, NSUInteger state);
    UIColor titleColorForState(NSUInteger state) const;
    void setTitleColor(UIColor color, NSUInteger state);
    UIImage imageForState(NSUInteger state) const;
    void setImage(UIImage image, NSUInteger state);
    UIImage backgroundImageForState(NSUInteger state) const;
    void setBackgroundImage(UIImage image, NSUInteger state);
    NSString currentTitle() const { return titleForState(state()); }
    UIColor currentTitleColor() const { return titleColorForState(state()); }
    UIImage currentImage() const { return imageForState(state()); }
    UIImage currentBackgroundImage() const { return backgroundImageForState(state()); }

    /// Made on first use, the button's subviews.
    SimLabel *titleLabel();
    SimImageView *imageView();

    UIEdgeInsets contentEdgeInsets() const { return contentEdgeInsets_; }
    void setContentEdgeInsets(UIEdgeInsets insets) { setInsets(contentEdgeInsets_, insets); }
    UIEdgeInsets titleEdgeInsets() const { return titleEdgeInsets_; }
    void setTitleEdgeInsets(UIEdgeInsets insets) { setInsets(titleEdgeInsets_, insets); }
    UIEdgeInsets imageEdgeInsets() const { return imageEdgeInsets_; }
    void setImageEdgeInsets(UIEdgeInsets insets) { setInsets(imageEdgeInsets_, insets); }

    CGRect contentRectForBounds(CGRect bounds) const;
    CGRect titleRectForContentRect(CGRect content) const;
    CGRect imageRectForContentRect(CGRect content) const;
    CGSize sizeThatFits(CGSize room) const;
    CGSize intrinsicContentSize() const;
    void layoutSubviews();
    void drawRect(CGRect rect);

  private:
    /// One object for each state that was given one.
    template <class T>
    class PerState {
      public:
        T at(NSUInteger state) const;
        void set(objc::Owned<T> object, NSUInteger state);

      private:
        std::map<NSUInteger, objc::Owned<T>> objects_;
    };

    CGSize titleSize() const;
    CGSize imageSize() const;
    void updateParts();
    void partsHaveChanged();
    void setInsets(UIEdgeInsets &insets, UIEdgeInsets value);

    PerState<NSString> titles_;
    PerState<UIColor> titleColors_;
    PerState<UIImage> images_;
    PerState<UIImage> backgrounds_;
    objc::Owned<UILabel> titleLabel_;
    objc::Owned<UIImageView> imageView_;
    UIEdgeInsets contentEdgeInsets_{};
    UIEdgeInsets titleEdgeInsets_{};
    UIEdgeInsets imageEdgeInsets_{};
    NSInteger type_ = 0;
};
