// Somebody else's call details: the contact made for the call, the header and its controller.
#pragma once

#import "Calls.h"

/// As the address book keeps it; one made for a call has no record.
@interface Contact : NSObject {
  @public
    int record;
    NSArray *numbers;
}
- (int)recordID;
- (NSArray *)phoneNumbers;
@end

Contact *contactWith(NSString *number, int record = -1);

/// A header without parts, one that has its contact, and a whole one.
@interface ABContactHeaderView : UIView {
  @public
    int layouts, layersLaidOut;
    BOOL isEdited;
}
@end

@interface PlainHeader : ABContactHeaderView {
  @public
    id _contact;
}
@end

@interface ContactHeader : PlainHeader {
  @public
    UILabel *_taglineLabel;
    UIView *_personHeaderView;
    UILabel *_nameLabel;
}
@end

template <typename Header>
Header *headerOf(id contact) {
    Header *header = [[[Header alloc] initWithFrame:CGRect{{0, 0}, {320, 71}}] autorelease];
    header->_contact = [contact retain];
    return header;
}

/// A controller without its contact, and one that has it.
@interface ABContactViewController : NSObject {
  @public
    id shown;
    UIView *own;
}
- (void)show:(id)contact;
- (CGFloat)tableView:(UITableView *)table heightForHeaderInSection:(NSInteger)section;
- (UIView *)tableView:(UITableView *)table viewForHeaderInSection:(NSInteger)section;
@end

@interface ContactController : ABContactViewController {
    id _contact;
}
@end

/// The controller of a contact that its view and itself show.
template <typename Controller>
Controller *controllerOf(id contact) {
    Controller *controller = [[[Controller alloc] init] autorelease];
    [controller show:contact];
    return controller;
}

inline CGFloat margin() { return isNewer() ? 15 : 35; }

/// One pass over a header; since 8.0 nothing asks for it but ourselves.
void layOut(ABContactHeaderView *header);
/// A whole header of the number after its first pass.
ContactHeader *laidOut(NSString *tagline = nil);
UILabel *label(UIView *header, NSInteger tag);
/// The header's buttons, as they lie in it.
enum { kSearch, kMark, kCorrect };
UIButton *button(UIView *header, NSUInteger index);

/// A brand whose name stands under the key's own name; under the companion's key stands another.
ZQNumberIdentity *brandOf(NSString *name);

/// The checks of a header's contents; Details.mm holds those of what is around it.
void checkHeaders();
void checkButtons();
void checkLaterPasses();
