// Somebody else's call details.
#import "Contacts.h"

@interface Labelled : NSObject {
  @public
    NSString *number;
}
@end

@implementation Labelled
- (void)dealloc {
    [number release];
    [super dealloc];
}
- (id)value {
    return self;
}
- (NSString *)formattedStringValue {
    return number;
}
@end

@implementation Contact
- (void)dealloc {
    [numbers release];
    [super dealloc];
}
- (int)recordID {
    return record;
}
- (NSArray *)phoneNumbers {
    return numbers;
}
@end

Contact *contactWith(NSString *number, int record) {
    Contact *contact = [[[Contact alloc] init] autorelease];
    Labelled *entry = [[[Labelled alloc] init] autorelease];
    entry->number = [number copy];
    contact->record = record;
    contact->numbers = [[NSArray alloc] initWithObjects:entry, @"another", nil];
    return contact;
}

@implementation ABContactHeaderView
- (BOOL)isEditing {
    return isEdited;
}
- (void)layoutSubviews {
    ++layouts;
}
- (void)layoutSublayersOfLayer:(id)layer {
    layersLaidOut += layer == [self layer];
}
@end

@implementation PlainHeader
- (void)dealloc {
    [_contact release];
    [super dealloc];
}
@end

@implementation ContactHeader
- (id)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _taglineLabel = [[UILabel alloc] init];
    _personHeaderView = [[UIView alloc] initWithFrame:CGRect{{5, 6}, {310, 60}}];
    _nameLabel = [[UILabel alloc] initWithFrame:CGRect{{7, 8}, {200, 30}}];
    return self;
}
- (void)dealloc {
    [_taglineLabel release];
    [_personHeaderView release];
    [_nameLabel release];
    [super dealloc];
}
@end

@interface ContactView : NSObject {
  @public
    id contact;
}
@end

@implementation ContactView
- (id)contact {
    return contact;
}
@end

@implementation ABContactViewController
- (id)init {
    self = [super init];
    own = [[UIView alloc] init];
    return self;
}
- (void)dealloc {
    [shown release];
    [own release];
    [super dealloc];
}
- (void)show:(id)contact {
    shown = [contact retain];
}
- (id)contactView {
    ContactView *view = [[[ContactView alloc] init] autorelease];
    view->contact = shown;
    return view;
}
- (CGFloat)tableView:(UITableView *)table heightForHeaderInSection:(NSInteger)section {
    return 33;
}
- (UIView *)tableView:(UITableView *)table viewForHeaderInSection:(NSInteger)section {
    return own;
}
@end

@implementation ContactController
- (void)show:(id)contact {
    [super show:contact];
    _contact = contact;
}
@end

void layOut(ABContactHeaderView *header) {
    if (isNewer()) {
        [hook() addNumberInfoToHeaderView:header withContact:nil];
        return;
    }
    int before = header->layouts;
    check(isQuiet([&] { [header layoutSubviews]; }), "laying the header out is quiet");
    check(header->layouts == before + 1, "the header lays itself out once");
}

ContactHeader *laidOut(NSString *tagline) {
    ContactHeader *header = headerOf<ContactHeader>(contactWith(kNumber));
    [header->_taglineLabel setText:tagline];
    layOut(header);
    return header;
}

UILabel *label(UIView *header, NSInteger tag) { return (UILabel *)[header viewWithTag:tag]; }

UIButton *button(UIView *header, NSUInteger index) {
    NSUInteger first = [[header subviews] indexOfObject:[header viewWithTag:1006]] + 1;
    UIButton *found = [[header subviews] objectAtIndex:first + index];
    check([found isKindOfClass:NSClassFromString(@"ZQGroupButton")] && [found tag] == 0,
          "a button");
    return found;
}

ZQNumberIdentity *brandOf(NSString *name) {
    ZQNumberIdentity *brand = identity(6, @"推销", 37);
    [brand setBrandInfo:[NSDictionary dictionaryWithObjectsAndKeys:name,
                                                                   @"kZQBrandServiceBrandNameKey",
                                                                   @"别的", @"name", nil]];
    return brand;
}
