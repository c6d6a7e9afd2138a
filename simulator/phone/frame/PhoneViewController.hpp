// The base of the application's tabs: the keypad, the favourites and the recents.
#pragma once

#include "uikit/SimViewController.hpp"

namespace phone {

class PhoneViewController : public SimViewController {
  public:
    static void define();
};

}  // namespace phone
