// How many views the process has.
#pragma once

namespace monkey {

/// Instances of UIView and of every class below it; those made before the first call are not seen.
int liveViews();

}  // namespace monkey
