// The responder chain. The chain's next member is always asked for by message: views, windows and
// controllers answer differently, and so may a subclass.
#include "uikit/SimResponder.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace {

SimResponder *g_firstResponder = nullptr;

NSObject next(SimResponder *responder) {
    return objc::send<NSObject()>(static_cast<id>(*responder), "nextResponder"_sel);
}

}  // namespace

SimResponder::~SimResponder() {
    if (isFirst_) {
        g_firstResponder = nullptr;
    }
}

bool SimResponder::becomeFirstResponder() {
    if (isFirst_) {
        return true;
    }
    if (!objc::send<bool()>(static_cast<id>(*this), "canBecomeFirstResponder"_sel)) {
        return false;
    }
    if (g_firstResponder != nullptr) {
        objc::send<bool()>(static_cast<id>(*g_firstResponder), "resignFirstResponder"_sel);
    }
    isFirst_ = true;
    g_firstResponder = this;
    return true;
}

bool SimResponder::resignFirstResponder() {
    if (isFirst_) {
        isFirst_ = false;
        g_firstResponder = nullptr;
    }
    return true;
}

void SimResponder::touchesBegan(NSObject touches, SimEvent *event) {
    objc::send<void(NSObject, SimEvent *)>(next(this), "touchesBegan:withEvent:"_sel, touches,
                                           event);
}

void SimResponder::touchesMoved(NSObject touches, SimEvent *event) {
    objc::send<void(NSObject, SimEvent *)>(next(this), "touchesMoved:withEvent:"_sel, touches,
                                           event);
}

void SimResponder::touchesEnded(NSObject touches, SimEvent *event) {
    objc::send<void(NSObject, SimEvent *)>(next(this), "touchesEnded:withEvent:"_sel, touches,
                                           event);
}

void SimResponder::touchesCancelled(NSObject touches, SimEvent *event) {
    objc::send<void(NSObject, SimEvent *)>(next(this), "touchesCancelled:withEvent:"_sel, touches,
                                           event);
}

void SimResponder::define() {
    using objc::member;
    sim::defined(
        "UIResponder",
        objc::ClassBuilder<SimResponder>("UIResponder", "NSObject")
            .method("nextResponder"_sel, member<&SimResponder::nextResponder>)
            .method("isFirstResponder"_sel, member<&SimResponder::isFirstResponder>)
            .method("canBecomeFirstResponder"_sel, member<&SimResponder::canBecomeFirstResponder>)
            .method("becomeFirstResponder"_sel, member<&SimResponder::becomeFirstResponder>)
            .method("resignFirstResponder"_sel, member<&SimResponder::resignFirstResponder>)
            .method("touchesBegan:withEvent:"_sel, member<&SimResponder::touchesBegan>)
            .method("touchesMoved:withEvent:"_sel, member<&SimResponder::touchesMoved>)
            .method("touchesEnded:withEvent:"_sel, member<&SimResponder::touchesEnded>)
            .method("touchesCancelled:withEvent:"_sel, member<&SimResponder::touchesCancelled>)
            .finish());
}
