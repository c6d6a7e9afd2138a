// What the recents' class offers to other code in the process, and the add-on itself never sends.
#import "Rows.h"

@interface NSObject (OtherCode)
+ (BOOL)isTargetABPersonTableViewDataSource:(id)source;
+ (NSString *)getNumberFromDataSource:(id)source;
+ (UIView *)getSubviewOfView:(UIView *)view WithTag:(NSInteger)tag;
@end

static void checkPersonTable() {
    NSMutableDictionary *source = [NSMutableDictionary dictionary];
    expectTrue(![hook() isTargetABPersonTableViewDataSource:source]);
    [source setObject:@"any" forKey:@"personHeaderView"];
    expectTrue([hook() isTargetABPersonTableViewDataSource:source]);
    // The second is no boolean, and raises.
    for (id allows : {(id)number(1), (id)[NSMutableArray array]}) {
        [source setObject:allows forKey:@"allowsEditing"];
        expectTrue(![hook() isTargetABPersonTableViewDataSource:source]);
    }
    expectEqual([hook() getNumberFromDataSource:source], nil);
    [source setObject:list({list({}), list({@"", @"0871-1", @"2"})}) forKey:@"people"];
    expectEqual([hook() getNumberFromDataSource:source], @"0871-1");
    [source setObject:@"nobody" forKey:@"people"];
    for (id without : {(id)source, (id)nil, (id) @"no source"}) {
        expectEqual([hook() getNumberFromDataSource:without], nil);
        expectTrue(![hook() isTargetABPersonTableViewDataSource:without]);
    }
}
static const Group g_person("other code, a person's table", kPhone, checkPersonTable);

static void checkSubviews() {
    UIView *above = [[[UIView alloc] init] autorelease];
    UIView *between = [[[UIView alloc] init] autorelease];
    UIView *below = [[[UIView alloc] init] autorelease];
    [above addSubview:between];
    [between addSubview:below];
    [above setTag:5];
    [below setTag:5];
    expectEqual([hook() getSubviewOfView:above WithTag:5], below);
    expectEqual([hook() getSubviewOfView:below WithTag:5], nil);
    expectEqual([hook() getSubviewOfView:nil WithTag:5], nil);
}
static const Group g_subviews("other code, subviews", kPhone, checkSubviews);
