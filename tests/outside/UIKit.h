// The UIKit beside the host: as little as the screens need, and what the checks look at.
#pragma once

#include <functional>
#include <string>
#include <vector>

#import <Foundation/Foundation.h>

#include "Geometry.h"

/// An array's objects, whatever becomes of the array meanwhile.
template <typename Object>
std::vector<Object *> each(NSArray *array) {
    std::vector<Object *> objects([array count]);
    [array getObjects:(id *)objects.data()];
    return objects;
}

/// What the objects of this UIKit and of the Phone application have in common.
@interface UIObject : NSObject {
    NSMutableArray *_parts;
}
/// Takes over the caller's reference until the object goes, and returns the part.
- (id)own:(id)part;
@end

/// The classes of those that were sent a message so far.
const std::string &wokenClasses();

@interface UIColor : UIObject {
    CGFloat _components[4];
}
+ (id)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha;
+ (id)clearColor;
@end

@interface UIFont : UIObject {
  @public
    CGFloat pointSize;
}
+ (id)systemFontOfSize:(CGFloat)size;
@end

@interface UIImage : UIObject {
  @public
    NSString *path;
    UIEdgeInsets caps;
}
+ (id)imageWithContentsOfFile:(NSString *)path;
@end

@interface UIView : UIObject {
    CGRect _frame;
    BOOL _hidden;
    NSInteger _tag;
    UIColor *_backgroundColor;
    NSMutableArray *_subviews;
    UIView *_superview;
    id _layer;
  @public
    int layouts, layersLaidOut;
    BOOL keepsNothing;  // of what it is given
    BOOL needsLayout;   // since a label in it got a new text, as under Auto Layout
}
@property(nonatomic) CGRect frame;
@property(nonatomic, getter=isHidden) BOOL hidden;
@property(nonatomic) NSInteger tag;
@property(nonatomic, retain) UIColor *backgroundColor;
@property(nonatomic, readonly) NSArray *subviews;
@property(nonatomic, readonly) UIView *superview;
- (id)initWithFrame:(CGRect)frame;
- (UIView *)viewWithTag:(NSInteger)tag;
- (void)addSubview:(UIView *)view;
- (void)removeFromSuperview;
- (void)layoutSubviews;
/// What a class's own layout brings about.
- (void)fillIn;
- (void)layoutSublayersOfLayer:(id)layer;
@end

@interface UILabel : UIView {
    NSString *_text;
    NSAttributedString *_attributedText;
    UIFont *_font;
    UIColor *_textColor;
}
@property(nonatomic, copy) NSString *text;
@property(nonatomic, copy) NSAttributedString *attributedText;
@property(nonatomic, retain) UIFont *font;
@property(nonatomic, retain) UIColor *textColor;
@end

/// What the next label that gets a text brings about, before it takes the text.
extern std::function<void()> g_onText;

@interface UIImageView : UIView {
  @public
    UIImage *image;
}
@end

@interface UIButton : UIView {
    NSMutableDictionary *_states;
  @public
    UILabel *titleLabel;
    UIEdgeInsets insets;
    id target;
    SEL action;
    NSUInteger events;
}
/// The title, color or image of a state.
- (id)get:(NSString *)what forState:(NSUInteger)state;
/// A finger comes down and up inside.
- (void)press;
@end

@interface UIScrollView : UIView {
    CGPoint _contentOffset;
    UIEdgeInsets _contentInset;
}
@property(nonatomic) CGPoint contentOffset;
@property(nonatomic) UIEdgeInsets contentInset;
@end

@interface UITableView : UIScrollView {
  @public
    int reloads;
}
@end

@interface UITableViewCell : UIView {
  @public
    UIView *contentView;
    CGPoint target;
}
- (void)scrollViewWillEndDragging:(UIScrollView *)view
                     withVelocity:(CGPoint)velocity
              targetContentOffset:(CGPoint *)target;
@end

@interface UIViewController : UIObject {
  @public
    int appeared;
}
- (UIView *)view;
- (void)viewWillAppear:(BOOL)animated;
@end

/// How a text was last measured in a room.
extern NSInteger g_options;
