// One row of the recents list: who, what of theirs, and when.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimTableViewCell.hpp"

class SimScrollView;

namespace phone {

class PHRecentsCell : public SimTableViewCell {
  public:
    static void define();

    id initWithStyle(NSInteger style, NSString reuseIdentifier);
    /// The recent call that the row shows.
    NSObject call() const { return call_; }
    void setCall(NSObject call);
    /// What the row says; nil texts are left out.
    void show(NSString name, NSString label, NSString date);

    void layoutSubviews();
    void setEditingAnimated(bool editing, bool animated);
    /// The system's own choice of where a swipe comes to rest stands.
    void scrollViewWillEndDragging(SimScrollView *scrollView, CGPoint velocity, CGPoint *target);

  private:
    objc::Owned<UILabel> callerNameLabel_;
    objc::Owned<UILabel> callerLabelLabel_;
    objc::Owned<UILabel> callerDateLabel_;
    objc::Owned<NSObject> call_;
};

}  // namespace phone
