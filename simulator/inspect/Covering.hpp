// Which views of a tree lie wholly behind others that are painted after them.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/CoreGraphics.hpp"

namespace inspect {

/// Views are told in the order in which they are painted: a view, then all that is in it.
class Covering {
  public:
    /// `visible` is what is left of the view by those around it; what is opaque covers all of that.
    /// Returns the view's number.
    std::size_t begin(CGRect visible, bool isOpaque);
    /// All that is in the view has been told.
    void end(std::size_t number) { views_[number].end = views_.size(); }

    /// Whether one view, neither in this one nor around it, covers all of it.
    bool isCovered(std::size_t number) const;

  private:
    struct View {
        CGRect visible;
        std::size_t end = 0;  // the number of the first view that is not in it
    };

    std::vector<View> views_;
    std::vector<std::size_t> covers_;  // the numbers of those that are opaque
};

}  // namespace inspect
