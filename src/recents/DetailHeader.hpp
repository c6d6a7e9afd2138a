// The header of a call's details, for numbers of strangers: what is known of the number, and the
// buttons that act on it. The number is the lookup context's. Main thread only.
#pragma once

#include "platform/PhoneApp.hpp"

namespace recents {

/// Whether the controller shows a stranger, in the section that has the header.
bool hasHeader(ABContactViewController controller, NSInteger section);

/// Takes the number of the contact that the controller holds for the header's.
void updatePhoneNumber(ABContactViewController controller);
/// The contact's first number, if it has any, becomes the header's.
void updatePhoneNumberFromContact(ABContact contact);

/// In points.
CGFloat headerViewHeight();
/// A clear view of that height, which the header shows through.
UIView makeHeaderSpacer();

/// After the Phone application's own layout: adds the header's views in the first pass and brings
/// them up to date in each. Other headers than strangers' stay as they are. Passes may run within
/// each other; the outermost one of a header has its layers laid out, too.
void layOutHeader(ABContactHeaderView header, bool isOutermostPass);
/// Adds the views to any header and brings them up to date, or leaves the header as the Phone
/// application made it; the contact is not read.
void addNumberInfo(ABContactHeaderView header, ABContact contact);

}  // namespace recents
