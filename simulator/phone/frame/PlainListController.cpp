// Tabs of plain lists.
#include "phone/frame/PlainListController.hpp"

#include <utility>

#include "phone/frame/ListScreen.hpp"
#include "phone/frame/PhoneNavigationBar.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/IndexPath.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimTableView.hpp"
#include "uikit/SimTableViewCell.hpp"

namespace phone {

void PlainListController::define() {
    using objc::member;
    using Self = PlainListController;
    sim::defined("PlainListController",
                 objc::ClassBuilder<Self>("PlainListController", "UIViewController")
                     .method("loadView"_sel, member<&Self::loadView>)
                     .method("tableView:numberOfRowsInSection:"_sel, member<&Self::numberOfRows>)
                     .method("tableView:cellForRowAtIndexPath:"_sel, member<&Self::cellForRow>)
                     .finish());
}

objc::Owned<NSObject> PlainListController::create(NSString title, std::vector<std::string> words) {
    auto controller = objc::make<PlainListController>();
    controller->setTitle(title);
    controller->words_ = std::move(words);
    return std::move(controller).as<NSObject>();
}

PlainListController::~PlainListController() {
    objc::send<void(NSObject)>(table_.get(), "setDataSource:"_sel, NSObject());
}

void PlainListController::loadView() {
    constexpr CGFloat kRowHeight = 44;
    ListScreen parts = makeListScreen(NSObject(*this), kRowHeight);
    sim::instance<PhoneNavigationBar>(parts.bar)->setTitle(title());
    table_ = std::move(parts.table);
    setView(sim::instance<SimView>(parts.view));
}

NSInteger PlainListController::numberOfRows(SimTableView *, NSInteger) const {
    return std::ssize(words_);
}

SimTableViewCell *PlainListController::cellForRow(SimTableView *table, NSObject indexPath) const {
    SimTableViewCell *const cell = reusableCell(table, "PlainCell"_ns, 0);
    cell->textLabel()->setText(sim::string(words_[static_cast<size_t>(sim::rowOf(indexPath))]));
    return cell;
}

}  // namespace phone
