// What the in-call screen's two displays have in common: a name, a label below it and, for a
// contact with a picture, the picture at the right.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimView.hpp"

namespace phone {

class TPLCDView : public SimView {
  public:
    static void define();

    id initWithFrame(CGRect frame);
    void setText(NSString text);
    void setLabel(NSString label);
    /// The contact's picture; nil takes it away.
    void setImage(UIImage image);
    void setCenterText(bool centred);

  protected:
    /// Puts the two lines one below the other, the first at `top`, beside the picture if any.
    void placeLines(CGFloat top, CGFloat textHeight);
    /// Moves the lines into a view of their own, inside this one.
    void useContentView();

  private:
    UIView holder() const { return contentView_ ? contentView_.get() : asView(*this); }

    objc::Owned<UIView> textView_;
    objc::Owned<UIView> labelView_;
    objc::Owned<UIView> imageView_;
    objc::Owned<UIView> contentView_;
};

/// The display of the screen that takes its whole width, parts directly inside.
class InCallLCDView : public TPLCDView {
  public:
    static void define();
    void layoutSubviews();
};

/// The display with a content view of its own.
class InCallLCDField : public TPLCDView {
  public:
    static void define();
    id initWithFrame(CGRect frame);
    void layoutSubviews();
};

}  // namespace phone
