// One of the in-call display's lines: the name or number, and below it the number's label or the
// running time. It draws its text itself.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimView.hpp"

namespace phone {

class TPLCDTextView : public SimView {
  public:
    static void define();

    /// What becomes of a text that is too wide, and where a line lies in a view that is higher.
    enum class Line {
        Name,   // drawn smaller, within limits; at the top
        Label,  // cut off; in the middle
    };
    static objc::Owned<UIView> make(Line line);

    NSString text() const { return text_; }
    void setText(NSString text);
    bool isTextCentered() const { return centred_; }
    /// Centred, or from the left.
    void setCenterText(bool centred) { change(centred_, centred); }
    void setLCDTextFont(UIFont font);
    /// Where the text is drawn in the view's own bounds.
    CGRect textRect() const;
    void drawRect(CGRect rect);

  private:
    CGSize sizeIn(UIFont font) const;
    UIFont fontToFit(CGFloat width) const;

    objc::Owned<NSString> text_;
    objc::Owned<UIFont> font_;
    CGFloat fontSize_ = 0;  // of the font, in points
    Line line_ = Line::Name;
    bool centred_ = true;
};

}  // namespace phone
