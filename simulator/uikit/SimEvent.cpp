// UIEvent with its one touch.
#include "uikit/SimEvent.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimTouch.hpp"

SimTouch *SimEvent::touch() const { return sim::instance<SimTouch>(touch_.get()); }

void SimEvent::setTouch(SimTouch *touch) {
    touch_ = objc::Owned<NSObject>::share(sim::handle<NSObject>(touch));
}

NSObject SimEvent::allTouches() const {
    return objc::send<NSObject(NSObject)>("NSSet"_cls, "setWithObject:"_sel, touch_.get());
}

void SimEvent::define() {
    using objc::member;
    sim::defined("UIEvent", objc::ClassBuilder<SimEvent>("UIEvent", "NSObject")
                                .method("type"_sel, member<&SimEvent::type>)
                                .method("allTouches"_sel, member<&SimEvent::allTouches>)
                                .finish());
}
