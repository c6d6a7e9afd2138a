// UIApplication: the windows, the route of actions, and the addresses that were opened.
#pragma once

#include <vector>

#include "uikit/SimResponder.hpp"

class SimWindow;

class SimApplication : public SimResponder {
  public:
    static void define();

    /// Made on first use, kept for the life of the process.
    static SimApplication *shared();

    /// Nothing leaves the simulator: the address is noted and said to be opened; NO for nil.
    bool openURL(NSObject url);
    bool canOpenURL(NSObject url) { return url.get() != nullptr; }
    /// The addresses opened so far, oldest first, as NSURL.
    NSArray openedURLs() const;
    void forgetOpenedURLs() { openedURLs_.clear(); }

    SimWindow *keyWindow() const { return keyWindow_; }
    /// Not retained, like the windows; a window takes itself out when it goes.
    void setKeyWindow(SimWindow *window) { keyWindow_ = window; }
    NSArray windows() const;
    void addWindow(SimWindow *window);
    void removeWindow(SimWindow *window);

    NSObject delegate() const { return NSObject(delegate_); }
    void setDelegate(NSObject delegate) { delegate_ = delegate; }
    CGRect statusBarFrame() const;
    bool sendAction(SEL action, NSObject target, NSObject sender, SimEvent *event);

  private:
    SimWindow *keyWindow_ = nullptr;
    id delegate_ = nullptr;
    std::vector<SimWindow *> windows_;
    std::vector<objc::Owned<NSObject>> openedURLs_;
};
