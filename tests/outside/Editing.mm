// What the add-on keeps of the row that is swiped, when it looks away, and where its actions lead.
#import "Rows.h"

// Whether a row that begins to be edited is recorded.
static bool isRecording() {
    static int number;
    NSString *pure = [NSString stringWithFormat:@"%d", ++number];
    PHRecentsCell *row = rowOf(callFrom(pure, number + 0.9));
    [row setEditing:YES animated:YES];
    expectEqual(row->edits, 1);
    const bool records =
        [markLink() isEqual:[NSString stringWithFormat:@"zequor://mark?%@/%d", pure, number]];
    [row swipe:YES];
    [hook() addButtonMenuToCell:row];
    expectEqual([row->title font] != nil, records);
    [row shut];
    UIScrollView *view = [[[UIScrollView alloc] init] autorelease];
    CGPoint target = {11, 12};
    [row scrollViewWillEndDragging:view withVelocity:CGPoint {} targetContentOffset:&target];
    expectEqual(target.x != 11, records);
    return records;
}

// The list's changes show half a second of the main loop later, the last of them.
static void expectLater(PHRecentsViewController *shown, std::initializer_list<BOOL> changes) {
    const bool before = isRecording();
    const double begin = [NSDate timeIntervalSinceReferenceDate];
    auto passed = [=] { return [NSDate timeIntervalSinceReferenceDate] - begin; };
    for (BOOL editing : changes) {
        [shown setEditing:editing animated:YES];
    }
    while (isRecording() == before && passed() < 5) {
        inPool([] {
            [[NSRunLoop currentRunLoop] runUntilDate:[NSDate dateWithTimeIntervalSinceNow:0.01]];
        });
    }
    expectTrue(isRecording() != before && passed() >= 0.49);
}

static void checkEditing() {
    [Stage reset];
    PHRecentsCell *row = rowOf(callFrom(@"77", 77));
    [hook() setPhonePureNumber:@"1"];
    [row setEditing:NO animated:YES];
    expectEqual(correctLink(), @"zequor://errorCorrect?1/");
    [row setEditing:YES animated:YES];
    expectEqual(markLink(), @"zequor://mark?77/77");
    [rowOf(nil) setEditing:YES animated:YES];
    expectEqual(correctLink(), nil);

    PHRecentsViewController *shown = [[[PHRecentsViewController alloc] init] autorelease];
    expectTrue(isRecording());
    expectLater(shown, {YES});
    expectLater(shown, {YES, NO});
    expectEqual(shown->edits, 3);
    [hook() setTableStatus:[NSNumber numberWithBool:YES]];
    expectTrue(!isRecording());
}
static const Group g_editing("editing", k7, checkEditing);

static void checkLinks() {
    [Stage reset];
    for (NSString *pure : {(id) @"", (id)nil}) {
        [hook() setPhonePureNumber:pure];
        expectEqual(correctLink(), nil);
        expectEqual(markLink(), nil);
        expectEqual(searchLink(), nil);
    }
    NSString *manyDigits = [@"" stringByPaddingToLength:10000 withString:@"7" startingAtIndex:0];
    for (NSString *pure : {(id) @"%@%n%d%s", (id) @"/ ?#&%00\n", (id) @"中文\"", (id)manyDigits}) {
        [hook() setPhonePureNumber:pure];
        [hook() setCurrentRecordDate:dateAt(-1.9)];
        expectEqual(correctLink(), [NSString stringWithFormat:@"zequor://errorCorrect?%@/", pure]);
        expectEqual(markLink(), [NSString stringWithFormat:@"zequor://mark?%@/-1", pure]);
    }
    [hook() setPhonePureNumber:@"8613800000000"];
    [hook() setCurrentRecordDate:nil];
    expectEqual(markLink(), @"zequor://mark?8613800000000/0");
    NSString *search = @"/web/searchList.jsp?uID=q-R-MwzzPa7KLcdE&v=5&w=1278&t=1368328313424"
                        "&keyword=13800000000&pg=webSearchList&s=";
    expectTrue([searchLink() hasSuffix:search]);
    [Stage let:@"getDigitNumber:" answer:@"1 %@\"5"];
    expectTrue([searchLink() rangeOfString:@"&keyword=1%20%25@%225&"].length > 0);
    [Stage let:@"getDigitNumber:" answer:@"８６"];
    expectEqual(searchLink(), nil);  // what ASCII lacks is not searched for
    // Nobody is around to catch what the companion raises.
    for (auto link : {correctLink, markLink, searchLink}) {
        atEachQuestion([=](const Troubled &troubled) { troubled([&] { link(); }, fail); });
    }
}
static const Group g_links("links", kPhone, checkLinks);
