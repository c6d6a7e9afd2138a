// The small line of the in-call display: the number's label, or the running time.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimView.hpp"

namespace phone {

class TPLCDLabelView : public SimView {
  public:
    static void define();

    NSString text() const { return text_; }
    void setText(NSString text);
    void setFontSize(float points) { fontSize_ = points; }
    /// Centred, or from the left.
    void setCenterText(bool centred) { centred_ = centred; }
    /// Where the text is drawn in the view's own bounds.
    CGRect textRect() const;
    void drawRect(CGRect rect);

  private:
    UIFont font() const;

    objc::Owned<NSString> text_;
    float fontSize_ = 14;
    bool centred_ = true;
};

}  // namespace phone
