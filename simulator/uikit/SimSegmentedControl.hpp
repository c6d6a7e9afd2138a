// UISegmentedControl: one of a few words is chosen.
#pragma once

#include <vector>

#include "uikit/SimControl.hpp"

class SimSegmentedControl : public SimControl {
  public:
    static void define();

    /// Words of equal width in a frame of that size, the first of them chosen.
    static objc::Owned<UIView> make(CGSize size, const std::vector<NSString> &words);

    NSInteger selectedSegmentIndex() const { return selected_; }
    /// Without an event, as it is not a finger that chooses.
    void setSelectedSegmentIndex(NSInteger index);
    /// Lifted on a word the finger chooses it, which those hear who wait for a changed value.
    void touchesEnded(NSObject touches, SimEvent *event);

  private:
    void colourWords() const;

    std::vector<objc::Owned<UILabel>> labels_;
    NSInteger selected_ = 0;
};
