// One row of the recents list: who, what of theirs, and when.
#pragma once

#include "phone/Parts.hpp"
#include "phone/recents/PHRecentCall.hpp"
#include "uikit/SimTableViewCell.hpp"

namespace phone {

/// A caller in words: the contact or the number as the telephone writes it, and what stands below.
struct CallerTexts {
    std::string name;
    std::string label;
};
CallerTexts callerTexts(const PHRecentCall &call);

class PHRecentsCell : public SimTableViewCell {
  public:
    static void define();

    ~PHRecentsCell();

    id initWithStyle(NSInteger style, NSString reuseIdentifier);
    /// The recent call that the row shows, a PHRecentCall or nil.
    NSObject call() const { return call_; }
    /// The labels get their texts here, once.
    void setCall(NSObject call);
    /// Any second of the day that counts as today, since 1970; none: the date is left out. To be
    /// set before the call.
    void setToday(std::optional<double> seconds) { today_ = seconds; }
    UIView infoButton() const { return infoButton_; }

    void setEditingAnimated(bool editing, bool animated);

  private:
    void showCall(const PHRecentCall &call);
    void placeParts();

    objc::Owned<UILabel> callerNameLabel_;
    objc::Owned<UILabel> callerLabelLabel_;
    objc::Owned<UILabel> callerDateLabel_;
    objc::Owned<NSObject> call_;
    objc::Owned<UIView> infoButton_;
    objc::Owned<UIImageView> outgoingGlyph_;
    std::optional<double> today_;
};

}  // namespace phone
