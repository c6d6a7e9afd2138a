// Switching the watching on, in each library that has a place for it.
#include "inspect/Watch.hpp"

#include "companion/Companion.hpp"
#include "inspect/Libraries.hpp"
#include "inspect/Trace.hpp"
#include "inspect/ViewNotes.hpp"
#include "inspect/Wrapping.hpp"
#include "substrate/MSHookMessageEx.hpp"

namespace inspect {
namespace {

IMP roundReplacement(const substrate::HookedMethod &method, IMP implementation) {
    addAddOn(libraryOf(reinterpret_cast<const void *>(implementation)));
    return wrapped(Runner::AddOn, method.cls, method.selector, method.types, implementation);
}

IMP roundPrevious(const substrate::HookedMethod &method, IMP implementation) {
    return wrapped(Runner::Phone, method.cls, method.selector, method.types, implementation);
}

void heard(companion::Told told, const std::string &what) {
    using Kind = Happening::Kind;
    note({.kind = told == companion::Told::Message ? Kind::Message : Kind::Address, .what = what});
}

}  // namespace

void watch() {
    static constexpr substrate::Wrapper kWrapper{&roundReplacement, &roundPrevious};
    static bool g_isOn = false;
    if (g_isOn) {
        return;
    }
    g_isOn = true;
    substrate::setWrapper(&kWrapper);
    wrapMethodsOf(libraryOf(reinterpret_cast<const void *>(&companion::setListener)),
                  Runner::Companion);
    companion::setListener(&heard);
    takeNotesOfViews();
}

void watchAddOnClasses() {
    for (const void *const library : addOns()) {
        wrapMethodsOf(library, Runner::AddOn);
    }
}

void noteDelayed(NSObject target, SEL selector) {
    note({.kind = Happening::Kind::Later, .what = methodName(object_getClass(target), selector)});
}

std::vector<Happening> takeHappenings() { return takeRecord(); }

}  // namespace inspect
