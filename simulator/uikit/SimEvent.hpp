// UIEvent: what carries a touch to its view.
#pragma once

#include "objc/ClassBuilder.hpp"
#include "platform/UIKit.hpp"

class SimTouch;

class SimEvent : public objc::Instance {
  public:
    static void define();

    /// 0: touches.
    NSInteger type() const { return 0; }
    /// An NSSet of the event's touch.
    NSObject allTouches() const;
    SimTouch *touch() const;
    void setTouch(SimTouch *touch);

  private:
    objc::Owned<NSObject> touch_;
};
