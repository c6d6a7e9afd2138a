// For whoever wants to know of every view: that it has come into being, that something of what a
// person sees of it has changed, that it is gone. Views are told apart by their ids.
#pragma once

#include <cstdint>

namespace sim {

struct ViewObserver {
    void (*made)(std::uint32_t view);
    void (*changed)(std::uint32_t view);
    void (*gone)(std::uint32_t view);
};

/// All views tell this one from now on; null, as at first, for none. It may not change a
/// view itself.
void setViewObserver(const ViewObserver *observer);

}  // namespace sim
