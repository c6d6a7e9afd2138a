// The row of buttons that the add-on puts into the header of somebody else's call details.
#import "Contacts.h"

static void checkTitle(UIButton *found, NSString *title, NSString *icon) {
    CGSize size = [found frame].size;
    NSArray *icons = [found subviews];
    UIImageView *picture = [icons count] ? [icons objectAtIndex:0] : nil;
    NSString *file = @"/resources/btn_icon_%@_in_systemCallHistoryDetailsView.png";
    NSString *path = icon ? [NSString stringWithFormat:file, icon] : nil;
    check([icons count] == 1 && isClear(picture) &&
              isText([picture image] ? [picture image]->path : nil, path),
          "its icon");
    // Two characters of 13 points, the icon and 6 points between them, in the middle.
    check(stands(picture, size.width / 2 - 23, (size.height - 14) / 2, 14, 14), "before its title");
    check(isText([found titleForState:0], title) && [[[found titleLabel] font] pointSize] == 13 &&
              isColor([found titleColorForState:0], 145, 145, 145) &&
              isColor([found titleColorForState:1], 145, 145, 145),
          "its title");
    check(found->insets.left == 20 && !found->insets.top && !found->insets.bottom &&
              !found->insets.right,
          "which makes room");
}

// By the place in the row; a button that is not in it has none.
static void checkBackground(UIButton *found, int place) {
    static NSString *const kParts[] = {@"", @"left_", @"middle_", @"right_"};
    static const UIEdgeInsets kCaps[] = {{4, 4, 4, 4}, {4, 5, 4, 0}, {0, 0, 0, 0}, {4, 0, 4, 5}};
    for (NSUInteger state : {0, 1}) {
        UIImage *image = [found backgroundImageForState:state];
        if (place < 0) {
            check(!image, "no background");
            continue;
        }
        NSString *path = [NSString stringWithFormat:@"/resources/btn_%@%@in_%@", kParts[place],
                                                    state ? @"pressed_" : @"",
                                                    @"systemCallHistoryDetailsView.png"];
        check(image && [image->path isEqual:path], "the background");
        const UIEdgeInsets caps = image ? image->caps : UIEdgeInsets{}, &expected = kCaps[place];
        check(caps.top == expected.top && caps.left == expected.left &&
                  caps.bottom == expected.bottom && caps.right == expected.right,
              "its caps");
    }
}

void checkButtons() {
    const struct {
        NSString *name;
        ZQNumberIdentity *identity;
        int history;  // an action type, or 0 for no call
        bool correct, mark;
    } kCases[] = {
        {@"nobody", nil, 0, false, false},
        {@"nobody's outgoing calls", nil, 1, false, false},
        {@"nobody's other calls", nil, 2, false, true},
        {@"a call of type -1", nil, -1, false, true},
        {@"region", identity(1, @"推销"), 2, false, false},
        {@"own mark", identity(3, @"推销"), 2, false, true},
        {@"abroad", identity(4, @"推销", 37), 2, false, true},
        {@"search", identity(12, @"推销", 37, @"", 1), 2, true, false},
        {@"stored search", identity(10, @"推销", 0, @"$$"), 2, true, false},
        {@"one mark", identity(7, @"推销", 1), 2, true, false},
        {@"marks", identity(8, @"推销", 5000), 2, true, true},
        {@"marks, no call", identity(8, @"推销", -3), 0, true, false},
        {@"too many marks", identity(8, @"推销", 5001), 2, false, true},
        {@"other data", identity(12, @"推销", 37, @"", 2), 1, true, false},
        {@"brand", brandOf(@"某店"), 2, true, true},
        {@"no source", identity(9, @"推销"), 2, true, true},
        {@"empty source", identity(9, @"推销", 0, @""), 2, false, true},
        {@"partner", identity(9, @"推销", 1, @"A$$B"), 2, true, true},
        {@"review", identity(9, @"推销", 37, @"A##4.5"), 2, false, true},
    };
    CGFloat left = margin();
    for (const auto &each : kCases) {
        Case name(each.name);
        [Stage reset];
        if (each.identity) {
            [Stage know:each.identity of:kPure];
        }
        if (each.history) {
            [Stage record:list({number(1), number(1), number(each.history)}) of:kPure];
        }
        NSNumber *correct = nil, *mark = nil;
        [hook() showCorrectButton:&correct showMarkButton:&mark withNumberIdentity:each.identity];
        check(
            correct && mark && [correct boolValue] == each.correct && [mark boolValue] == each.mark,
            "what is offered");
        ContactHeader *header = laidOut();
        int offered = each.correct + each.mark;
        CGFloat width = offered == 2   ? (isNewer() ? 97 : 90)
                        : offered == 1 ? (isNewer() ? 145 : 135)
                                       : (isNewer() ? 292 : 272);
        struct {
            bool isShown;
            int place;  // in the row, and so the background's
            NSString *title, *icon;
        } kButtons[] = {{true, offered ? 3 : 0, @"搜索", @"search"},
                        {each.mark, each.correct ? 2 : 1, @"标记", @"tag"},
                        {each.correct, 1, @"纠错", @"modify"}};
        for (NSUInteger i : {kSearch, kMark, kCorrect}) {
            const auto &expected = kButtons[i];
            Case title(expected.title);
            UIButton *found = button(header, i);
            checkTitle(found, expected.title, expected.isShown ? expected.icon : nil);
            check([found isHidden] != expected.isShown, "its visibility");
            int slot = i == kSearch ? offered : expected.place - 1;
            CGFloat x = left + slot * (width + 1);
            CGFloat y = [each.identity type] == 4 ? 132 : 112;
            check(!expected.isShown || stands(found, x, y, width, 44), "its place");
            checkBackground(found, expected.isShown ? expected.place : -1);
        }
    }
}

