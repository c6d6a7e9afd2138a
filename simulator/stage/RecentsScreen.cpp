// What the application's own objects do by message is asked of them by message, so that replaced
// methods take part. A refusal names the step and what would allow it.
#include "stage/RecentsScreen.hpp"

#include <vector>

#include "phone/contact/ABContactViewController.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/favourites/PHFavoritesViewController.hpp"
#include "phone/recents/PHRecentCall.hpp"
#include "phone/recents/PHRecentsCell.hpp"
#include "phone/recents/PHRecentsViewController.hpp"
#include "stage/Buttons.hpp"
#include "stage/Errors.hpp"
#include "stage/Surroundings.hpp"
#include "stage/VisibleTexts.hpp"
#include "uikit/Device.hpp"
#include "uikit/Finger.hpp"
#include "uikit/Foundation.hpp"

namespace stage {
namespace {

NSArray callObjects(std::span<const companion::RecentCall> calls) {
    std::vector<objc::Owned<NSObject>> objects;
    objects.reserve(calls.size());
    for (const companion::RecentCall &call : calls) {
        objects.push_back(phone::PHRecentCall::create({.number = call.number,
                                                       .name = call.name,
                                                       .label = call.label,
                                                       .incoming = call.incoming,
                                                       .answered = call.answered,
                                                       .date = call.date}));
    }
    return sim::array(objects);
}

std::string titleOf(const std::string &action) {
    return action == "correct" ? "纠错" : action == "mark" ? "标记" : "搜索";
}

bool isSwipeSystem() { return sim::Device::current().systemVersion < "8"; }

}  // namespace

RecentsScreen::RecentsScreen(PhoneWindow &window, std::span<const companion::RecentCall> calls)
    : window_(window), controller_(objc::make<phone::PHRecentsViewController>().as<NSObject>()) {
    controller()->view();
    controller()->setCalls(callObjects(calls));
    window_.showTab(phone::Tab::Recents, controller_);
    window_.layout();
}

RecentsScreen::~RecentsScreen() {
    const objc::AutoreleasePool pool;
    finger_.reset();
    controller()->closeSwipe();
    if (controller()->isEditing()) {
        setEditing(false);
    }
}

phone::PHRecentsViewController *RecentsScreen::controller() const {
    return objc::Wire<phone::PHRecentsViewController *>::from(controller_.get().get());
}

void RecentsScreen::perform(const Step &step) {
    window_.layout();
    if (step.kind != Step::Kind::Release) {
        finger_.reset();
    }
    switch (step.kind) {
    case Step::Kind::Scroll:
        requireList("--scroll");
        controller()->scrollTo(static_cast<CGFloat>(step.points.value_or(0)));
        break;
    case Step::Kind::ScrollToRow:
        scrollToRow(step.count);
        break;
    case Step::Kind::Swipe:
        swipe(step);
        break;
    case Step::Kind::Release:
        release();
        break;
    case Step::Kind::Edit:
        edit(step.text == "on");
        break;
    case Step::Kind::Open:
        open(step.count);
        break;
    case Step::Kind::Back:
        require(!away_ && controller()->back(), "--back", "no detail is shown; --open a row first");
        break;
    case Step::Kind::Press:
        touchButton("--press " + step.text, step.text, true);
        break;
    case Step::Kind::HoldButton:
        touchButton("--hold " + step.text, step.text, false);
        break;
    case Step::Kind::Tab:
        switchTab(step.text);
        break;
    case Step::Kind::Reload:
        announceNewData();
        break;
    default:
        throw Failure("the recents list is shown, where this step is not possible");
    }
    window_.layout();
}

void RecentsScreen::require(bool possible, std::string_view step, std::string_view remedy) const {
    if (!possible) {
        throw Failure(std::string(step) + ": " +
                      (away_ ? "another tab is shown; --tab back first" : std::string(remedy)));
    }
}

void RecentsScreen::requireList(const std::string &step) const {
    require(!away_ && controller()->detail() == nullptr, step, "a detail is shown; --back first");
}

void RecentsScreen::requireRow(const std::string &step, int row) const {
    requireList(step);
    const NSInteger count = controller()->rowCount();
    require(row <= count, step,
            count == 0   ? "the list is empty; name other calls with --calls"
            : count == 1 ? "there is one row; choose row 1"
                         : "there are " + std::to_string(count) + " rows; choose one from 1 on");
}

void RecentsScreen::scrollToRow(int row) const {
    requireRow("--scroll row:" + std::to_string(row), row);
    controller()->scrollToRow(row - 1);
}

void RecentsScreen::swipe(const Step &step) const {
    const std::string name = "--swipe " + std::to_string(step.count);
    requireRow(name, step.count);
    require(isSwipeSystem(), name, "rows can be swiped before iOS 8; choose --ios 7.0 or 7.1");
    require(!controller()->isEditing(), name, "the list is in edit mode; --edit off first");
    const NSInteger row = step.count - 1;
    const bool done = step.points ? controller()->swipe(row, static_cast<CGFloat>(*step.points))
                                  : controller()->swipeOpen(row);
    require(done, name,
            "the row is not on screen; --scroll row:" + std::to_string(step.count) + " first");
}

void RecentsScreen::release() {
    if (finger_) {
        finger_->lift();
        finger_.reset();
        return;
    }
    require(!away_ && controller()->releaseSwipe(), "--release",
            "no finger is on the screen; --swipe a row or --hold a button first");
}

void RecentsScreen::edit(bool on) const {
    const std::string name = std::string("--edit ") + (on ? "on" : "off");
    requireList(name);
    require(controller()->isEditing() != on, name,
            on ? "the list is in edit mode already; --edit off ends it"
               : "the list is not in edit mode; --edit on begins it");
    setEditing(on);
}

void RecentsScreen::setEditing(bool on) const {
    objc::send<void(bool, bool)>(controller_, "setEditing:animated:"_sel, on, true);
}

void RecentsScreen::open(int row) const {
    const std::string name = "--open " + std::to_string(row);
    requireRow(name, row);
    require(!controller()->isEditing(), name, "the list is in edit mode; --edit off first");
    require(controller()->openDetail(row - 1), name,
            "the row is not on screen; --scroll row:" + std::to_string(row) + " first");
}

void RecentsScreen::touchButton(const std::string &step, const std::string &action, bool lift) {
    const std::string title = titleOf(action);
    SimView *const button = visibleButton(window_.window(), title);
    require(button != nullptr, step,
            "no button " + title +
                " is on the screen; --swipe a row or --open one whose number offers it");
    finger_ = std::make_unique<sim::Finger>(window_.window(), middleOf(button));
    if (lift) {
        release();
    }
}

void RecentsScreen::switchTab(const std::string &how) {
    const bool away = how != "back";
    if (away == away_) {
        throw Failure("--tab " + how +
                      (away ? ": another tab is shown already; --tab back returns"
                            : ": the recents are shown already; --tab away leaves them"));
    }
    if (!away) {
        window_.showTab(phone::Tab::Recents, controller_);
    } else if (how == "favourites") {
        if (!favourites_) {
            favourites_ = objc::make<phone::PHFavoritesViewController>().as<NSObject>();
        }
        window_.showTab(phone::Tab::Favourites, favourites_);
    } else {
        const auto keypad = objc::make<phone::DialerController>().as<NSObject>();
        window_.showTab(phone::Tab::Keypad, keypad);
    }
    away_ = away;
}

std::string RecentsScreen::caption() const {
    window_.layout();
    if (phone::ABContactViewController *const detail = controller()->detail()) {
        return joinedTexts(UIView(*detail->headerView()), UIView());
    }
    const NSInteger swiped = controller()->swipedRow();
    if (phone::PHRecentsCell *const cell = controller()->cell(swiped)) {
        return joinedTexts(UIView(*cell), UIView());
    }
    for (NSInteger row = 0; row < controller()->rowCount(); ++row) {
        if (phone::PHRecentsCell *const cell = controller()->cell(row)) {
            return joinedTexts(UIView(*cell), UIView());
        }
    }
    return {};
}

}  // namespace stage
