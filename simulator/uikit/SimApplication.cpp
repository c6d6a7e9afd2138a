// UIApplication.
#include "uikit/SimApplication.hpp"

#include <algorithm>
#include <string_view>

#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimWindow.hpp"

namespace {

/// Actions may be declared with the sender, with sender and event, or with neither.
void perform(NSObject target, SEL action, NSObject sender, SimEvent *event) {
    switch (std::ranges::count(std::string_view(sel_getName(action)), ':')) {
    case 0:
        objc::Message<void()>::send(target, action);
        break;
    case 1:
        objc::Message<void(NSObject)>::send(target, action, sender);
        break;
    default:
        objc::Message<void(NSObject, SimEvent *)>::send(target, action, sender, event);
        break;
    }
}

/// The first responder from `from` outwards that knows the action; nil when none does.
NSObject responderFor(SEL action, NSObject from) {
    NSObject responder = from;
    while (responder != nullptr && !responder.respondsToSelector(action)) {
        responder = objc::send<NSObject()>(responder, "nextResponder"_sel);
    }
    return responder;
}

}  // namespace

SimApplication *SimApplication::shared() {
    static auto *const g_application = objc::make<SimApplication>().leak();
    return g_application;
}

bool SimApplication::openURL(NSObject url) {
    if (url == nullptr) {
        return false;
    }
    openedURLs_.push_back(objc::Owned<NSObject>::share(url));
    return true;
}

NSArray SimApplication::openedURLs() const { return sim::array(openedURLs_); }

NSArray SimApplication::windows() const {
    std::vector<id> ids;
    ids.reserve(windows_.size());
    for (const SimWindow *window : windows_) {
        ids.push_back(*window);
    }
    return sim::array(std::span<const id>(ids));
}

void SimApplication::addWindow(SimWindow *window) {
    if (std::ranges::find(windows_, window) == windows_.end()) {
        windows_.push_back(window);
    }
}

void SimApplication::removeWindow(SimWindow *window) {
    std::erase(windows_, window);
    if (keyWindow_ == window) {
        keyWindow_ = nullptr;
    }
}

CGRect SimApplication::statusBarFrame() const {
    return rect(0, 0, sim::Device::current().screen.width, 20);
}

bool SimApplication::sendAction(SEL action, NSObject target, NSObject sender, SimEvent *event) {
    const NSObject receiver = target != nullptr ? target : responderFor(action, sender);
    if (receiver == nullptr) {
        return false;
    }
    perform(receiver, action, sender, event);
    return true;
}

void SimApplication::define() {
    using objc::member;
    using A = SimApplication;
    sim::defined("UIApplication",
                 objc::ClassBuilder<A>("UIApplication", "UIResponder")
                     .classMethod("sharedApplication"_sel, objc::function<&A::shared>)
                     .method("openURL:"_sel, member<&A::openURL>)
                     .method("canOpenURL:"_sel, member<&A::canOpenURL>)
                     .method("keyWindow"_sel, member<&A::keyWindow>)
                     .method("windows"_sel, member<&A::windows>)
                     .method("delegate"_sel, member<&A::delegate>)
                     .method("setDelegate:"_sel, member<&A::setDelegate>)
                     .method("statusBarFrame"_sel, member<&A::statusBarFrame>)
                     .method("sendAction:to:from:forEvent:"_sel, member<&A::sendAction>)
                     .finish());
}
