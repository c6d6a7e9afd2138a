// The swipe menu of a recents row.
#include "recents/SwipeMenu.hpp"

#include "companion/Interface.hpp"
#include "objc/Silently.hpp"
#include "recents/Actions.hpp"
#include "recents/Lookup.hpp"
#include "recents/LookupContext.hpp"

namespace recents {
namespace {

enum MenuTag : NSInteger {
    kMenuCorrectTag = 1012,
    kMenuMarkTag = 1013,
    // The confirmation view itself, once it was asked for. A new one at the same address has none.
    kAskedTag = 1014,
};

/// The opening of a menu that was asked for last; compared, never used.
struct Opening {
    id cell, call, confirmation;
    bool operator==(const Opening &) const = default;
};

constinit Opening g_opening{};

constinit bool g_isListEditing = false;
constinit int32_t g_menuButtonCount = 0;

/// A class that the running system lacks has no views.
UIView firstSubview(UIView view, Class cls) {
    for (const UIView subview : view.subviews()) {
        if (cls && subview.isKindOfClass(cls)) {
            return subview;
        }
    }
    return nullptr;
}

CGFloat byte(int component) { return static_cast<CGFloat>(component) / 255; }

/// In the first slot, and not shown yet.
UIButton makeButton(NSString title, UIColor background, SEL action, MenuTag tag, CGFloat height) {
    const UIButton button = UIButton::custom();
    button.setFrame(menuSlot(0, height));
    button.setTitle(title, kNormalState);
    button.titleLabel().setFont(UIFont::systemFontOfSize(14));
    button.setBackgroundColor(background);
    button.addTarget(objc::asObject("ZQSystemCallHistoryViewHook"_cls), action, kTouchUpInside);
    button.setTag(tag);
    return button;
}

/// Text messages come from addresses, which nobody marks.
bool isUsable(NSString number) { return number.length() != 0 && !number.contains("@"_ns); }

/// The offered buttons from the left; returns how many slots they and the delete button take.
int32_t addButtons(UIView confirmation, OfferedActions offered, CGFloat height) {
    const UIButton correct =
        makeButton("纠错"_ns, UIColor::withRGB(byte(210), byte(210), byte(210), 1),
                   "correctButtonPressed"_sel, kMenuCorrectTag, height);
    const UIButton mark = makeButton("标记"_ns, UIColor::withRGB(1, byte(161), 0, 1),
                                     "markButtonPressed"_sel, kMenuMarkTag, height);
    int32_t slots = 0;
    if (offered.correct) {
        confirmation.addSubview(correct);
        ++slots;
    }
    if (offered.mark) {
        mark.setFrame(menuSlot(slots++, height));
        confirmation.addSubview(mark);
    }
    return slots + 1;
}

/// Asks what the row's call allows and adds the buttons; returns the slots of the whole menu.
int32_t addOfferedButtons(PHRecentsCell cell, RecentCall call, UIView confirmation) {
    const NSString number = call.number();
    const auto identity = identityOf(number);  // leaves the pure number in the lookup context
    const OfferedActions offered = offeredActions(phonePureNumber(), identity);
    const CGFloat height = cell.frame().size.height - CGFloat(0.5);
    const bool hasButtons = !call.isOfContact() && isUsable(number);
    return hasButtons ? addButtons(confirmation, offered, height) : 1;
}

void removeButtons(UIView confirmation) {
    for (const MenuTag tag : {kMenuCorrectTag, kMenuMarkTag}) {
        confirmation.viewWithTag(tag).removeFromSuperview();
    }
}

/// The delete button goes to the last slot, its label as large as the others.
void placeDeleteButton(UIView button, int32_t slots) {
    CGRect frame = button.frame();
    frame.origin.x = menuWidth(slots - 1);
    frame.size.width = kSlotWidth;
    button.setFrame(frame);
    for (const UIView subview : button.subviews()) {
        if (subview.isKindOfClass(UILabel::classObject())) {
            subview.as<UILabel>().setFont(UIFont::systemFontOfSize(14));
        }
    }
}

bool isAdjusted(UIView confirmation, UIView deleteButton) {
    return confirmation.viewWithTag(kMenuCorrectTag) || confirmation.viewWithTag(kMenuMarkTag) ||
           (deleteButton && deleteButton.frame().size.width == kSlotWidth);
}

/// Whether the companion was asked already since the menu opened. UIKit may reset what the add-on
/// adjusted at every step of the finger, but what the number allows stays the same.
bool wasAskedFor(PHRecentsCell cell, RecentCall call, UIView confirmation) {
    const Opening opening{cell, call, confirmation};
    if (g_opening == opening && confirmation.tag() == kAskedTag) {
        return true;
    }
    g_opening = opening;
    confirmation.setTag(kAskedTag);
    return false;
}

}  // namespace

bool isListEditing() { return g_isListEditing; }

void setTableStatus(NSObject isEditing) { g_isListEditing = boolOf(isEditing); }

void addButtonMenu(PHRecentsCell cell) {
    if (g_isListEditing) {
        return;
    }
    const UIView scrollView = firstSubview(cell, "UITableViewCellScrollView"_cls);
    const UIView confirmation =
        firstSubview(scrollView, "UITableViewCellDeleteConfirmationView"_cls);
    if (!confirmation) {
        menuIsShut(cell);
        return;
    }
    const UIView deleteButton =
        firstSubview(confirmation, "UITableViewCellDeleteConfirmationButton"_cls);
    if (isAdjusted(confirmation, deleteButton)) {
        return;
    }
    const auto call = objc::Owned<RecentCall>::share(RecentCall(cell.call()));
    if (!wasAskedFor(cell, call, confirmation)) {
        // The system's button alone, until more are there.
        g_menuButtonCount = 1;
        const bool isDone = objc::silently(
            [&] { g_menuButtonCount = addOfferedButtons(cell, call, confirmation); });
        if (!isDone) {
            removeButtons(confirmation);
        }
    }
    CGRect frame = confirmation.frame();
    frame.size.width = menuWidth(g_menuButtonCount);
    confirmation.setFrame(frame);
    if (deleteButton) {
        placeDeleteButton(deleteButton, g_menuButtonCount);
    }
}

void menuIsShut(PHRecentsCell cell) {
    if (g_opening.cell == cell.get()) {
        g_opening = {};
    }
}

void rememberCall(PHRecentsCell cell) {
    const auto call = objc::Owned<RecentCall>::share(RecentCall(cell.call()));
    setPhonePureNumber(ZQPhoneNumber::pureNumberOf(call->number()));
    setCurrentRecordDate(call->date());
}

Settling settleSwipe(UIScrollView scrollView) {
    return settle(scrollView.contentOffset(), g_menuButtonCount);
}

}  // namespace recents
