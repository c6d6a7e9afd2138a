// What the add-on adds to the header of somebody else's call details.
#import "Contacts.h"

static void checkNobody() {
    [hook() setPhonePureNumber:nil];
    [Stage let:@"getAppResourceDir" answer:@"/gone"];
    check(![hook() getRecordIcon], "a logo that is not there");
    [Stage reset];
    UIImage *logo = [hook() getRecordIcon];
    check([logo->path isEqual:@"/resources/icon_zqrLogo_in_systemCallHistoryDetailsView.png"],
          "is looked for again");
    [Stage let:@"getAppResourceDir" answer:@"/gone"];
    check([hook() getRecordIcon] == logo, "and then kept");
    [Stage reset];

    ContactHeader *header = laidOut();
    CGFloat left = margin();
    UIImageView *picture = (UIImageView *)[header viewWithTag:1002];
    check(stands(picture, left, 22, 14, 14) && [picture image] == logo, "the logo");
    UILabel *product = label(header, 1004);
    check(stands(product, left + 17, 22, 200, 13) && [[product text] isEqual:@"Zequor"],
          "the product");
    check(isColor([product textColor], 180, 180, 180) && [[product font] pointSize] == 13,
          "its look");
    check(![picture isHidden] && ![product isHidden] && isClear(picture) && isClear(product),
          "both are to be seen, and clear");
    for (NSInteger tag : {1001, 1005, 1006}) {
        check(label(header, tag) && [label(header, tag) isHidden], "a label is hidden");
        check([[label(header, tag) font] pointSize] == 13 && isClear(label(header, tag)),
              "its look");
    }
    check(isColor([label(header, 1001) textColor], 0, 0, 0), "the description is black");
    check(isColor([label(header, 1005) textColor], 145, 145, 145) &&
              isColor([label(header, 1006) textColor], 145, 145, 145),
          "the others are grey");
    check([[label(header, 1006) text] isEqual:@"若非国外亲友，请警惕诈骗"], "the warning's words");
    const char *actions[] = {"searchNumBtnPressed", "markButtonPressed", "correctButtonPressed"};
    for (NSUInteger i : {kSearch, kMark, kCorrect}) {
        UIButton *each = button(header, i);
        check([each isHidden] && stands(each, left, 100, i == kSearch ? 280 : 140, 30),
              "a button waits");
        check(each->target == hook() && each->events == 1 << 6 &&
                  sel_isEqual(each->action, sel_getUid(actions[i])),
              "with its action");
    }
    check([header->_taglineLabel isHidden] && stands(header->_nameLabel, 7, 53, 200, 30) &&
              stands(header->_personHeaderView, 5, 6, 310, 60),
          "tagline, name and person");
    check([Stage timesAsked:@"getIdentityOfRecord:"] == 0, "nobody is looked up");
}

// Heights and places before 8.0 and since.
struct Places {
    CGFloat oldHeight, newHeight, oldPersonY, newPersonY, rowY;
};
static const Places kNothing = {58, 66.5, 154, 154, 95};
static const Places kLine = {71, 79.5, 167, 167, 112};
static const Places kTagged = {71, 79.5, 187, 167, 112};
static const Places kAbroad = {91, 99.5, 187, 187, 132};

struct HeaderCase {
    NSString *name;
    ZQNumberIdentity *identity;
    NSString *region, *tagline, *text;
    bool isAttributed;
    Places places;
};

