// UIScrollView: its bounds' origin is how far the content is scrolled.
#pragma once

#include "uikit/SimView.hpp"

class SimScrollView : public SimView {
  public:
    static void define();

    ~SimScrollView() { cancelDragging(); }

    id initWithFrame(CGRect frame);
    CGPoint contentOffset() const { return bounds().origin; }
    void setContentOffset(CGPoint offset);
    /// Without animation: the simulator has no time between two pictures.
    void setContentOffsetAnimated(CGPoint offset, bool animated);
    CGSize contentSize() const { return contentSize_; }
    void setContentSize(CGSize size) { contentSize_ = size; }
    UIEdgeInsets contentInset() const { return contentInset_; }
    void setContentInset(UIEdgeInsets inset) { contentInset_ = inset; }
    bool isScrollEnabled() const { return scrollEnabled_; }
    void setScrollEnabled(bool enabled) { scrollEnabled_ = enabled; }
    NSObject delegate() const { return NSObject(delegate_); }
    /// Not retained; it hears scrollViewDidScroll:.
    void setDelegate(NSObject delegate) { delegate_ = delegate; }

    /// A finger drags the content.
    bool isDragging() const { return dragging_; }
    /// A finger drags any scroll view's content: the main run loop is in the mode of that, in which
    /// what belongs to its default mode waits.
    static bool isAnyDragging();
    void beginDragging();
    /// The finger is lifted. The delegate is asked through
    /// scrollViewWillEndDragging:withVelocity:targetContentOffset: where to come to rest; it finds
    /// the offset that there is and may change it.
    void endDragging(CGPoint velocity);
    /// The finger is gone, and the content stays where it is.
    void cancelDragging();
    /// The offset nearest to this one at which content and insets fill the view.
    CGPoint nearestRest(CGPoint offset) const;

  private:
    void tell(SEL message);

    id delegate_ = nullptr;
    CGSize contentSize_{};
    UIEdgeInsets contentInset_{};
    bool scrollEnabled_ = true;
    bool dragging_ = false;
};
