// Somebody else's call details.
#import "Contacts.h"

// Each of its numbers is an entry that gives its value, and so is the contact.
@implementation CNContact
- (int)recordID { return recordID; }
- (NSArray *)phoneNumbers { return phoneNumbers; }
- (id)value { return self; }
- (NSString *)formattedStringValue { return number; }
@end

CNContact *contactWith(NSString *number, int record) {
    CNContact *contact = [[[CNContact alloc] init] autorelease];
    CNContact *entry = [[[CNContact alloc] init] autorelease];
    entry->number = number ? [entry own:[number mutableCopy]] : nil;
    contact->recordID = record;
    contact->phoneNumbers = [contact own:[list({entry, @"another"}) retain]];
    return contact;
}

static const CGRect kPerson = {{5, 6}, {310, 60}}, kName = {{7, 8}, {200, 30}};

@implementation ABContactHeaderView
- (BOOL)isEditing { return isEditing; }
- (id)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _taglineLabel = [self own:[[UILabel alloc] init]];
    _personHeaderView = [self own:[[UIView alloc] initWithFrame:kPerson]];
    _nameLabel = [self own:[[UILabel alloc] initWithFrame:kName]];
    for (UIView *part : {(UIView *)_taglineLabel, _personHeaderView, (UIView *)_nameLabel}) {
        [self addSubview:part];
    }
    return self;
}
- (void)fillIn {
    if (layouts == failsAt) {
        fail();
    }
    if (layouts == 2 && laterTagline) {
        [_taglineLabel setText:laterTagline];
    }
    if (placesParts) {
        [_personHeaderView setFrame:kPerson];
        [_nameLabel setFrame:kName];
    }
}
@end

ABContactHeaderView *headerOf(id contact) {
    CGRect frame = {{0, 0}, {320, 71}};
    ABContactHeaderView *header = [[[ABContactHeaderView alloc] initWithFrame:frame] autorelease];
    header->_contact = contact ? [header own:[contact retain]] : nil;
    return header;
}

// Whatever is shown stands for the view that shows it.
@implementation NSObject (ContactView)
- (id)contact { return self; }
@end

@implementation ABContactViewController
- (id)contactView { return contactView; }
- (CGFloat)tableView:(UITableView *)table heightForHeaderInSection:(NSInteger)section { return 33; }
- (UIView *)tableView:(UITableView *)table viewForHeaderInSection:(NSInteger)section { return own; }
@end

ABContactViewController *controllerOf(id contact) {
    ABContactViewController *controller = [[[ABContactViewController alloc] init] autorelease];
    controller->_contact = contact ? [controller own:[contact retain]] : nil;
    controller->contactView = controller->_contact;
    controller->own = [controller own:[[UIView alloc] init]];
    return controller;
}

void layOut(ABContactHeaderView *header, Place place) {
    if (isNewer()) {
        [hook() addNumberInfoToHeaderView:header withContact:nil];
    } else {
        expectQuiet([&] { [header layoutSubviews]; }, place);
    }
}

ABContactHeaderView *laidOut(NSString *tagline, Place place) {
    ABContactHeaderView *header = headerOf(contactWith(kNumber));
    [header->_taglineLabel setText:tagline];
    layOut(header, place);
    return header;
}

static NSArray *buttonsOf(UIView *header) {
    NSMutableArray *buttons = [NSMutableArray array];
    for (UIView *view : each<UIView>([header subviews])) {
        if ([view isKindOfClass:NSClassFromString(@"ZQGroupButton")]) {
            [buttons addObject:view];
        }
    }
    return buttons;
}

UIButton *button(UIView *header, NSUInteger index) {
    NSArray *buttons = buttonsOf(header);
    return index < [buttons count] ? [buttons objectAtIndex:index] : nil;
}

NSString *titles(UIView *header) {
    NSString *all = @"";
    for (UIButton *button : each<UIButton>(buttonsOf(header))) {
        if (isShown(button)) {
            all = [[button get:@"title" forState:0] stringByAppendingString:all];
        }
    }
    return all;
}
