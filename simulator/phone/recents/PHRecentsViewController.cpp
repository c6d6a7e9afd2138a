// The recents list.
#include "phone/recents/PHRecentsViewController.hpp"

#include <span>
#include <vector>

#include "phone/PlaceCall.hpp"
#include "phone/contact/ABContactViewController.hpp"
#include "phone/frame/ListScreen.hpp"
#include "phone/recents/CallContact.hpp"
#include "phone/recents/PHCallInfoView.hpp"
#include "phone/recents/PHRecentsCell.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/IndexPath.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimSegmentedControl.hpp"
#include "uikit/SimTableView.hpp"

namespace phone {
namespace {

constexpr CGFloat kRowHeight = 48;

NSString cellIdentifier() { return "PHRecentsCell"_ns; }

NSObject indexPathOf(NSInteger row) { return sim::indexPath(0, row); }

}  // namespace

void PHRecentsViewController::define() {
    using objc::member;
    using Self = PHRecentsViewController;
    sim::defined("PHRecentsViewController",
                 objc::ClassBuilder<Self>("PHRecentsViewController", "PhoneViewController")
                     .ivar<&Self::table_>("_table")
                     .ivar<&Self::calls_>("_calls")
                     .method("setCalls:"_sel, member<&Self::setCalls>)
                     .method("loadView"_sel, member<&Self::loadView>)
                     .method("viewWillAppear:"_sel, member<&Self::viewWillAppear>)
                     .method("viewWillDisappear:"_sel, member<&Self::viewWillDisappear>)
                     .method("showCallDetail:animate:"_sel, member<&Self::showCallDetail>)
                     .method("setEditing:animated:"_sel, member<&Self::setEditingAnimated>)
                     .method("editPressed:"_sel, member<&Self::editPressed>)
                     .method("backPressed:"_sel, member<&Self::backPressed>)
                     .method("filterChanged:"_sel, member<&Self::filterChanged>)
                     .method("infoPressed:"_sel, member<&Self::infoPressed>)
                     .method("tableView:numberOfRowsInSection:"_sel, member<&Self::numberOfRows>)
                     .method("tableView:cellForRowAtIndexPath:"_sel, member<&Self::cellForRow>)
                     .method("tableView:commitEditingStyle:forRowAtIndexPath:"_sel,
                             member<&Self::commitEditing>)
                     .method("tableView:didSelectRowAtIndexPath:"_sel, member<&Self::didSelectRow>)
                     .finish());
}

PHRecentsViewController::~PHRecentsViewController() {
    objc::send<void(NSObject)>(table_.get(), "setDataSource:"_sel, NSObject());
    objc::send<void(NSObject)>(table_.get(), "setDelegate:"_sel, NSObject());
}

void PHRecentsViewController::loadView() {
    ListScreen parts = makeListScreen(NSObject(*this), kRowHeight);
    table_ = std::move(parts.table);
    objc::send<void(NSObject)>(table_, "setDelegate:"_sel, NSObject(*this));
    bar_ = std::move(parts.bar);
    filter_ = SimSegmentedControl::make({160, 29}, {"所有通话"_ns, "未接来电"_ns});
    onTouch(filter_, NSObject(*this), "filterChanged:"_sel, kValueChanged);
    bar()->setTitleView(filter_);
    setView(sim::instance<SimView>(parts.view));
    showEditButton();
}

PhoneNavigationBar *PHRecentsViewController::bar() {
    return sim::instance<PhoneNavigationBar>(bar_);
}

void PHRecentsViewController::showEditButton() {
    bar()->setRightButton(
        {isEditing() ? "完成"_ns : "编辑"_ns, NSObject(*this), "editPressed:"_sel});
}

UIView PHRecentsViewController::editButton() {
    view();
    return bar()->rightButton();
}

void PHRecentsViewController::setCalls(NSArray calls) {
    calls_ = objc::Owned<NSArray>::adopt(objc::send<NSArray()>(calls, "copy"_sel));
    today_.reset();
    for (NSUInteger i = 0; i < calls_->count() && !today_; ++i) {
        today_ = sim::instance<PHRecentCall>(calls_->objectAtIndex(i))->facts().date;
    }
    showCalls();
}

void PHRecentsViewController::filterChanged(NSObject) { showCalls(); }

void PHRecentsViewController::showCalls() {
    constexpr NSInteger kMissed = 1;
    const auto *const filter = sim::instance<SimSegmentedControl>(filter_);
    shown_ = objc::Owned<NSArray>::share(calls_.get());
    if (filter != nullptr && filter->selectedSegmentIndex() == kMissed) {
        std::vector<id> missed;
        for (NSUInteger i = 0; i < calls_->count(); ++i) {
            const NSObject call = calls_->objectAtIndex(i);
            if (sim::instance<PHRecentCall>(call)->isMissed()) {
                missed.push_back(call);
            }
        }
        shown_ = objc::Owned<NSArray>::share(sim::array(std::span<const id>(missed)));
    }
    objc::send<void()>(table_.get(), "reloadData"_sel);
}

NSObject PHRecentsViewController::callAt(NSObject indexPath) const {
    return shown_->objectAtIndex(static_cast<NSUInteger>(sim::rowOf(indexPath)));
}

SimTableView *PHRecentsViewController::table() {
    view();
    return sim::instance<SimTableView>(table_);
}

void PHRecentsViewController::layOut() { objc::send<void()>(id(*view()), "layoutIfNeeded"_sel); }

bool PHRecentsViewController::scrollToRow(NSInteger row) {
    if (row < 0 || row >= rowCount()) {
        return false;
    }
    closeSwipe();
    layOut();
    table()->scrollToRow(indexPathOf(row), 0, false);
    layOut();
    return true;
}

PHRecentsCell *PHRecentsViewController::cell(NSInteger row) {
    layOut();
    return static_cast<PHRecentsCell *>(table()->cellForRowAtIndexPath(indexPathOf(row)));
}

PHRecentsCell *PHRecentsViewController::swipedCell() {
    return static_cast<PHRecentsCell *>(table()->swipedCell());
}

void PHRecentsViewController::closeSwipe() {
    if (PHRecentsCell *const open = swipedCell()) {
        open->closeSwipe();
    }
}

ABContactViewController *PHRecentsViewController::detail() const {
    return sim::instance<ABContactViewController>(detail_);
}

void PHRecentsViewController::tell(NSObject controller, auto selector) {
    objc::send<void(bool)>(controller, selector, true);
}

void PHRecentsViewController::showCallDetail(NSObject call, bool) {
    closeSwipe();
    leaveDetail();
    detail_ = objc::make<ABContactViewController>().as<NSObject>();
    const auto &recent = *sim::instance<PHRecentCall>(call);
    detail()->show(contactOf(recent), PHCallInfoView::make(recent));
    detail()->setBackButton({"最近通话"_ns, NSObject(*this), "backPressed:"_sel});
    const NSObject self(*this);
    tell(self, "viewWillDisappear:"_sel);
    tell(detail_, "viewWillAppear:"_sel);
    view()->addSubview(detail()->view());
    tell(self, "viewDidDisappear:"_sel);
    tell(detail_, "viewDidAppear:"_sel);
}

void PHRecentsViewController::backPressed(NSObject) { leaveDetail(); }

void PHRecentsViewController::leaveDetail() {
    if (!detail_) {
        return;
    }
    // The button that brought us here is still at work in the detail's view.
    const NSObject gone = detail_.autorelease();
    const NSObject self(*this);
    tell(gone, "viewWillDisappear:"_sel);
    tell(self, "viewWillAppear:"_sel);
    objc::send<UIView()>(gone, "view"_sel).removeFromSuperview();
    tell(gone, "viewDidDisappear:"_sel);
    tell(self, "viewDidAppear:"_sel);
}

void PHRecentsViewController::viewWillAppear(bool animated) {
    objc::sendSuper<PHRecentsViewController, void(bool)>(this, "viewWillAppear:"_sel, animated);
}

void PHRecentsViewController::viewWillDisappear(bool animated) {
    objc::sendSuper<PHRecentsViewController, void(bool)>(this, "viewWillDisappear:"_sel, animated);
    closeSwipe();
}

void PHRecentsViewController::setEditingAnimated(bool editing, bool animated) {
    closeSwipe();
    objc::sendSuper<PHRecentsViewController, void(bool, bool)>(this, "setEditing:animated:"_sel,
                                                               editing, animated);
    objc::send<void(bool, bool)>(*table(), "setEditing:animated:"_sel, editing, animated);
    showEditButton();
}

void PHRecentsViewController::editPressed(NSObject) {
    objc::send<void(bool, bool)>(*this, "setEditing:animated:"_sel, !isEditing(), true);
}

void PHRecentsViewController::infoPressed(NSObject button) {
    const NSArray cells = table()->visibleCells();
    for (NSUInteger i = 0; i < cells.count(); ++i) {
        const auto *const pressed = sim::instance<PHRecentsCell>(cells.objectAtIndex(i));
        if (pressed->infoButton().get() == button.get()) {
            objc::send<void(NSObject, bool)>(*this, "showCallDetail:animate:"_sel, pressed->call(),
                                             true);
            return;
        }
    }
}

NSInteger PHRecentsViewController::numberOfRows(SimTableView *, NSInteger) const {
    return rowCount();
}

SimTableViewCell *PHRecentsViewController::cellForRow(SimTableView *table,
                                                      NSObject indexPath) const {
    auto *cell =
        static_cast<PHRecentsCell *>(table->dequeueReusableCellWithIdentifier(cellIdentifier()));
    if (cell == nullptr) {
        const id memory = objc::send<id()>(objc::classOf<PHRecentsCell>(), "alloc"_sel);
        const NSObject made(objc::send<id(NSInteger, NSString)>(
            memory, "initWithStyle:reuseIdentifier:"_sel, 0, cellIdentifier()));
        objc::send<id()>(made, "autorelease"_sel);
        cell = sim::instance<PHRecentsCell>(made);
        onTouch(cell->infoButton(), NSObject(*this), "infoPressed:"_sel, kTouchUpInside);
    }
    cell->setToday(today_);
    objc::send<void(NSObject)>(*cell, "setCall:"_sel, callAt(indexPath));
    return cell;
}

void PHRecentsViewController::commitEditing(SimTableView *, NSInteger, NSObject indexPath) {
    const auto left =
        objc::send<NSArray(NSArray)>("NSMutableArray"_cls, "arrayWithArray:"_sel, calls_.get());
    objc::send<void(NSObject)>(left, "removeObjectIdenticalTo:"_sel, callAt(indexPath));
    setCalls(left);
}

void PHRecentsViewController::didSelectRow(SimTableView *table, NSObject indexPath) const {
    table->deselectRow(indexPath, true);
    const NSString number = sim::instance<PHRecentCall>(callAt(indexPath))->number();
    if (!number.contains("@"_ns)) {  // an address is no telephone's
        placeCall(number);
    }
}

}  // namespace phone
