// The in-call display that has a content view for its parts.
#pragma once

#include "phone/incall/TPLCDView.hpp"

namespace phone {

class InCallLCDField : public TPLCDView {
  public:
    static void define();

    id initWithFrame(CGRect frame);
};

}  // namespace phone
