// The recents list.
#include "phone/recents/PHRecentsViewController.hpp"

#include "phone/recents/PHRecentsCell.hpp"
#include "uikit/Device.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimTableView.hpp"

namespace phone {
namespace {

NSString cellIdentifier() { return "PHRecentsCell"_ns; }

/// A property that calls have on some systems only.
NSObject valueOf(NSObject call, auto selector) {
    return call.respondsToSelector(selector) ? objc::send<NSObject()>(call, selector) : NSObject();
}

/// The call's number, under either system's name for it.
NSString numberOf(NSObject call) {
    const NSObject number = valueOf(call, "callerId"_sel);
    return (number ? number : valueOf(call, "destination"_sel)).as<NSString>();
}

/// "18:05", in the time zone of the process; nil without a date.
NSString clockOf(NSObject call) {
    const NSObject date = valueOf(call, "date"_sel);
    const auto formatter =
        objc::Owned<NSObject>::adopt(objc::send<NSObject()>("NSDateFormatter"_cls, "new"_sel));
    objc::send<void(NSString)>(formatter.get(), "setDateFormat:"_sel, "HH:mm"_ns);
    return date ? objc::send<NSString(NSObject)>(formatter.get(), "stringFromDate:"_sel, date)
                : NSString();
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
                     .method("showCallDetail:animate:"_sel, member<&Self::showCallDetail>)
                     .method("setEditing:animated:"_sel, member<&Self::setEditingAnimated>)
                     .method("tableView:numberOfRowsInSection:"_sel, member<&Self::numberOfRows>)
                     .method("tableView:cellForRowAtIndexPath:"_sel, member<&Self::cellForRow>)
                     .finish());
}

void PHRecentsViewController::setCalls(NSArray calls) {
    calls_ = objc::Owned<NSArray>::share(calls);
    objc::send<void()>(table_.get(), "reloadData"_sel);
}

void PHRecentsViewController::loadView() {
    const CGSize screen = sim::Device::current().screen;
    const CGRect whole = rect(0, 0, screen.width, screen.height);
    const auto view = makeView<SimView>(whole);
    table_ = makeView<SimTableView>(whole);
    objc::send<void(NSObject)>(table_.get(), "setDataSource:"_sel, NSObject(*this));
    view->addSubview(table_);
    setView(objc::Wire<SimView *>::from(view->get()));
}

void PHRecentsViewController::viewWillAppear(bool animated) {
    objc::sendSuper<PHRecentsViewController, void(bool)>(this, "viewWillAppear:"_sel, animated);
}

void PHRecentsViewController::showCallDetail(NSObject call, bool) {
    detailCall_ = objc::Owned<NSObject>::share(call);
}

void PHRecentsViewController::setEditingAnimated(bool editing, bool animated) {
    objc::sendSuper<PHRecentsViewController, void(bool, bool)>(this, "setEditing:animated:"_sel,
                                                               editing, animated);
    objc::send<void(bool, bool)>(table_.get(), "setEditing:animated:"_sel, editing, animated);
}

NSInteger PHRecentsViewController::numberOfRows(SimTableView *, NSInteger) const {
    return static_cast<NSInteger>(calls_->count());
}

SimTableViewCell *PHRecentsViewController::cellForRow(SimTableView *table,
                                                      NSObject indexPath) const {
    auto *cell =
        static_cast<PHRecentsCell *>(table->dequeueReusableCellWithIdentifier(cellIdentifier()));
    if (!cell) {
        const id memory = objc::send<id()>(objc::classOf<PHRecentsCell>(), "alloc"_sel);
        const NSObject made(objc::send<id(NSInteger, NSString)>(
            memory, "initWithStyle:reuseIdentifier:"_sel, 0, cellIdentifier()));
        objc::send<id()>(made, "autorelease"_sel);
        cell = objc::Wire<PHRecentsCell *>::from(made.get());
    }
    const auto row =
        objc::send<NSUInteger(NSUInteger)>(indexPath, "indexAtPosition:"_sel, NSUInteger{1});
    const NSObject call = calls_->objectAtIndex(row);
    objc::send<void(NSObject)>(NSObject(*cell), "setCall:"_sel, call);
    cell->show(numberOf(call), valueOf(call, "label"_sel).as<NSString>(), clockOf(call));
    return cell;
}

}  // namespace phone
