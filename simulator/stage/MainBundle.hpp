// What the process claims to be: the identifier of its main bundle.
#pragma once

#include <string>

namespace stage {

/// From now on [[NSBundle mainBundle] bundleIdentifier] returns this text, or nil when it is empty.
void setMainBundleIdentifier(const std::string &identifier);

}  // namespace stage
