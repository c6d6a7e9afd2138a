// What a swipe reveals beside a cell: the delete confirmation and its one button. Other code knows
// both by their names and may put buttons of its own in.
#pragma once

#include "uikit/SimButton.hpp"

/// UITableViewCellDeleteConfirmationButton
class SimDeleteConfirmationButton : public SimButton {
  public:
    static void define();

    /// All the room between its margins, or as wide as the title where that is wider.
    CGRect titleRectForContentRect(CGRect content) const;
};

/// UITableViewCellDeleteConfirmationView
class SimDeleteConfirmationView : public SimView {
  public:
    static void define();

    /// As wide as its button, standing to the right of a cell of that size. `cell`, which is not
    /// retained, is sent deletePressed: when the button is pressed.
    static objc::Owned<UIView> make(CGSize cellSize, NSObject cell);
};