static void checkHeader(const HeaderCase &each) {
    Case name(each.name);
    [Stage reset];
    [Stage let:@"descriptionOfNumber:" answer:each.region];
    if (each.identity) {
        [Stage know:each.identity of:kPure];
    }
    [hook() setPhonePureNumber:kPure];
    const Places &at = each.places;
    check([hook() getHeaderViewHeight] == (isNewer() ? at.newHeight : at.oldHeight), "the height");
    ContactHeader *header = laidOut(each.tagline);
    UILabel *description = label(header, 1001);
    NSString *text = isNewer() && each.tagline && !each.isAttributed ? each.region : each.text;
    check(isText([description text], text) && ![description isHidden], "the description");
    check(stands(description, margin(), 85, 320 - margin() - 13, 13), "its place");
    NSAttributedString *toned = [description attributedText];
    check((toned != nil) == each.isAttributed, "its tones");
    if (toned) {
        NSUInteger bar = [text rangeOfString:@"|"].location;
        NSRange run = {0, 0};
        auto color = [&](NSUInteger at) {
            return (UIColor *)[toned attribute:@"NSColor" atIndex:at effectiveRange:&run];
        };
        check(bar == 0 || (isColor(color(0), 0, 0, 0) && NSMaxRange(run) == bar),
              "black to the bar");
        check(isColor(color(bar), 145, 145, 145) && NSMaxRange(run) == [text length], "then grey");
    }
    bool isForeign = [each.identity type] == 4;
    check([label(header, 1006) isHidden] != isForeign &&
              (!isForeign || stands(label(header, 1006), margin(), 105, 320 - margin() - 13, 13)),
          "the warning");
    check([label(header, 1005) isHidden], "the spare label is hidden");
    CGFloat personY = isNewer() ? at.newPersonY : at.oldPersonY;
    check(stands(header->_personHeaderView, 5, personY, 310, 60), "the person's place");
    check([button(header, kSearch) frame].origin.y == at.rowY, "the row's place");
    check(isNewer() || header->layersLaidOut == 1, "the layer is laid out");
}

static NSString *joined(NSString *left, NSString *right) {
    return [left stringByAppendingString:right];
}

static NSString *many(NSUInteger count) {
    return [@"" stringByPaddingToLength:count withString:@"一" startingAtIndex:0];
}

static NSString *cut(NSUInteger count, NSString *end) {
    return joined(many(count), joined(end, @"| 99位用户标记"));
}

static void checkTexts() {
    NSString *place = @"广东广州", *word = @"手机", *mark = @"推销 | 37位用户标记";
    ZQNumberIdentity *abroad = identity(4, @"推销", 37);
    const HeaderCase kCases[] = {
        {@"nothing", nil, nil, nil, nil, false, kNothing},
        {@"region", nil, place, nil, place, false, kLine},
        {@"tagline", nil, place, word, @"手机  广东广州", false, kTagged},
        {@"tagline alone", nil, nil, word, @"手机  (null)", false, {58, 66.5, 187, 154, 95}},
        {@"empty tagline", nil, place, @"", place, false, kLine},
        {@"empty region", nil, @"", nil, @"", false, {58, 66.5, 167, 167, 112}},
        {@"region with a bar", nil, @"广东 | 广州", nil, @"广东 | 广州", true, kLine},
        {@"abroad", abroad, place, nil, place, false, kAbroad},
        {@"abroad, tagline", abroad, place, word, @"手机  广东广州", false, kAbroad},
        {@"abroad, nothing", abroad, nil, nil, nil, false, {58, 66.5, 187, 187, 115}},
        {@"abroad, bar", abroad, @"A|B", nil, @"A|B", false, kAbroad},
        {@"kind 1", identity(1, @"推销"), place, nil, place, false, kLine},
        {@"own mark", identity(3, @"推销"), place, nil, @"推销 | 我贡献的标记", true, kLine},
        {@"brand", brandOf(@"某店"), place, nil, @"某店", false, kLine},
        {@"no brand", identity(6, @"推销"), place, nil, nil, false, kNothing},
        {@"marks", identity(7, @"推销", 37), place, nil, mark, true, kLine},
        {@"marks, tagline", identity(7, @"推销", 37), place, word, mark, true, kTagged},
        {@"partner", identity(12, @"推销", 37, @"$$"), place, nil, mark, true, kLine},
        {@"5000", identity(8, @"推销", 5000), place, nil, @"推销 | 5000位用户标记", true, kLine},
        {@"5001", identity(8, @"推销", 5001), place, nil, @"推销", false, kLine},
        {@"1", identity(9, @"推销", 1), place, nil, @"推销", false, kLine},
        {@"-3", identity(10, @"推销", -3), place, nil, @"推销 | -3位用户标记", true, kLine},
        {@"no label", identity(8, nil, 1), place, nil, nil, false, kNothing},
        {@"no label, marks", identity(8, nil, 12), place, nil, @"(null) | 12位用户标记", true,
         kLine},
        {@"other kind", identity(13, @"标签"), place, nil, @"标签", false, kLine},
        {@"empty label", identity(11, @""), place, nil, place, false, kLine},
        {@"22 units", identity(8, many(12), 99), nil, nil, cut(12, @" "), true, kLine},
        {@"23 units", identity(8, many(13), 99), nil, nil, cut(12, @"... "), true, kLine},
        {@"30 units", identity(8, many(20), 99), nil, nil, cut(12, @"... "), true, kLine},
        {@"all right", identity(8, joined(@"一二|", many(25)), 1), nil, nil,
         joined(@"... |", many(25)), true, kLine},
    };
    for (const auto &each : kCases) {
        checkHeader(each);
    }
    // The region of an identity is that of its own number.
    [Stage reset];
    ZQNumberIdentity *moved = identity(2, @"推销");
    [moved setNumber:@"075500000000"];
    [Stage know:moved of:kPure];
    check(isText([label(laidOut(), 1001) text], @"广东深圳"), "an identity's region");
}

