// What the add-on adds to the header of somebody else's call details.
#import "Contacts.h"

static void checkLogo() {
    [Stage let:@"getAppResourceDir" answer:@"/gone"];
    expectEqual([hook() getRecordIcon], nil);
    [Stage reset];
    UIImage *logo = [hook() getRecordIcon];  // is looked for again
    expectEqual(logo->path, @"/resources/icon_zqrLogo_in_systemCallHistoryDetailsView.png");
    [Stage let:@"getAppResourceDir" answer:@"/gone"];
    expectEqual([hook() getRecordIcon], logo);
}
static const Group g_logo("header, logo", kPhone, checkLogo);

// Of two tones, the grey one begins at the bar.
static void expectTones(NSAttributedString *toned) {
    const NSUInteger bar = [[toned string] rangeOfString:@"|"].location;
    NSRange run = {0, 0};
    auto colorAt = [&](NSUInteger at) {
        return (UIColor *)[toned attribute:@"NSColor" atIndex:at effectiveRange:&run];
    };
    expectEqual(colorAt(0), rgb(0, 0, 0));
    expectEqual(NSMaxRange(run), bar);
    expectEqual(colorAt(bar), rgb(145, 145, 145));
    expectEqual(NSMaxRange(run), [[toned string] length]);
}

static NSString *fileOf(NSString *part) {
    NSString *const kFile = @"/resources/btn_%@in_systemCallHistoryDetailsView.png";
    return [NSString stringWithFormat:kFile, part];
}

// The looks that a picture does not show, of a header with three buttons.
static void checkLooks() {
    [Stage reset];
    [Stage know:identity(7, @"推销", 37) of:kPure];
    [Stage tell:@"history" of:kPure as:list({number(2)})];
    [hook() setPhonePureNumber:kPure];
    ABContactHeaderView *header = laidOut();
    expectEqual(((UIImageView *)[header viewWithTag:1002])->image, [hook() getRecordIcon]);
    expectEqual([labelWith(1006, header) text], @"若非国外亲友，请警惕诈骗");
    expectEqual([labelWith(1004, header) textColor], rgb(180, 180, 180));
    expectEqual([labelWith(1006, header) textColor], rgb(145, 145, 145));
    for (NSInteger tag : {1001, 1004, 1005, 1006}) {
        expectEqual([labelWith(tag, header) font]->pointSize, 13);
        expectEqual([labelWith(tag, header) backgroundColor], [UIColor clearColor]);
    }
    expectTones([labelWith(1001, header) attributedText]);
    const struct {
        NSUInteger index;
        NSString *action, *icon, *part;
        UIEdgeInsets caps;
    } kButtons[] = {{kSearch, @"searchNumBtnPressed", @"search", @"right", {4, 0, 4, 5}},
                    {kMark, @"markButtonPressed", @"tag", @"middle", {0, 0, 0, 0}},
                    {kCorrect, @"correctButtonPressed", @"modify", @"left", {4, 5, 4, 0}}};
    for (const auto &[index, action, icon, part, caps] : kButtons) {
        Case name(icon);
        UIButton *found = button(header, index);
        expectEqual([found tag], 0);
        expectEqual(found->target, hook());
        expectEqual(found->events, 1 << 6);
        expectEqual(NSStringFromSelector(found->action), action);
        expectEqual(found->insets, UIEdgeInsets{0, 20, 0, 0});
        expectEqual(((UIImageView *)[[found subviews] lastObject])->image->path,
                    fileOf([NSString stringWithFormat:@"icon_%@_", icon]));
        for (NSUInteger state : {0, 1}) {
            UIImage *image = [found get:@"image" forState:state];
            NSString *suffix = state ? @"_pressed_" : @"_";
            expectEqual(image->path, fileOf([part stringByAppendingString:suffix]));
            expectEqual(image->caps, caps);
            expectEqual([found get:@"color" forState:state], rgb(145, 145, 145));
        }
    }
    [button(header, kSearch) press];
    expectTrue([[Stage opened] rangeOfString:@"&keyword=02000000001&"].length > 0);
}
static const Group g_looks("header, looks", kPhone, checkLooks);

