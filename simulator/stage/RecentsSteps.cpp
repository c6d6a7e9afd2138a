// The recents list and the detail of a call. What the application's own objects do by message is
// asked of them by message, so that replaced methods take part.
#include <algorithm>
#include <cmath>

#include "phone/contact/ABContactViewController.hpp"
#include "phone/recents/PHRecentsCell.hpp"
#include "phone/recents/PHRecentsViewController.hpp"
#include "stage/Buttons.hpp"
#include "stage/Session.hpp"
#include "stage/StepKind.hpp"
#include "uikit/Device.hpp"
#include "uikit/IndexPath.hpp"
#include "uikit/SimScrollView.hpp"
#include "uikit/SimTableView.hpp"

namespace stage {
namespace {

constexpr auto kNoDetail = "a detail is shown; --back first";
constexpr auto kNotEditing = "the list is in edit mode; --edit off first";

/// The list, and the hand at it; rows are counted from 1.
class List {
  public:
    /// Throws NotPossible while a detail is shown.
    explicit List(Session &session) : window_(session.window()), controller_(*session.recents()) {
        require(controller_.detail() == nullptr, kNoDetail);
    }

    phone::PHRecentsCell *cell(int row) const {
        const NSInteger count = controller_.rowCount();
        require(row <= count, count == 0   ? "the list is empty; name other calls with --calls"
                              : count == 1 ? "there is one row; choose row 1"
                                           : "there are " + std::to_string(count) +
                                                 " rows; choose one from 1 on");
        return controller_.cell(row - 1);
    }
    /// A touch beside what the row has revealed.
    void closeOpenRow() const {
        if (phone::PHRecentsCell *const open = controller_.swipedCell()) {
            hand().tap(open->contentView());
        }
    }
    void dragTo(CGFloat points) const;
    static void requireSeen(bool isSeen, int row) {
        require(isSeen, "the row is not on screen; --scroll row:" + std::to_string(row) + " first");
    }

    Hand &hand() const { return window_.hand(); }
    phone::PHRecentsViewController &controller() const { return controller_; }

  private:
    PhoneWindow &window_;
    phone::PHRecentsViewController &controller_;
};

/// Before anything is done to what is shown, a finger that is still there goes.
void letGo(Session &session) {
    session.window().hand().cancel();
    session.window().layout();
}

/// As often as the screen is too short for the way.
void List::dragTo(CGFloat points) const {
    constexpr CGFloat kMargin = 20;
    constexpr CGFloat kStep = 40;
    constexpr CGFloat kNear = 0.001;
    closeOpenRow();
    SimTableView *const table = controller_.table();
    const CGRect place = table->convertRectToView(table->bounds(), window_.window());
    const CGFloat end = table->nearestRest({0, points}).y;
    const CGFloat longest = place.size.height - 3 * kMargin;
    const auto left = [&] { return table->contentOffset().y - end; };
    CGFloat way = 0;
    while (std::abs(left()) > kNear && left() != way) {
        way = left();
        const CGFloat direction = way < 0 ? -1 : 1;
        const CGFloat middle = place.origin.y + place.size.height / 2;
        hand().beginDrag(
            {place.size.width / 2, middle - direction * (place.size.height / 2 - kMargin)},
            {0, direction});
        hand().dragOn({0, std::clamp(way, -longest, longest)}, kStep);
        hand().release();
    }
}

void scroll(Session &session, const Place &where) {
    letGo(session);
    const List list(session);
    if (!where.row) {
        list.dragTo(static_cast<CGFloat>(where.points));
    } else {
        list.cell(*where.row);
        const NSObject path = sim::indexPath(0, *where.row - 1);
        list.dragTo(list.controller().table()->offsetShowing(path).y);
    }
}

void dragRowTo(Hand &hand, phone::PHRecentsCell &cell, CGFloat points) {
    constexpr CGFloat kStep = 8;
    constexpr CGFloat kMargin = 20;
    const CGFloat way = cell.scrollView()->contentOffset().x - points;
    if (const auto middle = visibleMiddle(&cell); middle && !hand.isDown()) {
        const bool toTheRight = way > 0;
        hand.beginDrag({toTheRight ? kMargin : cell.bounds().size.width - kMargin, middle->y},
                       {toTheRight ? CGFloat{1} : CGFloat{-1}, 0});
    }
    hand.dragOn({way, 0}, kStep);
}

void swipe(Session &session, const Pull &pull) {
    session.window().layout();
    Hand &hand = session.window().hand();
    phone::PHRecentsCell *const held = hand.isDown() ? session.recents()->swipedCell() : nullptr;
    if (held == nullptr || held != session.recents()->cell(pull.row - 1)) {
        hand.cancel();
    }
    const List list(session);
    phone::PHRecentsCell *const cell = list.cell(pull.row);
    require(sim::Device::current().systemVersion < "8",
            "rows can be swiped before iOS 8; choose --ios 7.0 or 7.1");
    require(!list.controller().isEditing(), kNotEditing);
    List::requireSeen(visibleMiddle(cell).has_value(), pull.row);
    if (list.controller().swipedCell() != cell) {
        list.closeOpenRow();
    }
    if (pull.points) {
        dragRowTo(hand, *cell, static_cast<CGFloat>(*pull.points));
        return;
    }
    // How wide its menu is shows only when something of it is seen.
    constexpr CGFloat kGlimpse = 8;
    dragRowTo(hand, *cell, kGlimpse);
    dragRowTo(hand, *cell, cell->swipeWidth());
}

void edit(Session &session, const std::string &how) {
    letGo(session);
    const List list(session);
    const bool on = how == "on";
    require(list.controller().isEditing() != on,
            on ? "the list is in edit mode already; --edit off ends it"
               : "the list is not in edit mode; --edit on begins it");
    list.hand().tap(viewOf(list.controller().editButton()));
}

void open(Session &session, int row) {
    letGo(session);
    const List list(session);
    list.cell(row);
    require(!list.controller().isEditing(), kNotEditing);
    list.closeOpenRow();
    const phone::PHRecentsCell *const cell = list.cell(row);
    List::requireSeen(cell != nullptr && list.hand().tap(viewOf(cell->infoButton())), row);
}

void hold(Session &session, const std::string &button) {
    letGo(session);
    const std::string title = button == "correct" ? "纠错" : button == "mark" ? "标记" : "搜索";
    require(session.window().hand().press(visibleButton(session.window().window(), title)),
            "no button " + title +
                " is on the screen; --swipe a row or --open one whose number offers it");
}

void pressButton(Session &session, const std::string &button) {
    hold(session, button);
    session.window().hand().lift();
}

}  // namespace

std::vector<StepKind> recentsSteps() {
    constexpr auto kRecents = ScreenKind::Recents;
    return {
        {"scroll", "WHERE", "scroll to WHERE: points from the top, or row:N to see row N", kRecents,
         with<&scroll, &place>},
        {"swipe", "ROW[,POINTS]",
         "drag row ROW, counted from 1, to the left: until its menu is open, or so far", kRecents,
         with<&swipe, &pull>},
        {"edit", "on|off", "edit mode of the list", kRecents, with<&edit, &anyText>},
        {"open", "ROW", "show the detail of row ROW", kRecents, with<&open, &wholeNumber>},
        {"press", "correct|mark|search", "press a button of the open menu or the detail", kRecents,
         with<&pressButton, &anyText>},
        {"hold", "correct|mark|search", "put a finger on it and leave it there", kRecents,
         with<&hold, &anyText>},
    };
}

}  // namespace stage
