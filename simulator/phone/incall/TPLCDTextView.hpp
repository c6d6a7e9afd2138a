// The large line of the in-call display: a name or a number.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimView.hpp"

namespace phone {

class TPLCDTextView : public SimView {
  public:
    static void define();

    id initWithFrame(CGRect frame);
    NSString text() const { return label_->text(); }
    void setText(NSString text) { label_->setText(text); }
    /// Centred, or from the left.
    void setCenterText(bool centred);
    void setLCDTextFont(UIFont font) { label_->setFont(font); }
    void layoutSubviews();

  private:
    objc::Owned<UILabel> label_;
};

}  // namespace phone
