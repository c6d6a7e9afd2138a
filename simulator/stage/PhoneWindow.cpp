// Controllers hear what a window's owner tells them on the device: who appears, who disappears.
#include "stage/PhoneWindow.hpp"

#include <utility>
#include <vector>

#include "phone/Parts.hpp"
#include "phone/PlaceCall.hpp"
#include "phone/dialer/ContactBook.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/favourites/PHFavoritesViewController.hpp"
#include "phone/frame/PhoneTabBarController.hpp"
#include "phone/frame/PlainListController.hpp"
#include "phone/incall/InCallController.hpp"
#include "phone/recents/PHRecentsViewController.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Renderer.hpp"
#include "uikit/ViewTree.hpp"

namespace stage {
namespace {

SimViewController *controllerOf(NSObject object) {
    return objc::Wire<SimViewController *>::from(object.get());
}

void tell(NSObject controller, auto selector) {
    objc::send<void(bool)>(controller, selector, false);
}

}  // namespace

PhoneWindow::PhoneWindow(CGSize screen, RecentCalls recentCalls)
    : recentCalls_(std::move(recentCalls)),
      window_(objc::Owned<NSObject>::adopt(NSObject(
          phone::makeView<SimWindow>(rect(0, 0, screen.width, screen.height)).leak().get()))),
      tabs_(objc::make<phone::PhoneTabBarController>().as<NSObject>()),
      hand_(window()) {
    tabs()->setMaker([this](phone::Tab tab) { return makeTab(tab); });
    phone::setCallPlacer([this](NSString number) { dial(number); });
    window()->setRootViewController(controllerOf(tabs_));
    window()->makeKeyAndVisible();
    tell(tabs_, "viewWillAppear:"_sel);
    tell(tabs_, "viewDidAppear:"_sel);
}

PhoneWindow::~PhoneWindow() {
    const objc::AutoreleasePool pool;
    hand_.cancel();
    phone::setCallPlacer({});
    dismiss();
    tell(tabs_, "viewWillDisappear:"_sel);
    tell(tabs_, "viewDidDisappear:"_sel);
}

phone::PhoneTabBarController *PhoneWindow::tabs() const {
    return objc::Wire<phone::PhoneTabBarController *>::from(tabs_.get().get());
}

objc::Owned<NSObject> PhoneWindow::makeTab(phone::Tab tab) const {
    switch (tab) {
    case phone::Tab::Favourites:
        return objc::make<phone::PHFavoritesViewController>().as<NSObject>();
    case phone::Tab::Recents: {
        auto recents = objc::make<phone::PHRecentsViewController>();
        recents->setCalls(recentCalls_());
        return std::move(recents).as<NSObject>();
    }
    case phone::Tab::Contacts: {
        std::vector<std::string> names;
        for (const phone::Contact &contact : phone::ContactBook::shared().all()) {
            names.push_back(contact.name);
        }
        return phone::PlainListController::create("所有联系人"_ns, std::move(names));
    }
    case phone::Tab::Keypad:
        return objc::make<phone::DialerController>().as<NSObject>();
    case phone::Tab::Voicemail:
        break;
    }
    return phone::PlainListController::create("语音留言"_ns, {});
}

void PhoneWindow::openTab(phone::Tab tab) {
    for (size_t other = 0; other < phone::kTabCount; ++other) {
        tabs()->setTab(static_cast<phone::Tab>(other), {});
    }
    tabs()->showTab(tab);
    layout();
}

void PhoneWindow::putAway() {
    hand_.cancel();
    const NSObject recents = tabs()->tab(phone::Tab::Recents);
    if (recents != nullptr) {
        auto &list = *sim::instance<phone::PHRecentsViewController>(recents);
        list.closeSwipe();
        if (list.isEditing()) {
            objc::send<void(bool, bool)>(recents, "setEditing:animated:"_sel, false, true);
        }
    }
    dismiss();
}

phone::Tab PhoneWindow::shownTab() const { return tabs()->shownTab(); }

SimView *PhoneWindow::tabButton(phone::Tab tab) const {
    return objc::Wire<SimView *>::from(tabs()->tabBar()->button(tab).get());
}

template <class Controller>
Controller *PhoneWindow::shown(phone::Tab tab) const {
    return shownTab() == tab ? sim::instance<Controller>(tabs()->tab(tab)) : nullptr;
}

phone::DialerController *PhoneWindow::keypad() const {
    return shown<phone::DialerController>(phone::Tab::Keypad);
}

phone::PHRecentsViewController *PhoneWindow::recents() const {
    return shown<phone::PHRecentsViewController>(phone::Tab::Recents);
}

phone::InCallController *PhoneWindow::inCall() const {
    return cover_ && cover_->isKindOfClass("InCallController"_cls)
               ? objc::Wire<phone::InCallController *>::from(cover_.get().get())
               : nullptr;
}

phone::InCallController &PhoneWindow::inCallForCalls() {
    if (inCall() == nullptr) {
        const auto made = phone::InCallController::create(phone::usualDisplay());
        present(made);
        inCall()->setWhenOver([this, controller = made.get()] {
            if (cover_ && cover_.get().get() == controller.get()) {
                dismiss();
            }
        });
    }
    return *inCall();
}

void PhoneWindow::dial(NSString number) { inCallForCalls().beginOutgoing(number); }

void PhoneWindow::ring(NSString number) { inCallForCalls().beginIncoming(number); }

void PhoneWindow::replaceRoot(NSObject from, NSObject by) {
    tell(from, "viewWillDisappear:"_sel);
    tell(by, "viewWillAppear:"_sel);
    window()->setRootViewController(controllerOf(by));
    tell(from, "viewDidDisappear:"_sel);
    tell(by, "viewDidAppear:"_sel);
}

void PhoneWindow::present(NSObject controller) {
    auto cover = objc::Owned<NSObject>::share(controller);
    replaceRoot(cover_ ? cover_ : tabs_, cover);
    cover_ = std::move(cover);
}

void PhoneWindow::dismiss() {
    if (cover_) {
        // What is told of it may still be at work in the cover.
        const NSObject gone = cover_.autorelease();
        replaceRoot(gone, tabs_);
    }
}

SimWindow *PhoneWindow::window() const {
    return objc::Wire<SimWindow *>::from(window_.get().get());
}

void PhoneWindow::layout() const { window()->layoutIfNeeded(); }

std::string PhoneWindow::tree() const {
    const objc::AutoreleasePool pool;
    layout();
    return sim::viewTree(window());
}

sim::Canvas PhoneWindow::picture() const {
    const objc::AutoreleasePool pool;
    return sim::snapshot(window());
}

void PhoneWindow::draw(sim::Canvas &canvas) const {
    const objc::AutoreleasePool pool;
    sim::redraw(window(), canvas);
}

}  // namespace stage
