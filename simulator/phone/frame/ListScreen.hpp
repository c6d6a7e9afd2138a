// A tab that is a list: a table between the tab's own bar and the tab bar.
#pragma once

#include "phone/Parts.hpp"

namespace phone {

struct ListScreen {
    objc::Owned<UIView> view, table, bar;
};

/// As large as the screen; rows are `rowHeight` points high. The data source is not retained.
ListScreen makeListScreen(NSObject dataSource, CGFloat rowHeight);

}  // namespace phone
