// Covers are few: the grounds of screens, bars and buttons.
#include "inspect/Covering.hpp"

#include <algorithm>

namespace inspect {
namespace {

bool contains(CGRect outer, CGRect inner) {
    return outer.origin.x <= inner.origin.x && outer.origin.y <= inner.origin.y &&
           outer.origin.x + outer.size.width >= inner.origin.x + inner.size.width &&
           outer.origin.y + outer.size.height >= inner.origin.y + inner.size.height;
}

}  // namespace

std::size_t Covering::begin(CGRect visible, bool isOpaque) {
    if (isOpaque) {
        covers_.push_back(views_.size());
    }
    views_.push_back({visible});
    return views_.size() - 1;
}

bool Covering::isCovered(std::size_t number) const {
    const View &view = views_[number];
    return std::ranges::any_of(covers_, [&](std::size_t cover) {
        return cover >= view.end && contains(views_[cover].visible, view.visible);
    });
}

}  // namespace inspect
