// UIViewController: makes its view when it is first asked for and hears when it appears.
#pragma once

#include <vector>

#include "uikit/SimView.hpp"

class SimViewController : public SimResponder {
  public:
    static void define();

    ~SimViewController();

    /// Loads the view when there is none: loadView, then viewDidLoad.
    SimView *view();
    void setView(SimView *view);
    bool isViewLoaded() const { return static_cast<bool>(view_); }
    /// A plain view as large as the screen.
    void loadView();
    void viewDidLoad() {}
    void appearance(bool) {}
    NSString title() const { return title_; }
    void setTitle(NSString title);
    bool isEditing() const { return editing_; }
    void setEditing(bool editing);
    void setEditingAnimated(bool editing, bool animated);
    SimResponder *nextResponder();

    SimViewController *parentViewController() const { return parent_; }
    NSArray childViewControllers() const;
    void addChildViewController(SimViewController *child);
    void removeFromParentViewController();

  private:
    SimViewController *parent_ = nullptr;
    std::vector<objc::Owned<NSObject>> children_;
    objc::Owned<UIView> view_;
    objc::Owned<NSString> title_;
    bool editing_ = false;
};
