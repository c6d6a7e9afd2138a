// Somebody else's call details: the contact made for the call, the header and its controller.
#pragma once

#import "Rows.h"

/// As the address book keeps it; one made for a call has no record.
@interface CNContact : UIObject {
  @public
    int recordID;
    NSArray *phoneNumbers;
    NSString *number;
}
@end

CNContact *contactWith(NSString *number, int record = -1);

@interface ABContactHeaderView : UIView {
  @public
    id _contact;
    UILabel *_taglineLabel, *_nameLabel;
    UIView *_personHeaderView;
    BOOL isEditing;
    BOOL placesParts;        // in each of its layouts
    NSString *laterTagline;  // which its second layout writes
    int failsAt;             // its layout of that number
}
@end

ABContactHeaderView *headerOf(id contact);

@interface ABContactViewController : UIObject {
  @public
    id _contact, contactView;
    UIView *own;
}
- (CGFloat)tableView:(UITableView *)table heightForHeaderInSection:(NSInteger)section;
- (UIView *)tableView:(UITableView *)table viewForHeaderInSection:(NSInteger)section;
@end

/// The controller of a contact that its view and itself show.
ABContactViewController *controllerOf(id contact);

inline CGFloat margin() { return isNewer() ? 15 : 35; }

/// One pass over a header; since 8.0 nothing asks for it but ourselves.
void layOut(ABContactHeaderView *header, Place place = Place::current());
/// A whole header of the current number after its first pass.
ABContactHeaderView *laidOut(NSString *tagline = nil, Place place = Place::current());

/// The header's buttons, as they lie in it.
enum { kSearch, kMark, kCorrect };
UIButton *button(UIView *header, NSUInteger index);
/// What the buttons that are seen say.
NSString *titles(UIView *header);