static void checkTexts() {
    NSString *place = @"广东广州", *word = @"手机", *mark = @"推销 | 37位用户标记";
    NSString *many = [@"" stringByPaddingToLength:20 withString:@"一" startingAtIndex:0];
    NSString *cut = @"一一一一一一一一一一一一... | 99位用户标记";
    ZQNumberIdentity *abroad = identity(4, @"推销", 37);
    // The height is that of 7; the history an action type, or 0 for no call.
    const struct {
        NSString *name;
        ZQNumberIdentity *identity;
        int history;
        NSString *region, *tagline, *text;
        CGFloat height, personY, rowY;
        NSString *titles;
        unsigned runs = kPhone;
    } kCases[] = {
        {@"nothing", nil, 0, nil, nil, nil, 58, 154, 95, @"搜索"},
        {@"region", nil, 1, place, nil, place, 71, 167, 112, @"搜索"},
        {@"called", nil, 2, place, nil, place, 71, 167, 112, @"标记搜索"},
        {@"empty", nil, 0, @"", nil, @"", 58, 167, 112, @"搜索"},
        {@"tag", nil, 0, place, word, @"手机  广东广州", 71, 187, 112, @"搜索", k7},
        {@"old tag", nil, 0, place, word, place, 71, 167, 112, @"搜索", k80},
        {@"tag alone", nil, 0, nil, word, @"手机  (null)", 58, 187, 95, @"搜索", k7},
        {@"abroad", abroad, 2, @"A|B", nil, @"A|B", 91, 187, 132, @"标记搜索"},
        {@"nowhere", abroad, 2, nil, nil, nil, 58, 187, 115, @"标记搜索"},
        {@"brand", brandOf(@"某店"), 2, nil, nil, @"某店", 71, 167, 112, @"纠错标记搜索"},
        {@"marks", identity(7, @"推销", 37), 1, nil, nil, mark, 71, 167, 112, @"纠错搜索"},
        {@"search", identity(7, @"推销", 1), 2, nil, nil, @"推销", 71, 167, 112, @"纠错搜索"},
        {@"marks, tag", identity(7, @"推销", 37), 1, nil, word, mark, 71, 187, 112, @"纠错搜索", k7},
        {@"long", identity(8, many, 99), 0, nil, nil, cut, 71, 167, 112, @"纠错搜索"},
    };
    const CGFloat left = margin(), width = 320 - left - 13;
    for (const auto &each : kCases) {
        if (!isRun(each.runs)) {
            continue;
        }
        Case name(each.name);
        [Stage reset];
        [Stage let:@"descriptionOfNumber:" answer:each.region];
        [Stage know:each.identity of:kPure];
        [Stage tell:@"history"
                 of:kPure
                 as:each.history ? list({number(1), number(each.history)}) : nil];
        [hook() setPhonePureNumber:kPure];
        expectEqual([hook() getHeaderViewHeight], each.height + (isNewer() ? CGFloat(8.5) : 0));
        ABContactHeaderView *header = laidOut(each.tagline);
        UILabel *warning = labelWith(1006, header);
        expectEqual([labelWith(1001, header) text], each.text);
        expectFrame(labelWith(1001, header), {left, 85, width, 13});
        expectEqual(isShown(warning), [each.identity type] == 4);
        expectFrame(warning, isShown(warning) ? CGRect{{left, 105}, {width, 13}} : CGRect{});
        expectFrame(header->_personHeaderView, {5, each.personY, 310, 60});
        expectFrame(header->_nameLabel, {7, 53, 200, 30});
        expectTrue([header->_taglineLabel isHidden]);
        expectEqual(titles(header), each.titles);
        // What is shown already asks for no other pass.
        header->needsLayout = NO;
        layOut(header);
        expectTrue(!header->needsLayout);
        // The buttons share their row.
        const CGFloat kWidths[][3] = {{272, 135, 90}, {292, 145, 97}};
        const NSUInteger others = [each.titles length] / 2 - 1;
        const CGFloat wide = kWidths[isNewer()][others];
        NSString *const kParts[] = {others ? @"left_" : @"", others == 2 ? @"middle_" : @"right_",
                                    @"right_"};
        NSUInteger at = 0;
        for (NSUInteger index : {kCorrect, kMark, kSearch}) {
            UIButton *found = button(header, index);
            if (isShown(found)) {
                expectFrame(found, {left + at * (wide + 1), each.rowY, wide, 44});
                UIImage *background = [found get:@"image" forState:0];
                expectEqual(background->path, fileOf(kParts[at++]));
            }
        }
    }
}
static const Group g_texts("header, texts", kPhone, checkTexts);

// Since 8.0 the tag line is repeated for numbers from abroad alone.
static void checkForeign() {
    [Stage reset];
    for (NSString *number : {(id)kNumber, (id) @"0044 20"}) {
        CNContact *contact = contactWith(number);
        [hook() updatePhoneNumberFromContact:contact];
        ABContactHeaderView *header = headerOf(contact);
        [header->_taglineLabel setText:@"手机"];
        layOut(header);
        expectEqual([labelWith(1001, header) text],
                    isNewer() && number == (id)kNumber ? @"广东广州" : @"手机  广东广州");
    }
}
static const Group g_foreign("header, numbers from abroad", kPhone, checkForeign);

// Buttons are met on the first pass alone; labels on every one.
static void checkLaterPasses() {
    [Stage reset];
    [hook() setPhonePureNumber:kPure];
    [Stage know:identity(4, @"推销") of:kPure];
    ABContactHeaderView *header = laidOut();
    [Stage know:identity(7, @"推销", 37) of:kPure];
    [Stage tell:@"history" of:kPure as:list({number(2)})];
    [header->_taglineLabel setHidden:NO];
    [header->_nameLabel setFrame:CGRect{{9, 10}, {100, 20}}];
    layOut(header);
    NSString *expected =
        isNewer() ? @"0(15 132 292 44)搜索{0(123 15 14 14)} 0(5 167 310 60) 0(9 53 100 20) "
                     "1001(15 85 292 13)推销 | 37位用户标记 1002(15 22 14 14) "
                     "1004(32 22 200 13)Zequor 1006(15 105 292 13)若非国外亲友，请警惕诈骗"
                  : @"0(35 132 272 44)搜索{0(113 15 14 14)} 0(5 167 310 60) 0(9 53 100 20) "
                     "1001(35 85 272 13)推销 | 37位用户标记 1002(35 22 14 14) "
                     "1004(52 22 200 13)Zequor 1006(35 105 272 13)若非国外亲友，请警惕诈骗";
    expectEqual(picture(header), expected);
    [hook() setPhonePureNumber:@""];
    layOut(header);
    expectEqual(picture(header), expected);

    // They are looked for, in vain, by tags that they were not given.
    const NSInteger kTags[] = {1009, 1008, 1007};
    for (NSUInteger i : {kSearch, kMark, kCorrect}) {
        [button(header, i) setTag:kTags[i]];
    }
    [hook() setPhonePureNumber:kPure];
    layOut(header);
    expectEqual(titles(header), @"纠错标记搜索");
}
static const Group g_later("header, later passes", kPhone, checkLaterPasses);
