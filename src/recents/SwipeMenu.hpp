// The swipe menu of a recents row: correct and mark beside the Phone application's delete button,
// and what is remembered between the touches of a swipe. Main thread only.
#pragma once

#include "platform/PhoneApp.hpp"
#include "recents/Geometry.hpp"

namespace recents {

/// While the whole list is being edited, rows have no menu and swipes are the Phone application's.
bool isListEditing();
/// +setTableStatus: an NSNumber.
void setTableStatus(NSObject isEditing);

/// Puts the buttons into the open delete confirmation of `cell`, once for each time it opens;
/// nothing happens where there is none.
void addButtonMenu(PHRecentsCell cell);

/// The row's menu is shut: when it opens again, it is asked for anew.
void menuIsShut(PHRecentsCell cell);

/// Takes note of the call whose row is swiped, for the menu's buttons.
void rememberCall(PHRecentsCell cell);

/// Where a swipe that is released at the scroll view's offset comes to rest.
Settling settleSwipe(UIScrollView scrollView);

}  // namespace recents
