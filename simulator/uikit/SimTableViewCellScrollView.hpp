// UITableViewCellScrollView: what slides a cell open on iOS 7. A class of its own, because other
// code knows it by its name.
#pragma once

#include "uikit/SimScrollView.hpp"

class SimTableViewCellScrollView : public SimScrollView {
  public:
    static void define();

    id initWithFrame(CGRect frame);
    void setContentOffset(CGPoint offset);
    /// To the left, or any way once it is open; the cell has to be one that can be swiped.
    bool panShouldBegin(CGPoint way);
    /// Not to the right of the cell's place. To the left it follows as far as the finger goes: what
    /// the platform allows there is not known.
    CGPoint offsetUnderFinger(CGPoint wanted);
};
