// The sheet that makes a new person of a number.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimViewController.hpp"

namespace phone {

class ABNewPersonViewController : public SimViewController {
  public:
    static void define();

    /// For a number; the delegate, not retained, hears
    /// newPersonViewController:didCompleteWithNewPerson:.
    void open(NSObject delegate, NSString number);
    void loadView();
    /// Ends the sheet with a new person record of that name and the number.
    void saveWithName(NSString name);
    /// Ends the sheet without one.
    void cancel();

  private:
    void finish(NSObject person);

    objc::Owned<NSString> number_;
    id delegate_ = nullptr;
};

}  // namespace phone
