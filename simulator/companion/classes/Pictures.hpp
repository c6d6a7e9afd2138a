// Pictures that a world names, as the process's UIKit makes them.
#pragma once

#include <string>

#include "companion/Companion.hpp"
#include "companion/classes/Conversions.hpp"

namespace companion {

/// An autoreleased UIImage; nil when there is no such picture.
inline NSObject picture(const std::string &name) {
    return objc::send<NSObject(NSString)>("UIImage"_cls, "imageWithContentsOfFile:"_sel,
                                          string(pictureFile(name).string()));
}

}  // namespace companion
