// What is remembered of views: whose code made each, and which method of the add-on's changed it
// last.
#pragma once

#include <cstdint>
#include <string>

namespace inspect {

struct ViewNote {
    bool isOfAddOn = false;
    const std::string *touched = nullptr;  // null: none has
};

/// From now on, for views that are made from now on.
void takeNotesOfViews();

ViewNote noteOf(std::uint32_t view);

}  // namespace inspect
