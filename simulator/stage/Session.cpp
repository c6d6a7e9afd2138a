// Setting the scene, and acting in it.
#include "stage/Session.hpp"

#include <algorithm>

#include "phone/contact/ABNewPersonViewController.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/dialer/DialerView.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "phone/frame/PhoneTabBarController.hpp"
#include "stage/Errors.hpp"
#include "stage/Surroundings.hpp"
#include "stage/VisibleTexts.hpp"
#include "uikit/Finger.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Renderer.hpp"
#include "uikit/SimEvent.hpp"
#include "uikit/ViewTree.hpp"

namespace stage {
namespace {

constexpr size_t kLongestTyped = 40;  // bytes; what is longer is pasted

/// The characters of a UTF-8 text, each with its continuation bytes.
std::vector<std::string> characters(const std::string &text) {
    std::vector<std::string> all;
    for (const char byte : text) {
        const bool continues = (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
        if (continues && !all.empty()) {
            all.back() += byte;
        } else {
            all.emplace_back(1, byte);
        }
    }
    return all;
}

SimWindow *windowOf(NSObject window) { return objc::Wire<SimWindow *>::from(window.get()); }

/// The middle of the line under the typed number, in points of the window.
sim::Point middleOfLine(phone::DialerController *dialer) {
    const UIView line = dialer->dialerView()->display()->nameAndLabelView();
    const CGRect frame = line.frame();
    const CGPoint middle = {frame.origin.x + frame.size.width / 2,
                            frame.origin.y + frame.size.height / 2};
    return objc::send<CGPoint(CGPoint, UIView)>(line.superview(), "convertPoint:toView:"_sel,
                                                middle, UIView());
}

}  // namespace

Session::Session(const Settings &settings) {
    prepareProcess(settings);
    const CGSize screen = settings.model.screenSize();
    window_ = objc::Owned<NSObject>::adopt(
        NSObject(phone::makeView<SimWindow>(rect(0, 0, screen.width, screen.height)).leak().get()));
    root_ = objc::Owned<NSObject>::adopt(NSObject(*objc::make<phone::PhoneTabBarController>()));
    SimWindow *const window = windowOf(window_);
    window->setRootViewController(objc::Wire<SimViewController *>::from(root_.get().get()));
    window->makeKeyAndVisible();
    objc::send<void(bool)>(root_.get(), "viewWillAppear:"_sel, false);
    objc::send<void(bool)>(root_.get(), "viewDidAppear:"_sel, false);
    openDialer();
}

Session::~Session() {
    finger_.reset();
    objc::send<void(bool)>(root_.get(), "viewWillDisappear:"_sel, false);
    objc::send<void(bool)>(root_.get(), "viewDidDisappear:"_sel, false);
}

void Session::openDialer() {
    const objc::AutoreleasePool pool;
    finger_.reset();
    const auto controller =
        objc::Owned<NSObject>::adopt(NSObject(*objc::make<phone::DialerController>()));
    objc::Wire<phone::PhoneTabBarController *>::from(root_.get().get())
        ->showTab(phone::Tab::Keypad,
                  objc::Wire<SimViewController *>::from(controller.get().get()));
}

phone::DialerController *Session::dialer() const {
    const auto *const root = objc::Wire<phone::PhoneTabBarController *>::from(root_.get().get());
    return static_cast<phone::DialerController *>(root->shownController());
}

void Session::perform(const Step &step, std::ostream &out) {
    const objc::AutoreleasePool pool;
    switch (step.kind) {
    case Step::Kind::Type:
        type(step.text);
        break;
    case Step::Kind::Delete:
        for (int i = 0; i < step.count; ++i) {
            sim::tap(objc::Wire<SimView *>::from(dialer()->dialerView()->deleteKey().get()));
        }
        break;
    case Step::Kind::Touch:
    case Step::Kind::Hold:
    case Step::Kind::Cancel:
        touch(step.kind);
        break;
    case Step::Kind::SaveContact:
        saveContact(step.text);
        break;
    case Step::Kind::Picture:
        savePicture(step.text);
        break;
    case Step::Kind::Tree:
        out << tree();
        break;
    }
}

void Session::type(const std::string &text) const {
    if (text.size() > kLongestTyped) {
        dialer()->insertText(sim::string(text));
        return;
    }
    for (const std::string &character : characters(text)) {
        press(character);
    }
}

void Session::press(const std::string &character) const {
    const objc::AutoreleasePool pool;
    if (const UIView key = dialer()->dialerView()->keyWithSign(character)) {
        sim::tap(objc::Wire<SimView *>::from(key.get()));
    } else {
        dialer()->insertText(sim::string(character));
    }
}

void Session::touch(Step::Kind kind) {
    if (!finger_) {
        finger_ = std::make_unique<sim::Finger>(windowOf(window_), middleOfLine(dialer()));
    }
    if (kind == Step::Kind::Touch) {
        finger_->lift();
        finger_.reset();
    } else if (kind == Step::Kind::Cancel) {
        finger_->cancel();
        finger_.reset();
    }
}

void Session::saveContact(const std::string &name) const {
    if (!dialer()->newPersonController()) {
        throw Failure(
            "--save-contact: no sheet for a new person is open; "
            "type a number that is no contact's and --touch add-contact first");
    }
    dialer()->newPersonController()->saveWithName(sim::string(name));
}

std::string Session::tree() const {
    const objc::AutoreleasePool pool;
    windowOf(window_)->layoutIfNeeded();
    return sim::viewTree(windowOf(window_));
}

void Session::savePicture(const std::filesystem::path &file) const {
    const objc::AutoreleasePool pool;
    sim::snapshot(windowOf(window_)).savePng(file);
}

std::string Session::lineText() const {
    const objc::AutoreleasePool pool;
    const phone::PHHandsetDialerLCDView *const display = dialer()->dialerView()->display();
    return joinedTexts(UIView(*display), display->numberLabel());
}

std::string Session::numberText() const {
    const objc::AutoreleasePool pool;
    return sim::utf8(dialer()->dialerView()->display()->numberLabel().text());
}

}  // namespace stage
