// What the call details say of a number: which kind of identity it has, and the texts made of it.
// Pure rules; a nil identity has no kind.
#pragma once

#include "companion/Interface.hpp"

namespace recents {

/// What the web says of the number rather than its users.
bool isSearchResult(ZQNumberIdentity identity);
/// Marked by a number of users worth showing: neither none nor one, and no partner's id.
bool isCloudMark(ZQNumberIdentity identity);
/// A business. The in-call screen draws this line elsewhere: here cloud data that has no source at
/// all counts as a business, while an empty source does not.
bool isBrand(ZQNumberIdentity identity);

/// The detail header's line; empty for nil, and when nothing is known. Of a number that has no
/// identity it is the region.
objc::Owned<NSString> detailLine(NSString number, ZQNumberIdentity identity);

/// The main text under "numberinfo", beside it what the user's or other users' marks add, under
/// "zqrinfo". Without a main text there is neither.
NSDictionary twoPartDescription(NSString number, ZQNumberIdentity identity);

/// Both texts with a blank between them, or the one that is not empty; nil when both are.
NSString merged(NSString description, NSString diagnosis);

/// A text of two parts in two tones, its first part shortened when it is long; empty for a text of
/// one part or nil. Counted in UTF-16 units.
objc::Owned<NSMutableAttributedString> twoToned(NSString text);

}  // namespace recents
