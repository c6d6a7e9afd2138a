// One of the six buttons of the in-call screen: a thin circle with a glyph, its name below.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimControl.hpp"

namespace phone {

struct InCallFace {
    const char *icon;
    const char *title;
};

class InCallButton : public SimControl {
  public:
    static void define();

    /// `circle` is the button's frame; the title stands outside of it.
    static objc::Owned<UIView> make(CGRect circle, const InCallFace &face);

    void setFace(const InCallFace &face) const;
    /// A pressed button is filled with a veil, one that is switched on with a thicker one.
    void setHighlighted(bool highlighted);
    void setSelected(bool selected);

  private:
    void showState() const;

    objc::Owned<UIImageView> icon_;
    objc::Owned<UILabel> title_;
};

/// The white title below a circle, a new label in the coordinates of that circle's own view.
objc::Owned<UILabel> makeTitleBelow(CGRect circle);

}  // namespace phone
