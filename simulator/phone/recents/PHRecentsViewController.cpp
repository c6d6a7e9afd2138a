// The recents list.
#include "phone/recents/PHRecentsViewController.hpp"

#include <algorithm>
#include <array>

#include "phone/contact/ABContactViewController.hpp"
#include "phone/frame/ListScreen.hpp"
#include "phone/recents/CallContact.hpp"
#include "phone/recents/PHCallInfoView.hpp"
#include "phone/recents/PHRecentsCell.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/IndexPath.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimControl.hpp"
#include "uikit/SimTableView.hpp"

namespace phone {
namespace {

constexpr CGFloat kRowHeight = 48;

NSString cellIdentifier() { return "PHRecentsCell"_ns; }

NSObject indexPathOf(NSInteger row) { return sim::indexPath(0, row); }

/// The choice between all calls and the missed ones; all are shown.
objc::Owned<UIView> makeSegments() {
    constexpr CGFloat kWidth = 80;
    constexpr CGFloat kHeight = 29;
    const UIColor tint = color(0, 122, 255);
    auto box = makeView<SimView>(rect(0, 0, 2 * kWidth, kHeight));
    auto *const layer = sim::instance<SimView>(box)->layer();
    layer->setCornerRadius(4);
    layer->setBorderWidth(1);
    layer->setBorderColor(tint);
    layer->setMasksToBounds(true);
    constexpr std::array kTitles = {"所有通话", "未接来电"};
    for (size_t i = 0; i < kTitles.size(); ++i) {
        const auto label =
            makeLabel(rect(kWidth * static_cast<CGFloat>(i), 0, kWidth, kHeight), 13);
        label->setText(sim::string(kTitles[i]));
        label->setTextColor(i == 0 ? UIColor::whiteColor() : tint);
        label->setBackgroundColor(i == 0 ? tint : UIColor::clearColor());
        box->addSubview(label);
    }
    return box;
}

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
                     .method("infoPressed:"_sel, member<&Self::infoPressed>)
                     .method("tableView:numberOfRowsInSection:"_sel, member<&Self::numberOfRows>)
                     .method("tableView:cellForRowAtIndexPath:"_sel, member<&Self::cellForRow>)
                     .method("tableView:commitEditingStyle:forRowAtIndexPath:"_sel,
                             member<&Self::commitEditing>)
                     .finish());
}

PHRecentsViewController::~PHRecentsViewController() {
    objc::send<void(NSObject)>(table_.get(), "setDataSource:"_sel, NSObject());
}

void PHRecentsViewController::loadView() {
    ListScreen parts = makeListScreen(NSObject(*this), kRowHeight);
    table_ = std::move(parts.table);
    bar_ = std::move(parts.bar);
    sim::instance<PhoneNavigationBar>(bar_)->setTitleView(makeSegments());
    setView(sim::instance<SimView>(parts.view));
    showEditButton();
}

void PHRecentsViewController::showEditButton() {
    sim::instance<PhoneNavigationBar>(bar_)->setRightButton(
        {isEditing() ? "完成"_ns : "编辑"_ns, NSObject(*this), "editPressed:"_sel});
}

void PHRecentsViewController::setCalls(NSArray calls) {
    calls_ = objc::Owned<NSArray>::adopt(objc::send<NSArray()>(calls, "copy"_sel));
    today_.reset();
    for (NSUInteger i = 0; i < calls_->count() && !today_; ++i) {
        today_ = sim::instance<PHRecentCall>(calls_->objectAtIndex(i))->facts().date;
    }
    objc::send<void()>(table_.get(), "reloadData"_sel);
}

SimTableView *PHRecentsViewController::table() {
    view();
    return sim::instance<SimTableView>(table_);
}

void PHRecentsViewController::layOut() { objc::send<void()>(id(*view()), "layoutIfNeeded"_sel); }

void PHRecentsViewController::scrollTo(CGFloat points) {
    closeSwipe();
    layOut();
    table()->setContentOffset(table()->nearestRest({0, points}));
    layOut();
}

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

NSInteger PHRecentsViewController::swipedRow() {
    const NSArray cells = table()->visibleCells();
    for (NSUInteger i = 0; i < cells.count(); ++i) {
        auto *const shown = sim::instance<PHRecentsCell>(cells.objectAtIndex(i));
        if (shown->isSwiped()) {
            return sim::rowOf(table()->indexPathForCell(shown));
        }
    }
    return -1;
}

bool PHRecentsViewController::beginSwipe(NSInteger row) {
    if (row < 0 || row >= rowCount() || detail_ || isEditing()) {
        return false;
    }
    if (swipedRow() != row) {
        closeSwipe();
    }
    PHRecentsCell *const swiped = cell(row);
    return swiped != nullptr && swiped->beginSwipe();
}

bool PHRecentsViewController::swipe(NSInteger row, CGFloat points) {
    const bool begun = beginSwipe(row);
    if (begun) {
        cell(row)->dragSwipeTo(points);
    }
    return begun;
}

bool PHRecentsViewController::swipeOpen(NSInteger row) {
    // How wide it is shows only when something of it is seen.
    constexpr CGFloat kGlimpse = 8;
    return swipe(row, kGlimpse) && swipe(row, cell(row)->swipeWidth());
}

bool PHRecentsViewController::releaseSwipe(CGFloat velocity) {
    const NSInteger row = swipedRow();
    if (row < 0) {
        return false;
    }
    cell(row)->endSwipe(velocity);
    return true;
}

void PHRecentsViewController::closeSwipe() {
    const NSInteger row = swipedRow();
    if (row >= 0) {
        cell(row)->closeSwipe();
    }
}

bool PHRecentsViewController::openDetail(NSInteger row) {
    const PHRecentsCell *const shown = detail_ ? nullptr : cell(row);
    if (shown == nullptr) {
        return false;
    }
    closeSwipe();
    sim::instance<SimControl>(shown->infoButton())->sendActionsForControlEvents(kTouchUpInside);
    return true;
}

ABContactViewController *PHRecentsViewController::detail() const {
    return sim::instance<ABContactViewController>(detail_);
}

void PHRecentsViewController::tell(NSObject controller, auto selector) {
    objc::send<void(bool)>(controller, selector, true);
}

void PHRecentsViewController::showCallDetail(NSObject call, bool) {
    closeSwipe();
    back();
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

bool PHRecentsViewController::back() {
    if (!detail_) {
        return false;
    }
    // The button that brought us here is still at work in the detail's view.
    const NSObject gone = detail_.autorelease();
    const NSObject self(*this);
    tell(gone, "viewWillDisappear:"_sel);
    tell(self, "viewWillAppear:"_sel);
    objc::send<UIView()>(gone, "view"_sel).removeFromSuperview();
    tell(gone, "viewDidDisappear:"_sel);
    tell(self, "viewDidAppear:"_sel);
    return true;
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

void PHRecentsViewController::backPressed(NSObject) { back(); }

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
    objc::send<void(NSObject)>(
        *cell, "setCall:"_sel,
        calls_->objectAtIndex(static_cast<NSUInteger>(sim::rowOf(indexPath))));
    return cell;
}

void PHRecentsViewController::commitEditing(SimTableView *, NSInteger, NSObject indexPath) {
    const auto left =
        objc::send<NSArray(NSArray)>("NSMutableArray"_cls, "arrayWithArray:"_sel, calls_.get());
    objc::send<void(NSUInteger)>(left, "removeObjectAtIndex:"_sel,
                                 static_cast<NSUInteger>(sim::rowOf(indexPath)));
    setCalls(left);
}

}  // namespace phone
