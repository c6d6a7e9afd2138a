// What the in-call screen's two displays have in common: a name, a label below it and, for a
// contact with a picture, the picture at the right; or the names and labels of two calls.
#pragma once

#include "phone/Parts.hpp"
#include "phone/incall/InCallGeometry.hpp"
#include "uikit/SimImageView.hpp"

namespace phone {

/// A strip across the screen.
class TPLCDBar : public SimView {};

/// The contact's picture.
class TPLCDSubImageView : public SimImageView {};

class TPLCDView : public TPLCDBar {
  public:
    /// The other two as well.
    static void define();

    id initWithFrame(CGRect frame);
    void setText(NSString text);
    void setLabel(NSString label);
    /// The second row; with a nil text there is none.
    void setSecondText(NSString text);
    void setSecondLabel(NSString label);
    /// The contact's picture; nil takes it away.
    void setImage(UIImage image);
    /// Whether the only call is a contact's.
    void setShowsContact(bool isContact);
    /// Whether a single call's name and label stand in the middle or at the left. Those of two
    /// calls always stand at the left.
    void setCenterText(bool centred);
    /// Puts every part in its place and says how the texts are to be written.
    void layoutSubviews();

  protected:
    /// Makes a field of it: the lines move into a view of their own, inside this one. To be called
    /// before there is more.
    void useContentView();

  private:
    UIView holder() const { return contentView_ ? contentView_.get() : asView(*this); }
    void addLines() const;
    void placeImage(CGRect frame) const;

    objc::Owned<UIView> textView_;
    objc::Owned<UIView> labelView_;
    objc::Owned<UIView> secondTextView_;
    objc::Owned<UIView> secondLabelView_;
    objc::Owned<UIView> imageView_;
    objc::Owned<UIView> contentView_;
    Display display_ = Display::View;
    bool hasTwoRows_ = false;
    bool isContact_ = false;
    bool centred_ = true;
};

}  // namespace phone
