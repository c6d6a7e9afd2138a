// UIScrollView: its bounds' origin is how far the content is scrolled.
#pragma once

#include "uikit/SimView.hpp"

class SimScrollView : public SimView {
  public:
    static void define();

    ~SimScrollView();

    id initWithFrame(CGRect frame);
    CGPoint contentOffset() const { return bounds().origin; }
    void setContentOffset(CGPoint offset);
    void setContentOffsetAnimated(CGPoint offset, bool animated);
    CGSize contentSize() const { return contentSize_; }
    void setContentSize(CGSize size) { contentSize_ = size; }
    UIEdgeInsets contentInset() const { return contentInset_; }
    void setContentInset(UIEdgeInsets inset) { contentInset_ = inset; }
    bool isScrollEnabled() const { return scrollEnabled_; }
    void setScrollEnabled(bool enabled) { scrollEnabled_ = enabled; }
    /// Whether it can be dragged that way even where all of the content is seen.
    bool alwaysBounceVertical() const { return alwaysBounceVertical_; }
    void setAlwaysBounceVertical(bool always) { alwaysBounceVertical_ = always; }
    bool alwaysBounceHorizontal() const { return alwaysBounceHorizontal_; }
    void setAlwaysBounceHorizontal(bool always) { alwaysBounceHorizontal_ = always; }
    /// What lies in it is touched only when the finger stays for a moment, or is lifted.
    bool delaysContentTouches() const { return delaysContentTouches_; }
    void setDelaysContentTouches(bool delays) { delaysContentTouches_ = delays; }
    NSObject delegate() const { return NSObject(delegate_); }
    /// Not retained; it hears what its optional messages are there for.
    void setDelegate(NSObject delegate) { delegate_ = delegate; }

    /// A finger drags the content.
    bool isDragging() const { return dragging_; }
    /// The finger has left it, and it moves on.
    bool isDecelerating() const { return decelerating_; }
    /// A finger drags any scroll view's content, or what it dragged moves on: the main run loop is
    /// in the mode of that, in which what belongs to its default mode waits.
    static bool isAnyTracking();

    /// Whether a finger that went this way drags the content: there is more of it in that
    /// direction.
    bool panShouldBegin(CGPoint way);
    /// A finger keeps the touch of a control that it has pressed already.
    bool touchesShouldCancelInContentView(UIView view);
    void beginDragging();
    /// The finger is so far from where it began to drag.
    void dragBy(CGPoint way);
    /// Where the content lies that a finger wants to have at `wanted`: beyond its ends it resists.
    CGPoint offsetUnderFinger(CGPoint wanted);
    /// The finger is lifted; the velocity is the content's, in points a millisecond. The delegate
    /// is asked through scrollViewWillEndDragging:withVelocity:targetContentOffset: where to come
    /// to rest: it finds the offset that the content would run to, and may change it.
    void endDragging(CGPoint velocity);
    /// Comes to rest there as if a finger had just left it.
    void runTo(CGPoint target);
    /// Neither dragged nor moving, wherever it is.
    void standStill();
    /// The offset nearest to this one at which content and insets fill the view.
    CGPoint nearestRest(CGPoint offset) const;

  private:
    void tell(SEL message);
    CGPoint lockedToContent(CGPoint offset, CGPoint from) const;
    void glideTo(CGPoint target, CGFloat speed);
    void updateTracking();

    id delegate_ = nullptr;
    CGSize contentSize_{};
    UIEdgeInsets contentInset_{};
    CGPoint dragStart_{};
    bool scrollEnabled_ = true;
    bool alwaysBounceVertical_ = false;
    bool alwaysBounceHorizontal_ = false;
    bool delaysContentTouches_ = true;
    bool dragging_ = false;
    bool decelerating_ = false;
    bool tracking_ = false;  // counted as such
};
