// Somebody else's rows that are swiped, and where their swipes end.
#pragma once

#import "Calls.h"

/// A row whose swipe reveals the button that deletes it.
@interface SwipedRow : PHRecentsCell {
  @public
    UIScrollView *scroll;
    UIView *menu, *remove;
    UILabel *title, *subtitle;
}
@end

SwipedRow *rowOf(RecentCall *call);
void slide(SwipedRow *row, CGFloat x);
/// As the Phone application made it.
bool isUntouched(SwipedRow *row);

/// Where a swipe ends that is released at an offset, and the inset that holds it there.
struct End {
    CGPoint target;
    CGFloat inset;
};

End release(CGFloat x);
bool isShut(End end);
bool isHeld(End end, CGFloat x, CGFloat width);
/// As it would end without the add-on.
bool isLeft(End end);

/// The checks of the list's edit mode and of the three actions; Swipe.mm holds those of the menu.
void checkEditing();
void checkLinks();
