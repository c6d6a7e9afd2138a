// A tab that is a list: a table between the tab's own bar and the tab bar.
#pragma once

#include "phone/Parts.hpp"

class SimTableView;
class SimTableViewCell;

namespace phone {

struct ListScreen {
    objc::Owned<UIView> view, table, bar;
};

/// As large as the screen; rows are `rowHeight` points high. The data source is not retained.
ListScreen makeListScreen(NSObject dataSource, CGFloat rowHeight);

/// A plain cell of the table, one that is free or else a new one.
SimTableViewCell *reusableCell(SimTableView *table, NSString identifier, NSInteger style);

}  // namespace phone
