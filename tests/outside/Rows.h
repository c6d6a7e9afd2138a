// What the Phone application keeps of recent calls, the rows and lists that show them, and the
// add-on's class that knows what to say of them.
#pragma once

#import "Checks.h"

/// A number as the Phone application writes it, and its digits.
static NSString *const kNumber = @"020-0000 0001";
static NSString *const kPure = @"02000000001";

/// A recent call, of the class that the running system keeps it in.
@interface RecentCall : UIObject {
  @public
    NSDate *date;
    NSString *number;
    int status;
    BOOL isContact, fails;
}
@end

NSDate *dateAt(double seconds);
RecentCall *callFrom(NSString *number, double seconds = 1400000000, int status = 1);
RecentCall *contactCallFrom(NSString *number);
/// A call that raises when it is asked for its date.
RecentCall *faultyCall();

@interface UIDateLabel : UILabel {
  @public
    NSString *timeDesignator;
}
@end

@interface PHRecentsCell : UITableViewCell {
  @public
    RecentCall *call;
    UILabel *_callerLabelLabel;
    UIDateLabel *_callerDateLabel;
    BOOL raises, writesOnce;  // its own line, when it is given a call, or in each layout
    int edits;
    // There while it is swiped:
    UIScrollView *scroll;
    UIView *menu, *remove;
    UILabel *title;
}
- (void)setEditing:(BOOL)editing animated:(BOOL)animated;
/// Shows what is behind it, in a menu with or without the button that deletes the row.
- (void)swipe:(BOOL)deletes;
/// Its menu is gone with the next layout.
- (void)shut;
@end

PHRecentsCell *rowOf(RecentCall *call);
/// The row is given another call, as a list does that reuses it.
void give(PHRecentsCell *row, RecentCall *call);

/// What the add-on puts into a row.
UILabel *line(PHRecentsCell *row);
UIImageView *icon(PHRecentsCell *row);
/// What the row says in our line once it is laid out, or nil. The row shows its own line or ours.
NSString *textOf(PHRecentsCell *row, Place place = Place::current());

/// The lists' controllers; the keypad's, like the first, has no table.
@interface PhoneViewController : UIViewController
@end

@interface PHFavoritesViewController : PhoneViewController {
  @public
    UITableView *_table;
}
@end

@interface PHRecentsViewController : PhoneViewController {
  @public
    UITableView *_table;
    int edits;
    id shown;
}
- (void)showCallDetail:(RecentCall *)call animate:(BOOL)animate;
- (void)setEditing:(BOOL)editing animated:(BOOL)animated;
@end

/// What the add-on's classes are asked.
@interface NSObject (AddOn)
+ (id)currentHook;
- (NSMutableDictionary *)numberInfoAndCallCacheDict;
- (void)setNumberInfoAndCallCacheDict:(NSMutableDictionary *)cache;
- (NSString *)getInfoWithRecentCall:(id)call;
- (void)handlePartnerLogoDownloadNotification:(NSNotification *)notification;
+ (void)setPhonePureNumber:(NSString *)number;
+ (void)setCurrentRecordDate:(NSDate *)date;
+ (void)setTableStatus:(NSNumber *)isEditing;
+ (void)addButtonMenuToCell:(UIView *)cell;
+ (BOOL)isOneIncomingCall:(id)call;
+ (CGFloat)getHeaderViewHeight;
+ (void)updatePhoneNumberFromContact:(id)contact;
+ (void)addNumberInfoToHeaderView:(UIView *)header withContact:(id)contact;
+ (UIImage *)getRecordIcon;
@end

inline Class hook() { return NSClassFromString(@"ZQSystemCallHistoryViewHook"); }
/// The address that an action of the class opens.
inline id opened(NSString *action) {
    [hook() performSelector:NSSelectorFromString(action)];
    return [Stage opened];
}
inline id correctLink() { return opened(@"correctButtonPressed"); }
inline id markLink() { return opened(@"markButtonPressed"); }
inline id searchLink() { return opened(@"searchNumBtnPressed"); }
