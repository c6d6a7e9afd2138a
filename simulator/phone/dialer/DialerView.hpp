// The dialer's whole screen: display, twelve keys, call key and delete key. It knows where things
// stand; what they do is the controller's.
#pragma once

#include <array>

#include "phone/dialer/DialerKey.hpp"
#include "uikit/SimView.hpp"

namespace phone {

class PHHandsetDialerLCDView;

class DialerView : public SimView {
  public:
    static void define();

    /// Builds all parts for the current device; each tells `target`: dialerKeyPressed: (the key),
    /// callPressed: and deletePressed:.
    void build(NSObject target);

    PHHandsetDialerLCDView *display() const;
    /// The key with that sign on it ("0" to "9", "*", "#"), or nil.
    UIView keyWithSign(std::string_view sign) const;
    UIView callKey() const { return callKey_; }
    UIView deleteKey() const { return deleteKey_; }

  private:
    void buildKeypad(NSObject target);
    objc::Owned<UIView> makeCallKey(CGRect frame, bool isRound) const;

    objc::Owned<UIView> display_;
    objc::Owned<UIView> callKey_;
    objc::Owned<UIView> deleteKey_;
    std::array<objc::Owned<UIView>, kKeyFaces.size()> keys_;
};

}  // namespace phone
