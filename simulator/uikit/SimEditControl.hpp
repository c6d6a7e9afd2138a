// UITableViewCellEditControl: the red disc in front of a row while its table is edited.
#pragma once

#include "uikit/SimView.hpp"

class SimEditControl : public SimView {
  public:
    static void define();

    static objc::Owned<UIView> make();
    void drawRect(CGRect rect);
};
