// What the Phone application keeps of recent calls, the rows that show them, and the add-on's class
// that knows what to say of them.
#pragma once

#import "Checks.h"
#import "Companion.h"

/// A number as the Phone application writes it, and its digits.
static NSString *const kNumber = @"020-0000 0001";
static NSString *const kPure = @"02000000001";

/// A recent call of no system: it answers when it was, and nothing else.
@interface RecentCall : NSObject {
  @public
    NSDate *date;
    NSString *number;
    int status;
    BOOL isContact;
}
- (NSDate *)date;
@end

NSDate *dateAt(double seconds);
/// A call as the running system keeps it; a number of nil has none.
RecentCall *callFrom(NSString *number, double seconds = 1400000000, int status = 1);
RecentCall *contactCallFrom(NSString *number);
/// An older call that keeps no record.
RecentCall *destinationCall(BOOL isContact);
/// A call that raises whatever it is asked.
RecentCall *faultyCall();

ZQNumberIdentity *identity(int type, id label, int count = 0, id source = nil, int cloudType = 0);

/// A row without the labels that rows have.
@interface PHRecentsCell : UIView {
    UIView *_contentView;
  @public
    RecentCall *call;
    int layouts, edits;
    BOOL raises;
    CGPoint target;
}
- (id)initWithCall:(RecentCall *)call;
- (UIView *)contentView;
- (void)setEditing:(BOOL)editing animated:(BOOL)animated;
- (void)scrollViewWillEndDragging:(UIScrollView *)view
                     withVelocity:(CGPoint)velocity
              targetContentOffset:(CGPoint *)target;
@end

@interface DateLabel : UILabel {
    NSString *_timeDesignator;
}
@property(nonatomic, copy) NSString *timeDesignator;
@end

/// A row with its labels, which it fills in whenever it lays itself out.
@interface RecentsRow : PHRecentsCell {
  @public
    UILabel *_callerLabelLabel;
    DateLabel *_callerDateLabel;
}
@end

/// What the add-on puts into a row.
UILabel *line(PHRecentsCell *cell);
UIImageView *icon(PHRecentsCell *cell);
bool isShown(UIView *view);

RecentsRow *row(RecentCall *call);
/// The row is laid out for another call, as a list does that reuses it.
void show(RecentsRow *row, RecentCall *call);
/// What the row says once it is laid out, or nil: line, icon and the emptied caller label are one.
NSString *textOf(RecentsRow *row);

/// Both lists' controllers; the second of each has a table.
@interface PHRecentsViewController : NSObject {
  @public
    int appeared, edits;
    id shown;
}
- (void)viewWillAppear:(BOOL)animated;
- (id)showCallDetail:(RecentCall *)call animate:(BOOL)animate;
- (void)setEditing:(BOOL)editing animated:(BOOL)animated;
@end

@interface RecentsList : PHRecentsViewController {
  @public
    UITableView *_table;
}
@end

@interface PhoneViewController : NSObject {
  @public
    int appeared;
}
- (void)viewWillAppear:(BOOL)animated;
@end

@interface PhoneList : PhoneViewController {
  @public
    UITableView *_table;
}
@end

/// What the add-on's classes are asked.
@interface NSObject (AddOn)
+ (id)currentHook;
- (NSMutableDictionary *)numberInfoAndCallCacheDict;
- (void)setNumberInfoAndCallCacheDict:(NSMutableDictionary *)cache;
- (NSString *)getInfoWithRecentCall:(id)call;
+ (void)setPhonePureNumber:(NSString *)number;
+ (void)setCurrentRecordDate:(NSDate *)date;
+ (void)setTableStatus:(NSNumber *)isEditing;
+ (void)correctButtonPressed;
+ (void)markButtonPressed;
+ (void)searchNumBtnPressed;
+ (void)addButtonMenuToCell:(UIView *)cell;
+ (UIView *)getSubviewOfView:(UIView *)view WithTag:(NSInteger)tag;
+ (BOOL)isOneContactCall:(id)call;
+ (BOOL)isOneIncomingCall:(id)call;
+ (NSString *)getCallNumberFromRecentCall:(id)call;
+ (void)showCorrectButton:(NSNumber **)correct
           showMarkButton:(NSNumber **)mark
       withNumberIdentity:(ZQNumberIdentity *)identity;
+ (NSDictionary *)parseNumberInfoWithNumber:(NSString *)number identity:(id)identity;
+ (NSString *)mergeDesc:(NSString *)description diagnose:(NSString *)diagnosis;
+ (CGFloat)getHeaderViewHeight;
+ (void)addNumberInfoToHeaderView:(UIView *)header withContact:(id)contact;
+ (void)updatePhoneNumberFromContact:(id)contact;
+ (UIImage *)getRecordIcon;
+ (BOOL)isTargetABPersonTableViewDataSource:(id)source;
+ (NSString *)getNumberFromDataSource:(id)source;
@end

/// The checks of how calls are read and remembered; Recents.mm holds those of rows and lists.
void checkCalls();
void checkCache();
void checkProperty();
void checkMonitor();

Class hook();
/// The addresses that the two actions on the current number open.
NSString *correctLink();
NSString *markLink();
