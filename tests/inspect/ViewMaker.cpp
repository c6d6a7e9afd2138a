// An add-on of one replacement, which makes a view itself and has the telephone make others.
#include "platform/UIKit.hpp"

namespace {

UIView made(Class cls) {
    return objc::send<UIView(CGRect)>(objc::send<id()>(cls, "alloc"_sel), "initWithFrame:"_sel,
                                      CGRect{});
}

}  // namespace

extern "C" {

// Owned by whoever calls.
[[gnu::visibility("default")]] id g_ownView = nullptr;
[[gnu::visibility("default")]] id g_viewOfPhone = nullptr;

[[gnu::visibility("default")]] void makeViews(id, SEL) {
    g_ownView = made("UILabel"_cls).get();
    g_viewOfPhone = made("PhoneTabBar"_cls).get();
}
}
