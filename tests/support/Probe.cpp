// Objects that the bridge's tests send to.
#include "support/Probe.hpp"

namespace test {

Probe::~Probe() {
    --g_living;
    if (g_onDestroy) {
        g_onDestroy();
    }
}

Class Probe::registered() {
    using objc::member;
    static const Class cls = objc::ClassBuilder<Probe>("TestProbe", "NSObject")
                                 .ivar<&Probe::_title>("_title")
                                 .ivar<&Probe::_flag>("_flag")
                                 .ivar<&Probe::_ratio>("_ratio")
                                 .ivar<&Probe::_frame>("_frame")
                                 .method("frame"_sel, member<&Probe::frame>)
                                 .method("setFrame:"_sel, member<&Probe::setFrame>)
                                 .method("title"_sel, member<&Probe::title>)
                                 .method("setTitle:"_sel, member<&Probe::setTitle>)
                                 .method("flag"_sel, member<&Probe::flag>)
                                 .method("setFlag:"_sel, member<&Probe::setFlag>)
                                 .method("ratio"_sel, member<&Probe::ratio>)
                                 .method("echo:"_sel, member<&Probe::echo>)
                                 .method("sum:and:negated:"_sel, member<&Probe::sum>)
                                 .method("order"_sel, member<&Probe::order>)
                                 .classMethod("living"_sel, objc::function<&Probe::living>)
                                 .finish();
    return cls;
}

Class DerivedProbe::registered() {
    static const Class cls =
        (Probe::registered(), objc::ClassBuilder<DerivedProbe>("TestDerivedProbe", "TestProbe")
                                  .ivar<&DerivedProbe::_note>("_note")
                                  .ivar<&DerivedProbe::_count>("_count")
                                  .method("order"_sel, objc::member<&DerivedProbe::order>)
                                  .finish());
    return cls;
}

objc::Owned<NSObject> newProbe() {
    Probe::registered();
    return objc::make<Probe>().as<NSObject>();
}

objc::Owned<NSObject> newDerivedProbe() {
    DerivedProbe::registered();
    return objc::make<DerivedProbe>().as<NSObject>();
}

}  // namespace test
