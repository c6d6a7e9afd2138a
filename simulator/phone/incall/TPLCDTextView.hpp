// The large line of the in-call display: a name or a number, drawn at the top of the view.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimView.hpp"

namespace phone {

class TPLCDTextView : public SimView {
  public:
    static void define();

    NSString text() const { return text_; }
    void setText(NSString text);
    bool isTextCentered() const { return centred_; }
    /// Centred, or from the left.
    void setCenterText(bool centred) { centred_ = centred; }
    UIFont font() const { return font_; }
    /// A text that is too wide is drawn in a smaller one, within limits.
    void setLCDTextFont(UIFont font);
    void drawRect(CGRect rect);

  private:
    UIFont fontToFit(CGFloat width) const;

    objc::Owned<NSString> text_;
    objc::Owned<UIFont> font_;
    bool centred_ = true;
};

}  // namespace phone
