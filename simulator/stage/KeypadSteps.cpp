// What a person types and touches on the keypad. Keys are found by their signs and tapped; the line
// under the number is touched in its middle.
#include <vector>

#include "phone/contact/ABNewPersonViewController.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/dialer/DialerView.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "stage/Session.hpp"
#include "stage/StepKind.hpp"
#include "uikit/Foundation.hpp"

namespace stage {
namespace {

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

void pressKey(Session &session, const std::string &character) {
    const objc::AutoreleasePool pool;
    if (const UIView key = session.dialer()->dialerView()->keyWithSign(character)) {
        session.window().hand().tap(viewOf(key));
    } else {
        session.dialer()->insertText(sim::string(character));
    }
}

void type(Session &session, const std::string &text) {
    constexpr size_t kLongestTyped = 40;  // bytes; what is longer is pasted
    if (text.size() > kLongestTyped) {
        session.dialer()->insertText(sim::string(text));
        return;
    }
    for (const std::string &character : characters(text)) {
        pressKey(session, character);
    }
}

void erase(Session &session, int count) {
    phone::DialerController &keypad = *session.dialer();
    int pressed = 0;
    do {  // a million times more would change nothing
        session.window().hand().tap(viewOf(keypad.dialerView()->deleteKey()));
    } while (++pressed < count && keypad.typedNumber().length() > 0);
}

void touch(Session &session, const std::string &how) {
    Hand &hand = session.window().hand();
    const phone::PHHandsetDialerLCDView &display = *session.dialer()->dialerView()->display();
    if (!hand.isDown()) {
        require(display.offersToAdd(),
                "no add-to-contacts line is shown; --type a number that is no contact's first");
        // There, whatever stands in its place.
        const CGRect line = display.nameAndLabelView().frame();
        hand.press(viewOf(UIView(display))
                       ->convertPointToView({line.origin.x + line.size.width / 2,
                                             line.origin.y + line.size.height / 2},
                                            session.window().window()));
    }
    if (how == "add-contact") {
        hand.lift();
    } else if (how == "add-contact-cancel") {
        hand.cancel();
    }
}

void saveContact(Session &session, const std::string &name) {
    phone::ABNewPersonViewController *const sheet = session.dialer()->newPersonController();
    require(sheet != nullptr,
            "no sheet for a new person is open; type a number that is no contact's and "
            "--touch add-contact first");
    sheet->saveWithName(sim::string(name));
}

}  // namespace

std::vector<StepKind> keypadSteps() {
    constexpr auto kKeypad = ScreenKind::Dialer;
    return {
        {"type", "TEXT", "press the keys of TEXT", kKeypad, with<&type, &anyText>},
        {"delete", "N", "press the delete key N times", kKeypad, with<&erase, &wholeNumber>},
        {"touch", "add-contact|add-contact-hold|add-contact-cancel",
         "tap the line that offers to add the number, hold it, or cancel the touch", kKeypad,
         with<&touch, &anyText>},
        {"save-contact", "NAME", "save the new person after a tap on that line", kKeypad,
         with<&saveContact, &anyText>},
    };
}

}  // namespace stage
