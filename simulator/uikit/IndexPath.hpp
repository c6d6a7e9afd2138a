// NSIndexPath as tables use it: a section and a row.
#pragma once

#include "platform/Foundation.hpp"

namespace sim {

/// A new autoreleased index path.
NSObject indexPath(NSInteger section, NSInteger row);
/// -1 for nil.
NSInteger sectionOf(NSObject indexPath);
NSInteger rowOf(NSObject indexPath);

/// Adds UIKit's messages (row, section, indexPathForRow:inSection:); once, when the library loads.
void addIndexPathMessages();

}  // namespace sim
