// How often the process asked for memory.
#pragma once

namespace bench {

long allocations();

}  // namespace bench