// The same in two parts, and joined to a second text.
static void checkParts() {
    const struct {
        NSString *name;
        ZQNumberIdentity *identity;
        NSString *info, *added;
    } kCases[] = {
        {@"nobody", nil, @"广东广州", nil},
        {@"search", identity(7, @"推销", 1), @"推销", nil},
        {@"region", identity(1, @"推销"), @"广东广州，推销", nil},
        {@"own mark", identity(3, @"推销"), @"推销", @"我贡献的标记"},
        {@"own mark of nothing", identity(3, nil), nil, nil},
        {@"abroad", identity(4, @"推销", 37), @"推销", nil},
        {@"brand", identity(6, @""), @"广东广州", nil},
        {@"marks", identity(8, @"推销", 5000), @"推销", @"5000位用户标记"},
        {@"other marks", identity(9, @"推销", -3, @""), @"推销", @"-3位用户标记"},
        {@"too many", identity(8, @"推销", 5001), @"推销", nil},
        {@"marks of nothing", identity(8, nil, 12), nil, nil},
        {@"nothing", identity(9, nil, 1), @"(null)", nil},
        {@"partner", identity(12, @"推销", 37, @"$$"), @"推销", nil},
        {@"partner of nothing", identity(12, nil, 37, @"$$"), @"广东广州", nil},
        {@"kind 11", identity(11, @"推销", 37), @"推销", nil},
    };
    for (const auto &each : kCases) {
        Case name(each.name);
        NSDictionary *parts = [hook() parseNumberInfoWithNumber:kNumber identity:each.identity];
        check(parts && isText([parts objectForKey:@"numberinfo"], each.info) &&
                  isText([parts objectForKey:@"zqrinfo"], each.added) &&
                  [parts count] == (each.info != nil) + (each.added != nil),
              "its parts");
    }
    auto merged = [](NSString *left, NSString *right) {
        return [hook() mergeDesc:left diagnose:right];
    };
    check(isText(merged(@"A", @"B"), @"A B") && isText(merged(@"A", @""), @"A") &&
              isText(merged(nil, @"B"), @"B") && !merged(nil, @""),
          "two texts");
}

void checkHeaders() {
    for (void (*checks)() : {checkNobody, checkTexts, checkParts, checkButtons, checkLaterPasses}) {
        [Stage reset];
        checks();
    }
}
