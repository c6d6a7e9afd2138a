// A handle of another class is no argument and no receiver.
#include "platform/UIKit.hpp"

void setText(UILabel label, NSString text, UIView view) {
    label.setText(text);
#ifdef MUST_NOT_COMPILE
    label.setText(view);
#endif
    view.addSubview(label);
}
