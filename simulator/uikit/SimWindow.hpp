// UIWindow: the root of a view tree; it takes events to the view they belong to.
#pragma once

#include "uikit/SimView.hpp"

class SimWindow : public SimView {
  public:
    static void define();

    ~SimWindow();

    id initWithFrame(CGRect frame);
    SimViewController *rootViewController() const;
    /// Its view becomes the window's subview and fills it.
    void setRootViewController(SimViewController *controller);
    void makeKeyAndVisible();
    bool isKeyWindow() const;
    SimResponder *nextResponder();
    /// Takes the event's touch on its way (see TouchDelivery).
    void sendEvent(SimEvent *event);

  private:
    objc::Owned<NSObject> rootViewController_;
};
