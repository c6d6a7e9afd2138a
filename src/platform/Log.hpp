// The system's log.
#pragma once

#include "platform/Foundation.hpp"

extern "C" {
void NSLog(id format, ...);
}

/// Writes one line; the text is taken as it stands, percent signs included.
inline void logLine(NSString text) { NSLog("%@"_ns, text.get()); }
