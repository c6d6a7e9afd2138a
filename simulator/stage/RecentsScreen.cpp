// What the application's own objects do by message is asked of them by message, so that replaced
// methods take part. A refusal names the step and what would allow it.
#include "stage/RecentsScreen.hpp"

#include <algorithm>
#include <cmath>

#include "phone/contact/ABContactViewController.hpp"
#include "phone/recents/PHRecentsCell.hpp"
#include "phone/recents/PHRecentsViewController.hpp"
#include "stage/Buttons.hpp"
#include "stage/Errors.hpp"
#include "stage/RecentCallObjects.hpp"
#include "stage/Surroundings.hpp"
#include "stage/VisibleTexts.hpp"
#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/IndexPath.hpp"
#include "uikit/SimScrollView.hpp"
#include "uikit/SimTableView.hpp"

namespace stage {
namespace {

std::string titleOf(const std::string &action) {
    return action == "correct" ? "纠错" : action == "mark" ? "标记" : "搜索";
}

bool isSwipeSystem() { return sim::Device::current().systemVersion < "8"; }

}  // namespace

RecentsScreen::RecentsScreen(PhoneWindow &window, std::span<const companion::RecentCall> calls)
    : window_(window), controller_(objc::make<phone::PHRecentsViewController>().as<NSObject>()) {
    controller()->view();
    controller()->setCalls(recentCallObjects(calls));
    window_.showTab(phone::Tab::Recents, controller_);
    window_.layout();
}

RecentsScreen::~RecentsScreen() {
    const objc::AutoreleasePool pool;
    window_.hand().cancel();
    controller()->closeSwipe();
    if (controller()->isEditing()) {
        objc::send<void(bool, bool)>(controller_, "setEditing:animated:"_sel, false, true);
    }
}

phone::PHRecentsViewController *RecentsScreen::controller() const {
    return objc::Wire<phone::PHRecentsViewController *>::from(controller_.get().get());
}

void RecentsScreen::perform(const Step &step) {
    window_.layout();
    if (step.kind != Step::Kind::Release &&
        !(step.kind == Step::Kind::Swipe && holdsRow(step.count))) {
        window_.hand().cancel();
    }
    switch (step.kind) {
    case Step::Kind::Scroll:
        requireList("--scroll");
        dragListTo(static_cast<CGFloat>(step.points.value_or(0)));
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
        back();
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
                      (isAway() ? "another tab is shown; --tab back first" : std::string(remedy)));
    }
}

void RecentsScreen::requireList(const std::string &step) const {
    require(!isAway() && controller()->detail() == nullptr, step,
            "a detail is shown; --back first");
}

void RecentsScreen::requireRow(const std::string &step, int row) const {
    requireList(step);
    const NSInteger count = controller()->rowCount();
    require(row <= count, step,
            count == 0   ? "the list is empty; name other calls with --calls"
            : count == 1 ? "there is one row; choose row 1"
                         : "there are " + std::to_string(count) + " rows; choose one from 1 on");
}

phone::PHRecentsCell *RecentsScreen::swipedCell() const { return controller()->swipedCell(); }

bool RecentsScreen::holdsRow(int row) const {
    phone::PHRecentsCell *const held = swipedCell();
    return window_.hand().isDown() && held != nullptr && held == controller()->cell(row - 1);
}

/// A touch beside what the row has revealed.
void RecentsScreen::closeOpenRow() const {
    if (phone::PHRecentsCell *const open = swipedCell()) {
        window_.hand().tap(open->contentView());
    }
}

/// As often as the screen is too short for the way.
void RecentsScreen::dragListTo(CGFloat points) const {
    constexpr CGFloat kMargin = 20;
    constexpr CGFloat kStep = 40;
    constexpr CGFloat kNear = 0.001;
    closeOpenRow();
    SimTableView *const table = controller()->table();
    const CGRect place = table->convertRectToView(table->bounds(), window_.window());
    const CGFloat end = table->nearestRest({0, points}).y;
    const CGFloat longest = place.size.height - 3 * kMargin;
    const auto left = [&] { return table->contentOffset().y - end; };
    CGFloat way = 0;
    while (std::abs(left()) > kNear && left() != way) {
        way = left();
        const CGFloat direction = way < 0 ? -1 : 1;
        const CGFloat middle = place.origin.y + place.size.height / 2;
        window_.hand().beginDrag(
            {place.size.width / 2, middle - direction * (place.size.height / 2 - kMargin)},
            {0, direction});
        window_.hand().dragOn({0, std::clamp(way, -longest, longest)}, kStep);
        window_.hand().release();
    }
}

