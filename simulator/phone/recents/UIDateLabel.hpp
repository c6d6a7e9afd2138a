// A label that shows a moment, some languages with a word for the part of the day in front.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimLabel.hpp"

namespace phone {

class UIDateLabel : public SimLabel {
  public:
    static void define();

    /// "上午" or "下午"; may be nil or empty. It is shown in front of the text, of which it is no
    /// part.
    NSString timeDesignator() const { return timeDesignator_; }
    void setTimeDesignator(NSString designator);

    CGSize sizeThatFits(CGSize room) const;
    CGSize intrinsicContentSize() const { return sizeThatFits({}); }
    void drawTextInRect(CGRect within);

  private:
    NSString shownText() const;

    objc::Owned<NSString> timeDesignator_;
};

}  // namespace phone
