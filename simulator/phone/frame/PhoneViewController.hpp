// The base of the application's lists.
#pragma once

#include "uikit/SimViewController.hpp"

namespace phone {

class PhoneViewController : public SimViewController {
  public:
    static void define();

    void viewWillAppear(bool animated);
};

}  // namespace phone
