// UITableViewCellScrollView: what slides a cell open on iOS 7. A class of its own, because other
// code knows it by its name.
#pragma once

#include "uikit/SimScrollView.hpp"

class SimTableViewCellScrollView : public SimScrollView {
  public:
    static void define();

    void setContentOffset(CGPoint offset);
};
