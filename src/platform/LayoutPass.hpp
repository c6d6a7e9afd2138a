// Layout passes that run within each other. Whatever we ask or set in a pass may come back and lay
// the same view out again: UIKit's own layoutSublayersOfLayer: sends layoutSubviews, a label that
// takes a text may, and so may the companion while it is asked.
#pragma once

#include <utility>

#include "objc/Runtime.hpp"

/// One run of a replaced layoutSubviews over one view, for as long as it lives. Main thread only.
class LayoutPass {
  public:
    explicit LayoutPass(id view) : view_(view), outer_(g_innermost) { g_innermost = this; }
    LayoutPass(const LayoutPass &) = delete;
    LayoutPass &operator=(const LayoutPass &) = delete;
    ~LayoutPass() {
        g_innermost = outer_;
        if (LayoutPass *const interrupted = innermost(view_)) {
            interrupted->isOvertaken_ = true;
        }
    }

    /// No other pass over the view is under way.
    bool isOutermost() const { return !innermost(view_, outer_); }

    /// Whether the pass over `view` that is under way was interrupted by another one, which has
    /// laid the view out as a whole and knew more: what is left of the interrupted pass is stale.
    static bool isOvertaken(id view) {
        const LayoutPass *const pass = innermost(view);
        return pass && pass->isOvertaken_;
    }

    /// Does the work of a pass, and once more where it was overtaken on the way: what it was about
    /// to show may have come last.
    template <class Work>
    static void untilCurrent(id view, Work work) {
        work();
        LayoutPass *const pass = innermost(view);
        if (pass && std::exchange(pass->isOvertaken_, false)) {
            work();
        }
    }

  private:
    static LayoutPass *innermost(id view, LayoutPass *pass = g_innermost) {
        while (pass && pass->view_ != view) {
            pass = pass->outer_;
        }
        return pass;
    }

    static inline constinit LayoutPass *g_innermost = nullptr;

    id view_;  // of whoever laid it out
    LayoutPass *outer_;
    bool isOvertaken_ = false;
};
