// Pictures of the resource folder as the process's UIKit makes them.
#pragma once

#include <string>

#include "companion/Companion.hpp"
#include "companion/classes/Conversions.hpp"

namespace companion {

/// An autoreleased UIImage of a file in the resource folder; nil when there is no such picture.
inline NSObject picture(const std::string &name) {
    return objc::send<NSObject(NSString)>("UIImage"_cls, "imageWithContentsOfFile:"_sel,
                                          string((resourceDir() / name).string()));
}

}  // namespace companion
