// Screens of lists.
#include "phone/frame/ListScreen.hpp"

#include "phone/frame/PhoneNavigationBar.hpp"
#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/SimTableView.hpp"

namespace phone {

ListScreen makeListScreen(NSObject dataSource, CGFloat rowHeight) {
    constexpr CGFloat kTabBarHeight = 49;
    const CGSize screen = sim::Device::current().screen;
    ListScreen parts{
        makeView<SimView>(rect(0, 0, screen.width, screen.height)),
        makeView<SimTableView>(rect(0, kNavigationBarHeight, screen.width,
                                    screen.height - kNavigationBarHeight - kTabBarHeight)),
        PhoneNavigationBar::make()};
    auto *const table = sim::instance<SimTableView>(parts.table);
    table->setRowHeight(rowHeight);
    table->setDataSource(dataSource);
    parts.view->addSubview(parts.table);
    parts.view->addSubview(parts.bar);
    return parts;
}

}  // namespace phone
