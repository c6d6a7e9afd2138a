// Steps of every screen: fingers, time, tabs, and looking.
#include "companion/world/World.hpp"
#include "phone/contact/ABContactViewController.hpp"
#include "phone/contact/ABNewPersonViewController.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/recents/PHRecentsViewController.hpp"
#include "stage/Session.hpp"
#include "stage/StepKind.hpp"
#include "stage/Surroundings.hpp"
#include "uikit/Motion.hpp"

namespace stage {
namespace {

void release(Session &session) {
    Hand &hand = session.window().hand();
    require(hand.isDown(), "no finger is on the screen; --swipe a row or --hold a button first");
    hand.release();
}

void tab(Session &session, const std::string &name) {
    using phone::Tab;
    const Tab tab = name == "keypad"       ? Tab::Keypad
                    : name == "recents"    ? Tab::Recents
                    : name == "favourites" ? Tab::Favourites
                    : name == "contacts"   ? Tab::Contacts
                                           : Tab::Voicemail;
    PhoneWindow &window = session.window();
    window.hand().cancel();
    require(window.shownTab() != tab, "this tab is shown already; choose another");
    window.hand().tap(window.tabButton(tab));
}

/// What lies over a tab's own content goes.
void back(Session &session) {
    Hand &hand = session.window().hand();
    hand.cancel();
    const phone::DialerController *const keypad = session.dialer();
    const phone::PHRecentsViewController *const recents = session.recents();
    if (keypad != nullptr && keypad->newPersonController() != nullptr) {
        keypad->newPersonController()->cancel();
    } else {
        require(recents != nullptr && recents->detail() != nullptr,
                "no detail is shown; --open a row first");
        hand.tap(viewOf(recents->detail()->backButton()));
    }
}

void wait(Session &session, std::chrono::milliseconds time) {
    if (sim::Motion::shared().isWatched()) {
        session.leap(time);
    } else {
        session.wait(time);
    }
}

void reload(Session &session) {
    session.window().hand().cancel();
    announceNewData();
}

void know(Session &session, const std::string &piece) {
    session.window().hand().cancel();
    try {
        learn(piece);
    } catch (const companion::WorldError &error) {
        throw NotPossible(error.what());
    }
}

Hand &finger(Session &session) {
    Hand &hand = session.window().hand();
    require(hand.isDown(), "no finger is on the screen; put one there with --down X,Y");
    return hand;
}

void down(Session &session, sim::Point at) { session.window().hand().down(at); }

void move(Session &session, sim::Point to) { finger(session).moveTo(to); }

void lift(Session &session) { finger(session).lift(); }

void cancel(Session &session) { finger(session).cancel(); }

void png(Session &session, const std::string &file) { session.picture().savePng(file); }

Act tree(const Given &) {
    return [](Session &session, std::ostream &out) { out << session.tree(); };
}

}  // namespace

std::vector<StepKind> anySteps() {
    using enum ScreenKind;
    constexpr bool kMotionGoesOn = true;
    return {
        {"tab", "favourites|recents|contacts|keypad|voicemail", "show a tab", Tabs,
         with<&tab, &anyText>},
        {"back", "", "return from the detail to the list; closes the sheet for a new person too",
         Tabs, alone<&back>},
        {"reload", "", "the companion tells that its data has changed", Any, alone<&reload>},
        {"know", "JSON", "the companion learns a piece of a world, in place of what it knew", Any,
         with<&know, &anyText>},
        {"release", "", "lift the finger, which has been at rest", Any, alone<&release>},
        {"down", "X,Y",
         "put a finger on the screen, X,Y points from its corner; the name of what is there may "
         "follow",
         Any, with<&down, &namedPoint>, kMotionGoesOn},
        {"move", "X,Y", "move it there", Any, with<&move, &point>, kMotionGoesOn},
        {"lift", "", "lift it from where it is, at the speed that it has", Any, alone<&lift>,
         kMotionGoesOn},
        {"cancel", "", "its touch comes to nothing", Any, alone<&cancel>, kMotionGoesOn},
        {"wait", "SECONDS", "let time pass, up to two hours", Any, with<&wait, &duration>,
         kMotionGoesOn},
        {"png", "FILE", "write the screen as it is after the steps so far", Any,
         with<&png, &anyText>, kMotionGoesOn},
        {"tree", "", "print the view tree as it is after the steps so far", Any, &tree,
         kMotionGoesOn},
    };
}

}  // namespace stage
