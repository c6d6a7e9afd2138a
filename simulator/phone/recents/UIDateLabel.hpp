// A label that shows a moment, some languages with a word for the part of the day in front.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimLabel.hpp"

namespace phone {

class UIDateLabel : public SimLabel {
  public:
    static void define();

    /// "上午" or "下午"; may be nil or empty. It is not part of the text.
    NSString timeDesignator() const { return timeDesignator_; }
    void setTimeDesignator(NSString designator);

  private:
    objc::Owned<NSString> timeDesignator_;
};

}  // namespace phone
