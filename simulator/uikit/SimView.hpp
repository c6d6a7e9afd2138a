// UIView: a rectangle with subviews. There are no transforms, so a view keeps its frame as it was
// set and frames read back exactly; the bounds have the frame's size.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "uikit/ContentMode.hpp"
#include "uikit/SimLayer.hpp"
#include "uikit/SimResponder.hpp"
#include "uikit/drawing/Geometry.hpp"

class SimViewController;
class SimWindow;

/// UIAccessibilityTraits, as far as they occur.
inline constexpr std::uint64_t kTraitButton = 1U << 0U;
inline constexpr std::uint64_t kTraitSelected = 1U << 3U;

/// Member functions are the implementations of the messages; what a subclass or a hook may replace
/// is to be sent as a message, through a UIView handle.
class SimView : public SimResponder {
  public:
    static void define();

    SimView();
    ~SimView();

    /// No other view of the process has had it.
    std::uint32_t viewId() const { return viewId_; }

    id init();
    id initWithFrame(CGRect frame);

    // Geometry, in points of the superview; bounds in the view's own.
    CGRect frame() const { return frame_; }
    void setFrame(CGRect frame);
    CGRect bounds() const { return {boundsOrigin_, frame_.size}; }
    /// A new size keeps the centre where it is.
    void setBounds(CGRect bounds);
    CGPoint center() const;
    void setCenter(CGPoint center);

    /// See Autoresizing. Without a mask the view stays where it is, as large as it is.
    NSUInteger autoresizingMask() const { return autoresizingMask_; }
    void setAutoresizingMask(NSUInteger mask) { autoresizingMask_ = mask; }
    bool autoresizesSubviews() const { return autoresizesSubviews_; }
    void setAutoresizesSubviews(bool autoresizes) { autoresizesSubviews_ = autoresizes; }

    bool isHidden() const { return hidden_; }
    void setHidden(bool hidden) { change(hidden_, hidden); }
    CGFloat alpha() const { return alpha_; }
    void setAlpha(CGFloat alpha) { change(alpha_, alpha); }
    bool isOpaque() const { return opaque_; }
    void setOpaque(bool opaque) { opaque_ = opaque; }
    NSInteger tag() const { return tag_; }
    void setTag(NSInteger tag) { change(tag_, tag); }
    bool clipsToBounds() const { return layer()->masksToBounds(); }
    void setClipsToBounds(bool clips) { layer()->setMasksToBounds(clips); }
    bool isUserInteractionEnabled() const { return userInteractionEnabled_; }
    void setUserInteractionEnabled(bool enabled) { userInteractionEnabled_ = enabled; }
    ContentMode contentMode() const { return contentMode_; }
    void setContentMode(ContentMode mode) { contentMode_ = mode; }
    UIColor backgroundColor() const { return backgroundColor_; }
    void setBackgroundColor(UIColor color);
    /// The nearest one set on this view or above it, else the system's blue.
    UIColor tintColor() const;
    void setTintColor(UIColor color);
    /// Made on first use, owned by the view.
    SimLayer *layer() const;

    // The tree. A view owns its subviews, back to front.
    SimView *superview() const { return superview_; }
    NSArray subviews() const;
    SimWindow *window() const;
    const std::vector<objc::Owned<UIView>> &children() const { return subviews_; }
    void addSubview(SimView *view);
    /// An index behind the end adds on top.
    void insertSubviewAtIndex(SimView *view, NSInteger index);
    void insertSubviewBelow(SimView *view, SimView *sibling);
    void insertSubviewAbove(SimView *view, SimView *sibling);
    void removeFromSuperview();
    void bringSubviewToFront(SimView *view);
    void sendSubviewToBack(SimView *view);
    SimView *viewWithTag(NSInteger tag);
    bool isDescendantOfView(SimView *view) const;
    // Called as the tree changes; they do nothing by themselves.
    void ignoreView(SimView *) {}
    void ignoreMove() {}

    // Layout, by message: a view that needs it is laid out by way of its layer, whose delegate it
    // is. That message sends layoutSubviews even while layoutSubviews runs.
    void setNeedsLayout() { needsLayout_ = true; }
    /// Pass by pass, until nothing below needs another one. Raises when it never comes to rest.
    void layoutIfNeeded();
    /// Before iOS 8 a view under Auto Layout raises here when it got a subview after UIView's own
    /// layoutSubviews had been there.
    void layoutSublayersOfLayer(NSObject layer);
    /// Places the subviews as the view's constraints say.
    void layoutSubviews();
    /// What stands for constraints: it places subviews, and brings the view under Auto Layout.
    void setConstraints(std::function<void()> place) { constraints_ = std::move(place); }
    CGSize sizeThatFits(CGSize room) const;
    void sizeToFit();
    /// -1 stands for no width or height of its own.
    CGSize intrinsicContentSize() const { return {-1, -1}; }
    /// All views above that are under Auto Layout need to be laid out.
    void invalidateIntrinsicContentSize();

    /// The renderer sends drawRect: on every pass, so there is nothing to be remembered.
    void setNeedsDisplay() {}
    void drawRect(CGRect) {}

    // Touches and coordinates; a nil view stands for the window.
    SimResponder *nextResponder();
    bool pointInside(CGPoint point, SimEvent *event);
    SimView *hitTest(CGPoint point, SimEvent *event);
    CGPoint convertPointToView(CGPoint point, SimView *view);
    CGPoint convertPointFromView(CGPoint point, SimView *view);
    CGRect convertRectToView(CGRect rect, SimView *view);
    CGRect convertRectFromView(CGRect rect, SimView *view);

    // What is told to who cannot see the screen; nil unless there is something to say.
    NSString accessibilityLabel() const { return accessibilityLabel_; }
    void setAccessibilityLabel(NSString label);
    /// UIAccessibilityTraits.
    std::uint64_t accessibilityTraits() const { return accessibilityTraits_; }
    void setAccessibilityTraits(std::uint64_t traits) { change(accessibilityTraits_, traits); }

    /// Something of what is seen of the view, or stands in it, is another now.
    void hasChanged() const;
    template <class Value>
    void change(Value &member, const Value &value) {
        if (member != value) {
            member = value;
            hasChanged();
        }
    }

    /// The controller whose view this is; it becomes the next responder. Not retained.
    void setViewController(SimViewController *controller) { controller_ = controller; }

  private:
    CGPoint originInWindow() const;
    void insert(SimView *view, std::size_t index);
    void detach();
    std::size_t indexOf(const SimView *view) const;
    void autoresize(CGSize before, CGSize now);
    bool needsLayoutWithin() const;
    void layOutOnce();

    const std::uint32_t viewId_;
    SimView *superview_ = nullptr;
    SimViewController *controller_ = nullptr;
    std::vector<objc::Owned<UIView>> subviews_;
    std::function<void()> constraints_;
    objc::Owned<UIColor> backgroundColor_;
    objc::Owned<UIColor> tintColor_;
    mutable objc::Owned<NSObject> layer_;
    objc::Owned<NSString> accessibilityLabel_;
    std::uint64_t accessibilityTraits_ = 0;
    CGRect frame_{};
    CGPoint boundsOrigin_{};
    CGFloat alpha_ = 1;
    NSInteger tag_ = 0;
    NSUInteger autoresizingMask_ = 0;
    ContentMode contentMode_ = ContentMode::ScaleToFill;
    bool hidden_ = false;
    bool opaque_ = true;
    bool userInteractionEnabled_ = true;
    bool autoresizesSubviews_ = true;
    bool needsLayout_ = true;
    bool needsConstraints_ = true;  // since a subview came
};
