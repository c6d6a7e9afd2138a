// UIResponder: an object that events pass through, from the innermost one outwards.
#pragma once

#include "objc/ClassBuilder.hpp"
#include "platform/UIKit.hpp"
#include "uikit/SimEvent.hpp"

class SimResponder : public objc::Instance {
  public:
    static void define();

    ~SimResponder();

    SimResponder *nextResponder() { return nullptr; }
    bool isFirstResponder() const { return isFirst_; }
    bool canBecomeFirstResponder() { return false; }
    bool becomeFirstResponder();
    bool resignFirstResponder();

    /// `touches` is an NSSet of UITouch. Each passes the event on to the next responder.
    void touchesBegan(NSObject touches, SimEvent *event);
    void touchesMoved(NSObject touches, SimEvent *event);
    void touchesEnded(NSObject touches, SimEvent *event);
    void touchesCancelled(NSObject touches, SimEvent *event);

  private:
    bool isFirst_ = false;
};
