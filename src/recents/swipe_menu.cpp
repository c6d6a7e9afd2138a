// The swipe menu of a recents row.
#include "recents/swipe_menu.hpp"

#include "identity/companion.hpp"
#include "recents/actions.hpp"
#include "recents/lookup.hpp"
#include "recents/lookup_context.hpp"

namespace recents {
namespace {

enum Tag : NSInteger { kCorrectTag = 1012, kMarkTag = 1013 };

constinit bool g_isListEditing = false;
constinit int32_t g_menuButtonCount = 0;

/// Goes through the subviews as long as `visit` answers true.
template <class Visit>
void whileVisiting(UIView view, Visit visit) {
    const NSArray subviews = view.subviews();
    const NSUInteger count = subviews.count();
    for (NSUInteger i = 0; i < count && visit(subviews.objectAtIndex(i).as<UIView>()); ++i) {
    }
}

/// A class that the running system lacks has no views.
UIView firstSubview(UIView view, Class cls) {
    UIView found;
    whileVisiting(view, [&](UIView subview) {
        if (cls && subview.isKindOfClass(cls)) {
            found = subview;
        }
        return !found;
    });
    return found;
}

CGFloat byte(int component) { return static_cast<CGFloat>(component) / 255; }

/// In the first slot, and not shown yet.
UIButton makeButton(NSString title, UIColor background, SEL action, Tag tag, CGFloat height) {
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

/// The offered buttons from the left; answers how many slots they and the delete button take.
int32_t addButtons(UIView confirmation, OfferedActions offered, CGFloat height) {
    const UIButton correct =
        makeButton("纠错"_ns, UIColor::withRGB(byte(210), byte(210), byte(210), 1),
                   "correctButtonPressed"_sel, kCorrectTag, height);
    const UIButton mark = makeButton("标记"_ns, UIColor::withRGB(1, byte(161), 0, 1),
                                     "markButtonPressed"_sel, kMarkTag, height);
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

/// The delete button goes to the last slot, its label as large as the others.
void placeDeleteButton(UIView button, int32_t slots) {
    CGRect frame = button.frame();
    frame.origin.x = menuWidth(slots - 1);
    frame.size.width = kSlotWidth;
    button.setFrame(frame);
    whileVisiting(button, [](UIView subview) {
        if (subview.isKindOfClass(UILabel::classObject())) {
            subview.as<UILabel>().setFont(UIFont::systemFontOfSize(14));
        }
        return true;
    });
}

bool isAdjusted(UIView confirmation, UIView deleteButton) {
    return confirmation.viewWithTag(kCorrectTag) || confirmation.viewWithTag(kMarkTag) ||
           (deleteButton && deleteButton.frame().size.width == kSlotWidth);
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
    const UIView deleteButton =
        firstSubview(confirmation, "UITableViewCellDeleteConfirmationButton"_cls);
    if (!confirmation || isAdjusted(confirmation, deleteButton)) {
        return;
    }
    const RecentCall call(cell.call());
    const NSString number = call.number();
    const OfferedActions offered = offeredActions(identityOf(number));
    const CGFloat height = cell.frame().size.height - CGFloat(0.5);
    const bool hasButtons = !call.isOfContact() && isUsable(number);
    g_menuButtonCount = hasButtons ? addButtons(confirmation, offered, height) : 1;

    CGRect frame = confirmation.frame();
    frame.size.width = menuWidth(g_menuButtonCount);
    confirmation.setFrame(frame);
    if (deleteButton) {
        placeDeleteButton(deleteButton, g_menuButtonCount);
    }
}

void rememberCall(PHRecentsCell cell) {
    const RecentCall call(cell.call());
    const auto parsed = ZQPhoneNumber::parsed(call.number());
    setPhonePureNumber(parsed->pureNumber());
    setCurrentRecordDate(call.date());
}

Settling settleSwipe(UIScrollView scrollView) {
    return settle(scrollView.contentOffset(), g_menuButtonCount);
}

}  // namespace recents
