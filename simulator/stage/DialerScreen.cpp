// Keys are found by their signs and tapped; the line under the number is touched in its middle.
#include "stage/DialerScreen.hpp"

#include <vector>

#include "phone/contact/ABNewPersonViewController.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/dialer/DialerView.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "stage/Errors.hpp"
#include "stage/VisibleTexts.hpp"
#include "uikit/Finger.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/SimEvent.hpp"

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

DialerScreen::DialerScreen(PhoneWindow &window) : window_(window) {
    const auto controller = objc::make<phone::DialerController>().as<NSObject>();
    window_.showTab(phone::Tab::Keypad, controller);
}

DialerScreen::~DialerScreen() = default;

phone::DialerController *DialerScreen::controller() const {
    return static_cast<phone::DialerController *>(window_.tabController());
}

void DialerScreen::perform(const Step &step) {
    switch (step.kind) {
    case Step::Kind::Type:
        type(step.text);
        break;
    case Step::Kind::Delete:
        for (int i = 0; i < step.count; ++i) {
            sim::tap(objc::Wire<SimView *>::from(controller()->dialerView()->deleteKey().get()));
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
    default:
        throw Failure("the keypad is shown, where this step is not possible");
    }
}

void DialerScreen::type(const std::string &text) const {
    if (text.size() > kLongestTyped) {
        controller()->insertText(sim::string(text));
        return;
    }
    for (const std::string &character : characters(text)) {
        press(character);
    }
}

void DialerScreen::press(const std::string &character) const {
    const objc::AutoreleasePool pool;
    if (const UIView key = controller()->dialerView()->keyWithSign(character)) {
        sim::tap(objc::Wire<SimView *>::from(key.get()));
    } else {
        controller()->insertText(sim::string(character));
    }
}

void DialerScreen::touch(Step::Kind kind) {
    if (!finger_) {
        if (!controller()->dialerView()->display()->offersToAdd()) {
            throw Failure(
                "--touch: no add-to-contacts line is shown; "
                "--type a number that is no contact's first");
        }
        finger_ = std::make_unique<sim::Finger>(window_.window(), middleOfLine(controller()));
    }
    if (kind == Step::Kind::Touch) {
        finger_->lift();
        finger_.reset();
    } else if (kind == Step::Kind::Cancel) {
        finger_->cancel();
        finger_.reset();
    }
}

void DialerScreen::saveContact(const std::string &name) const {
    if (!controller()->newPersonController()) {
        throw Failure(
            "--save-contact: no sheet for a new person is open; "
            "type a number that is no contact's and --touch add-contact first");
    }
    controller()->newPersonController()->saveWithName(sim::string(name));
}

std::string DialerScreen::caption() const {
    const phone::PHHandsetDialerLCDView *const display = controller()->dialerView()->display();
    return joinedTexts(UIView(*display), display->numberLabel());
}

}  // namespace stage
