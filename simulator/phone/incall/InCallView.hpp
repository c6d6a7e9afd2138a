// The in-call screen's parts: wallpaper, status bar, display, buttons and the keys that end and
// answer a call. What they do is the controller's.
#pragma once

#include <array>

#include "phone/Parts.hpp"
#include "phone/incall/DisplayContent.hpp"
#include "phone/incall/InCallGeometry.hpp"
#include "uikit/SimView.hpp"

namespace phone {

/// Which buttons there are.
enum class InCallKeys {
    Ringing,   // decline and answer, nothing else
    Talking,   // the six buttons and the red key
    TwoCalls,  // the same, two of the six for swapping and merging
    Over,      // as they were, faded
};

class InCallView : public SimView {
  public:
    static void define();

    /// Builds all parts for the current device; they tell `target`: endPressed:, answerPressed:,
    /// swapPressed:, mergePressed: and togglePressed: with a button that is switched on or off.
    void build(Display display, NSObject target);

    void show(const DisplayContent &content, InCallKeys keys);
    /// The rows alone, as a running time changes them.
    void showRows(const DisplayContent &content) const;

    UIView display() const { return display_; }
    UIView wallpaper() const { return wallpaper_; }
    /// The six, row by row.
    UIView button(size_t index) const { return buttons_[index]; }
    UIView mergeButton() const { return buttons_[kMergeButton]; }
    UIView swapButton() const { return buttons_[kSwapButton]; }
    UIView endKey() const { return endKey_; }
    UIView declineKey() const { return declineKey_; }
    UIView answerKey() const { return answerKey_; }

  private:
    // With two calls these two of the buttons change their face.
    static constexpr size_t kMergeButton = 3;
    static constexpr size_t kSwapButton = 4;

    void buildButtons(const InCallLook &look, CGRect frame);
    void buildKeys(const InCallLook &look, const InCallFrames &frames);
    void showKeys(InCallKeys keys);
    void showFaces(bool hasTwoCalls) const;

    objc::Owned<UIView> wallpaper_;
    objc::Owned<UIView> display_;
    objc::Owned<UIView> buttonArea_;
    std::array<objc::Owned<UIView>, 6> buttons_;
    objc::Owned<UIView> endKey_;
    objc::Owned<UIView> declineKey_;
    objc::Owned<UIView> answerKey_;
    id target_ = nullptr;
};

}  // namespace phone