// Buttons are met on the first pass alone; labels on every one.
void checkLaterPasses() {
    [hook() setPhonePureNumber:kPure];
    [Stage know:identity(4, @"推销") of:kPure];
    ContactHeader *header = laidOut();
    NSUInteger count = [[header subviews] count];
    [Stage know:identity(7, @"推销", 37) of:kPure];
    [Stage record:list({number(2)}) of:kPure];
    [header->_taglineLabel setHidden:NO];
    [header->_nameLabel setFrame:CGRect{{9, 10}, {100, 20}}];
    layOut(header);
    check([[header subviews] count] == count, "nothing is added twice");
    check(isText([label(header, 1001) text], @"推销 | 37位用户标记"), "the description follows");
    check(stands(header->_personHeaderView, 5, 167, 310, 60), "and so does the person");
    check([header->_taglineLabel isHidden] && stands(header->_nameLabel, 9, 53, 100, 20),
          "tagline and name as before");
    check(![label(header, 1006) isHidden], "a warning stays");
    UIButton *search = button(header, kSearch);
    check([button(header, kCorrect) isHidden] && [button(header, kMark) isHidden] &&
              stands(search, margin(), 132, isNewer() ? 292 : 272, 44) &&
              [[search subviews] count] == 1,
          "the buttons stay as they were");

    // They are looked for, in vain, by tags that they were not given.
    UIButton *mark = button(header, kMark), *correct = button(header, kCorrect);
    [search setTag:1009];
    [mark setTag:1008];
    [correct setTag:1007];
    layOut(header);
    CGFloat left = margin(), width = isNewer() ? 97 : 90;
    check(stands(correct, left, 112, width, 44) && ![correct isHidden] &&
              stands(mark, left + width + 1, 112, width, 44) && ![mark isHidden] &&
              stands(search, left + 2 * width + 2, 112, width, 44),
          "buttons with tags are met again");
    check([[correct subviews] count] == 2, "and get another icon");

    [hook() setPhonePureNumber:@""];
    layOut(header);
    check(isText([label(header, 1001) text], @"推销 | 37位用户标记"), "no number changes nothing");

    [Stage know:identity(4, @"推销") of:kPure];
    [hook() setPhonePureNumber:kPure];
    [label(header, 1006) setHidden:YES];
    layOut(header);
    check(isShown(label(header, 1006)) && stands(header->_personHeaderView, 5, 187, 310, 60),
          "a warning comes later too");

    [hook() setPhonePureNumber:@"8602000000001"];
    [search press];
    check([[Stage opened] rangeOfString:@"&keyword=02000000001&"].length > 0,
          "a button is pressed");
}
