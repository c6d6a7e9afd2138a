// Only views that the add-on had to do with have a note.
#include "inspect/ViewNotes.hpp"

#include <unordered_map>

#include "inspect/Libraries.hpp"
#include "inspect/Trace.hpp"
#include "uikit/ViewObserver.hpp"

namespace inspect {
namespace {

/// Kept for good: views may outlive what is made here.
std::unordered_map<std::uint32_t, ViewNote> &notes() {
    static auto *const notes = new std::unordered_map<std::uint32_t, ViewNote>;
    return *notes;
}

void made(std::uint32_t view) {
    const std::string *const method = runningAddOnMethod();
    if (method != nullptr && isAskedForByAddOn()) {
        notes()[view] = {true, method};
    }
}

void changed(std::uint32_t view) {
    if (const std::string *const method = runningAddOnMethod()) {
        notes()[view].touched = method;
    }
}

void gone(std::uint32_t view) { notes().erase(view); }

}  // namespace

void takeNotesOfViews() {
    static constexpr sim::ViewObserver kObserver{&made, &changed, &gone};
    sim::setViewObserver(&kObserver);
}

ViewNote noteOf(std::uint32_t view) {
    const auto found = notes().find(view);
    return found != notes().end() ? found->second : ViewNote{};
}

}  // namespace inspect
