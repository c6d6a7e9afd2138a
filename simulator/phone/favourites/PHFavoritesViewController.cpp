// The favourites.
#include "phone/favourites/PHFavoritesViewController.hpp"

#include "phone/PlaceCall.hpp"
#include "phone/dialer/ContactBook.hpp"
#include "phone/frame/ListScreen.hpp"
#include "phone/frame/PhoneNavigationBar.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/IndexPath.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimTableView.hpp"
#include "uikit/SimTableViewCell.hpp"

namespace phone {

void PHFavoritesViewController::define() {
    using objc::member;
    using Self = PHFavoritesViewController;
    sim::defined("PHFavoritesViewController",
                 objc::ClassBuilder<Self>("PHFavoritesViewController", "PhoneViewController")
                     .ivar<&Self::table_>("_table")
                     .method("loadView"_sel, member<&Self::loadView>)
                     .method("tableView:numberOfRowsInSection:"_sel, member<&Self::numberOfRows>)
                     .method("tableView:cellForRowAtIndexPath:"_sel, member<&Self::cellForRow>)
                     .method("tableView:didSelectRowAtIndexPath:"_sel, member<&Self::didSelectRow>)
                     .finish());
}

PHFavoritesViewController::~PHFavoritesViewController() {
    objc::send<void(NSObject)>(table_.get(), "setDataSource:"_sel, NSObject());
    objc::send<void(NSObject)>(table_.get(), "setDelegate:"_sel, NSObject());
}

void PHFavoritesViewController::loadView() {
    constexpr CGFloat kRowHeight = 44;
    ListScreen parts = makeListScreen(NSObject(*this), kRowHeight);
    sim::instance<PhoneNavigationBar>(parts.bar)->setTitle("个人收藏"_ns);
    table_ = std::move(parts.table);
    objc::send<void(NSObject)>(table_, "setDelegate:"_sel, NSObject(*this));
    setView(sim::instance<SimView>(parts.view));
}

NSInteger PHFavoritesViewController::numberOfRows(SimTableView *, NSInteger) const {
    return std::ssize(ContactBook::shared().all());
}

SimTableViewCell *PHFavoritesViewController::cellForRow(SimTableView *table,
                                                        NSObject indexPath) const {
    constexpr NSInteger kValueAtTheRight = 1;
    const auto row = static_cast<size_t>(sim::rowOf(indexPath));
    const Contact &contact = ContactBook::shared().all()[row];
    SimTableViewCell *const cell = reusableCell(table, "PHFavoritesCell"_ns, kValueAtTheRight);
    cell->textLabel()->setText(sim::string(contact.name));
    cell->detailTextLabel()->setText(
        sim::string(contact.numbers.empty() ? "" : contact.numbers.front().label));
    return cell;
}

void PHFavoritesViewController::didSelectRow(SimTableView *table, NSObject indexPath) const {
    table->deselectRow(indexPath, true);
    const Contact &contact =
        ContactBook::shared().all()[static_cast<size_t>(sim::rowOf(indexPath))];
    if (!contact.numbers.empty()) {
        placeCall(sim::string(contact.numbers.front().number));
    }
}

}  // namespace phone
