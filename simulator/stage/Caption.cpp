// Each screen has its own place for it.
#include "stage/Caption.hpp"

#include "phone/contact/ABContactViewController.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/dialer/DialerView.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "phone/incall/InCallController.hpp"
#include "phone/recents/PHRecentsCell.hpp"
#include "phone/recents/PHRecentsViewController.hpp"
#include "stage/PhoneWindow.hpp"
#include "stage/VisibleTexts.hpp"

namespace stage {
namespace {

std::string recentsCaption(phone::PHRecentsViewController &recents) {
    if (phone::ABContactViewController *const detail = recents.detail()) {
        return joinedTexts(UIView(*detail->headerView()), UIView());
    }
    phone::PHRecentsCell *cell = recents.swipedCell();
    for (NSInteger row = 0; cell == nullptr && row < recents.rowCount(); ++row) {
        cell = recents.cell(row);
    }
    return cell != nullptr ? joinedTexts(UIView(*cell), UIView()) : std::string();
}

}  // namespace

std::string caption(const PhoneWindow &window) {
    window.layout();
    if (phone::InCallController *const calls = window.inCall()) {
        return joinedTexts(calls->displayView(), UIView());
    }
    if (phone::PHRecentsViewController *const recents = window.recents()) {
        return recentsCaption(*recents);
    }
    if (phone::DialerController *const keypad = window.keypad()) {
        const phone::PHHandsetDialerLCDView *const display = keypad->dialerView()->display();
        return joinedTexts(UIView(*display), display->numberLabel());
    }
    return {};
}

}  // namespace stage
