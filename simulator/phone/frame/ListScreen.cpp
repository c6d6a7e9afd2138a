// Screens of lists.
#include "phone/frame/ListScreen.hpp"

#include "phone/frame/PhoneNavigationBar.hpp"
#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/SimTableView.hpp"
#include "uikit/SimTableViewCell.hpp"

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

SimTableViewCell *reusableCell(SimTableView *table, NSString identifier, NSInteger style) {
    if (SimTableViewCell *const free = table->dequeueReusableCellWithIdentifier(identifier)) {
        return free;
    }
    const id memory = objc::send<id()>("UITableViewCell"_cls, "alloc"_sel);
    const id made = objc::send<id(NSInteger, NSString)>(
        memory, "initWithStyle:reuseIdentifier:"_sel, style, identifier);
    return sim::instance<SimTableViewCell>(objc::send<id()>(made, "autorelease"_sel));
}

}  // namespace phone
