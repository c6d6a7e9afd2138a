// How many Objective-C objects the process has.
#pragma once

namespace test {

/// Objects of every class are counted from the first call on; earlier ones are not seen.
int liveObjects();

}  // namespace test
