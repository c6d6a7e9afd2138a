// A frame may begin and stop others, itself included, so each is looked up anew.
#include "uikit/Motion.hpp"

#include <algorithm>
#include <utility>

namespace sim {

Motion &Motion::shared() {
    // Kept for good: views may still stop while the process ends.
    static auto *const g_motion = new Motion();
    return *g_motion;
}

void Motion::setWatched(bool watched) {
    watched_ = watched;
    if (!watched) {
        age(kForever);
        show();
    }
}

void Motion::begin(const void *owner, Frame frame) {
    stop(owner);
    if (watched_) {
        moving_.push_back({owner, ++lastSerial_, Milliseconds(0), std::move(frame)});
    } else {
        frame(kForever);
    }
}

void Motion::stop(const void *owner) {
    std::erase_if(moving_, [owner](const Moving &moving) { return moving.owner == owner; });
}

void Motion::age(Milliseconds time) {
    for (Moving &moving : moving_) {
        moving.age += time;
    }
}

void Motion::show() {
    std::vector<int> serials;
    serials.reserve(moving_.size());
    std::ranges::transform(moving_, std::back_inserter(serials), &Moving::serial);
    for (const int serial : serials) {
        const auto moving = std::ranges::find(moving_, serial, &Moving::serial);
        if (moving == moving_.end()) {
            continue;
        }
        const Frame frame = moving->frame;
        if (!frame(moving->age)) {
            std::erase_if(moving_, [serial](const Moving &over) { return over.serial == serial; });
        }
    }
}

}  // namespace sim
