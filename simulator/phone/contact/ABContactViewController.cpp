// Contact details.
#include "phone/contact/ABContactViewController.hpp"

#include <array>

#include "phone/PlaceCall.hpp"
#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/IndexPath.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimTableViewCell.hpp"

namespace phone {
namespace {

constexpr CGFloat kTabBarHeight = 49;
constexpr CGFloat kSectionGap = 35;
constexpr CGFloat kRowHeight = 44;
constexpr CGFloat kTextLeft = 35;

constexpr std::array kContactActions = {"发送信息", "共享联系人"};
constexpr std::array kStrangerActions = {"发送信息", "共享联系人", "创建新联系人",
                                         "添加到现有联系人"};
constexpr NSInteger kNumbers = 0;
constexpr NSInteger kActions = 1;
constexpr NSInteger kBlocking = 2;

NSArray numbersOf(NSObject contact) { return objc::send<NSArray()>(contact, "phoneNumbers"_sel); }

NSString textOf(NSObject number) {
    return objc::send<NSString()>(objc::send<NSObject()>(number, "value"_sel),
                                  "formattedStringValue"_sel);
}

std::span<const char *const> actionsFor(NSObject contact) {
    if (objc::send<int32_t()>(contact, "recordID"_sel) < 0) {
        return kStrangerActions;
    }
    return kContactActions;
}

SimTableViewCell *makeCell() {
    const id memory = objc::send<id()>("UITableViewCell"_cls, "alloc"_sel);
    const id cell = objc::send<id(NSInteger, NSString)>(
        memory, "initWithStyle:reuseIdentifier:"_sel, 0, "detail"_ns);
    objc::send<id()>(cell, "autorelease"_sel);
    return sim::instance<SimTableViewCell>(cell);
}

void addText(SimTableViewCell *cell, NSString text, CGRect frame, CGFloat points, UIColor tint) {
    const auto label = makeLabel(frame, points, sim::TextAlignment::Left);
    label->setText(text);
    label->setTextColor(tint);
    asView(*cell->contentView()).addSubview(label);
}

UIColor tint() { return color(0, 122, 255); }

/// The number under its label, and the signs of what can be done with it.
SimTableViewCell *numberCell(NSObject number, CGFloat width) {
    SimTableViewCell *const cell = makeCell();
    constexpr CGFloat kIcon = 26;
    const CGFloat textWidth = width - kTextLeft - 100;
    addText(cell, objc::send<NSString()>(number, "label"_sel), rect(kTextLeft, 5, textWidth, 16),
            13, tint());
    addText(cell, textOf(number), rect(kTextLeft, 21, textWidth, 20), 16, UIColor::blackColor());
    CGFloat x = width - 2 * (kIcon + 15);
    for (const char *icon : {"detail_message", "detail_call"}) {
        asView(*cell->contentView()).addSubview(makePicture(icon, {x, (kRowHeight - kIcon) / 2}));
        x += kIcon + 15;
    }
    return cell;
}

SimTableViewCell *actionCell(const char *title, CGFloat width, UIColor textColor) {
    SimTableViewCell *const cell = makeCell();
    addText(cell, sim::string(title), rect(kTextLeft, 0, width - kTextLeft, kRowHeight), 16,
            textColor);
    return cell;
}

}  // namespace

void ABContactViewController::define() {
    using objc::member;
    using Self = ABContactViewController;
    sim::defined(
        "ABContactViewController",
        objc::ClassBuilder<Self>("ABContactViewController", "UIViewController")
            .ivar<&Self::contact_>("_contact")
            .ivar<&Self::contactView_>("_contactView")
            .method("contact"_sel, member<&Self::contact>)
            .method("contactView"_sel, member<&Self::contactView>)
            .method("loadView"_sel, member<&Self::loadView>)
            .method("numberOfSectionsInTableView:"_sel, member<&Self::numberOfSections>)
            .method("tableView:numberOfRowsInSection:"_sel, member<&Self::numberOfRows>)
            .method("tableView:cellForRowAtIndexPath:"_sel, member<&Self::cellForRow>)
            .method("tableView:heightForHeaderInSection:"_sel, member<&Self::heightForHeader>)
            .method("tableView:viewForHeaderInSection:"_sel, member<&Self::viewForHeader>)
            .method("tableView:didSelectRowAtIndexPath:"_sel, member<&Self::didSelectRow>)
            .finish());
}

ABContactViewController::~ABContactViewController() {
    // The table may outlive its delegate in somebody's pool.
    objc::send<void(NSObject)>(contactView_.get(), "setDelegate:"_sel, NSObject());
    objc::send<void(NSObject)>(contactView_.get(), "setDataSource:"_sel, NSObject());
}

void ABContactViewController::loadView() {
    const CGSize screen = sim::Device::current().screen;
    const auto view = makeView<SimView>(rect(0, 0, screen.width, screen.height));
    contactView_ =
        makeView<ABContactView>(rect(0, kNavigationBarHeight, screen.width,
                                     screen.height - kNavigationBarHeight - kTabBarHeight));
    bar_ = PhoneNavigationBar::make();
    bar()->setTitle("简介"_ns);
    view->setBackgroundColor(UIColor::whiteColor());
    view->addSubview(contactView_);
    view->addSubview(bar_);
    sim::instance<SimTableView>(contactView_)->setSeparatorInset({0, kTextLeft, 0, 0});
    setView(sim::instance<SimView>(view));
}

PhoneNavigationBar *ABContactViewController::bar() {
    return sim::instance<PhoneNavigationBar>(bar_);
}

UIView ABContactViewController::contactView() {
    view();
    return contactView_;
}

SimTableView *ABContactViewController::table() {
    return sim::instance<SimTableView>(contactView());
}

ABContactHeaderView *ABContactViewController::headerView() {
    return sim::instance<ABContactHeaderView>(headerView_);
}

void ABContactViewController::setBackButton(const BarButton &face) {
    view();
    bar()->setBackButton(face);
}

UIView ABContactViewController::backButton() {
    view();
    return bar()->backButton();
}

void ABContactViewController::show(NSObject contact, UIView personHeader) {
    contact_ = objc::Owned<NSObject>::share(contact);
    const NSObject table = contactView();
    sim::instance<ABContactView>(table)->setContact(contact);
    headerView_ = makeView<ABContactHeaderDisplayView>({});
    headerView()->setContact(contact);
    headerView()->setPersonHeaderView(personHeader);
    headerView_->setFrame(rect(0, 0, 0, headerView()->height()));
    objc::send<void(UIView)>(table, "setTableHeaderView:"_sel, headerView_);
    objc::send<void(NSObject)>(table, "setDelegate:"_sel, NSObject(*this));
    objc::send<void(NSObject)>(table, "setDataSource:"_sel, NSObject(*this));
}

NSInteger ABContactViewController::numberOfSections(SimTableView *) const { return kBlocking + 1; }

NSInteger ABContactViewController::numberOfRows(SimTableView *, NSInteger section) const {
    if (section == kNumbers) {
        return static_cast<NSInteger>(numbersOf(contact_).count());
    }
    return section == kActions ? std::ssize(actionsFor(contact_)) : 1;
}

SimTableViewCell *ABContactViewController::cellForRow(SimTableView *table,
                                                      NSObject indexPath) const {
    const CGFloat width = table->bounds().size.width;
    const auto row = static_cast<size_t>(sim::rowOf(indexPath));
    switch (sim::sectionOf(indexPath)) {
    case kNumbers:
        return numberCell(numbersOf(contact_).objectAtIndex(row), width);
    case kActions:
        return actionCell(actionsFor(contact_)[row], width, tint());
    default:
        return actionCell("阻止此来电号码", width, color(255, 59, 48));
    }
}

CGFloat ABContactViewController::heightForHeader(SimTableView *, NSInteger section) const {
    return section == kNumbers ? 0 : kSectionGap;
}

void ABContactViewController::didSelectRow(SimTableView *table, NSObject indexPath) const {
    table->deselectRow(indexPath, true);
    if (sim::sectionOf(indexPath) == kNumbers) {
        placeCall(textOf(
            numbersOf(contact_).objectAtIndex(static_cast<NSUInteger>(sim::rowOf(indexPath)))));
    }
}

}  // namespace phone