void RecentsScreen::scrollToRow(int row) const {
    requireRow("--scroll row:" + std::to_string(row), row);
    dragListTo(controller()->table()->offsetShowing(sim::indexPath(0, row - 1)).y);
}

void RecentsScreen::swipe(const Step &step) const {
    const std::string name = "--swipe " + std::to_string(step.count);
    requireRow(name, step.count);
    require(isSwipeSystem(), name, "rows can be swiped before iOS 8; choose --ios 7.0 or 7.1");
    require(!controller()->isEditing(), name, "the list is in edit mode; --edit off first");
    phone::PHRecentsCell *const cell = controller()->cell(step.count - 1);
    require(cell != nullptr && visibleMiddle(cell), name,
            "the row is not on screen; --scroll row:" + std::to_string(step.count) + " first");
    if (swipedCell() != cell) {
        closeOpenRow();
    }
    if (step.points) {
        dragRowTo(*cell, static_cast<CGFloat>(*step.points));
        return;
    }
    // How wide its menu is shows only when something of it is seen.
    constexpr CGFloat kGlimpse = 8;
    dragRowTo(*cell, kGlimpse);
    dragRowTo(*cell, cell->swipeWidth());
}

void RecentsScreen::dragRowTo(phone::PHRecentsCell &cell, CGFloat points) const {
    constexpr CGFloat kStep = 8;
    constexpr CGFloat kMargin = 20;
    const CGFloat way = cell.scrollView()->contentOffset().x - points;
    if (const auto middle = visibleMiddle(&cell); middle && !window_.hand().isDown()) {
        const bool toTheRight = way > 0;
        window_.hand().beginDrag(
            {toTheRight ? kMargin : cell.bounds().size.width - kMargin, middle->y},
            {toTheRight ? CGFloat{1} : CGFloat{-1}, 0});
    }
    window_.hand().dragOn({way, 0}, kStep);
}

void RecentsScreen::release() const {
    require(window_.hand().isDown(), "--release",
            "no finger is on the screen; --swipe a row or --hold a button first");
    window_.hand().release();
}

void RecentsScreen::edit(bool on) const {
    const std::string name = std::string("--edit ") + (on ? "on" : "off");
    requireList(name);
    require(controller()->isEditing() != on, name,
            on ? "the list is in edit mode already; --edit off ends it"
               : "the list is not in edit mode; --edit on begins it");
    window_.hand().tap(viewOf(controller()->editButton()));
}

void RecentsScreen::open(int row) const {
    const std::string name = "--open " + std::to_string(row);
    requireRow(name, row);
    require(!controller()->isEditing(), name, "the list is in edit mode; --edit off first");
    closeOpenRow();
    const phone::PHRecentsCell *const cell = controller()->cell(row - 1);
    require(cell != nullptr && window_.hand().tap(viewOf(cell->infoButton())), name,
            "the row is not on screen; --scroll row:" + std::to_string(row) + " first");
}

void RecentsScreen::back() const {
    phone::ABContactViewController *const detail = controller()->detail();
    require(!isAway() && detail != nullptr, "--back", "no detail is shown; --open a row first");
    window_.hand().tap(viewOf(detail->backButton()));
}

void RecentsScreen::touchButton(const std::string &step, const std::string &action,
                                bool lift) const {
    const std::string title = titleOf(action);
    require(window_.hand().press(visibleButton(window_.window(), title)), step,
            "no button " + title +
                " is on the screen; --swipe a row or --open one whose number offers it");
    if (lift) {
        window_.hand().lift();
    }
}

void RecentsScreen::switchTab(const std::string &how) const {
    const bool away = how != "back";
    if (away == isAway()) {
        throw Failure("--tab " + how +
                      (away ? ": another tab is shown already; --tab back returns"
                            : ": the recents are shown already; --tab away leaves them"));
    }
    window_.hand().tap(window_.tabButton(!away                 ? phone::Tab::Recents
                                         : how == "favourites" ? phone::Tab::Favourites
                                                               : phone::Tab::Keypad));
}

std::string RecentsScreen::caption() const {
    window_.layout();
    if (phone::ABContactViewController *const detail = controller()->detail()) {
        return joinedTexts(UIView(*detail->headerView()), UIView());
    }
    if (phone::PHRecentsCell *const cell = swipedCell()) {
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
