// One round key of the keypad. It tells its target when a finger goes down on it.
#pragma once

#include "phone/Parts.hpp"
#include "phone/dialer/KeyFaces.hpp"
#include "uikit/SimControl.hpp"

namespace phone {

class DialerKey : public SimControl {
  public:
    static void define();

    /// A new key that the caller owns.
    static objc::Owned<UIView> make(CGRect frame, const KeyFace &face);

    /// What the key puts in.
    NSString character() const { return character_; }
    void layoutSubviews();
    /// A pressed key is grey.
    void setHighlighted(bool highlighted);

  private:
    objc::Owned<UILabel> sign_;
    objc::Owned<UILabel> letters_;
    objc::Owned<NSString> character_;
};

}  // namespace phone
