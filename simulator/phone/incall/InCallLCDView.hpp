// The in-call display whose parts lie directly inside it.
#pragma once

#include "phone/incall/TPLCDView.hpp"

namespace phone {

class InCallLCDView : public TPLCDView {
  public:
    static void define();
    void layoutSubviews();
};

}  // namespace phone
