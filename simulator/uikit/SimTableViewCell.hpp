// UITableViewCell: a content view, which before iOS 8 lies in a scroll view of its own and is
// swiped aside with it.
#pragma once

#include "uikit/SimView.hpp"

class SimImageView;
class SimLabel;
class SimScrollView;
class SimTableView;

class SimTableViewCell : public SimView {
  public:
    static void define();

    ~SimTableViewCell();

    id initWithFrame(CGRect frame);
    /// Style 0 default, 1 value at the right, 3 subtitle below the text.
    id initWithStyle(NSInteger style, NSString reuseIdentifier);
    NSString reuseIdentifier() const { return reuseIdentifier_; }
    SimView *contentView();
    /// The scroll view around the content view; nil from iOS 8 on.
    SimScrollView *scrollView();
    SimLabel *textLabel();
    SimLabel *detailTextLabel();
    SimImageView *imageView();

    bool isEditing() const { return editing_; }
    void setEditing(bool editing);
    void setEditingAnimated(bool editing, bool animated);
    /// Highlighted under a finger, selected when it has been tapped: grey either way.
    bool isSelected() const { return selected_; }
    void setSelected(bool selected);
    void setSelectedAnimated(bool selected, bool animated);
    bool isHighlighted() const { return highlighted_; }
    void setHighlighted(bool highlighted);
    void setHighlightedAnimated(bool highlighted, bool animated);
    NSInteger accessoryType() const { return accessoryType_; }
    void setAccessoryType(NSInteger type) { accessoryType_ = type; }
    NSInteger selectionStyle() const { return selectionStyle_; }
    void setSelectionStyle(NSInteger style) { selectionStyle_ = style; }
    void prepareForReuse() {}
    void layoutSubviews();
    /// The grey of a touched cell, and the line below in the way its table wants it.
    void drawRect(CGRect rect);

    /// Whether a delete button stands beside the content, under a finger's swipe or left open.
    bool isSwiped() const { return static_cast<bool>(confirmation_); }
    /// Before iOS 8, where the table's data source deletes rows, and not in a cell that is edited
    /// together with its table.
    bool canBeSwiped() const;
    /// A finger begins to swipe: the delete button is there, and the cell is being edited.
    void scrollViewWillBeginDragging(SimScrollView *scrollView);
    /// The system's choice, whatever `target` was before: a cell that moves goes on as it does, one
    /// that stands opens when it shows half of what it has to reveal; open is wholly open.
    void scrollViewWillEndDragging(SimScrollView *scrollView, CGPoint velocity, CGPoint *target);
    /// A cell that has come back to its place is a plain one again.
    void scrollViewDidEndDecelerating(SimScrollView *scrollView);
    /// Runs back to its place.
    void foldSwipe();
    /// A plain cell at once, however far it was swiped.
    void closeSwipe();
    /// What a swipe reveals, in points; 0 in a cell that is not swiped.
    CGFloat swipeWidth() const { return confirmation_->frame().size.width; }
    /// Asks the table's data source to delete the row.
    void deletePressed(NSObject sender);

  private:
    SimLabel *label(objc::Owned<UILabel> &slot, CGFloat points);
    void placeParts(CGSize room);
    void showEditControl(bool shown);
    SimTableView *table() const;

    objc::Owned<UIView> scrollView_;
    objc::Owned<UIView> contentView_;
    objc::Owned<UIView> confirmation_;
    objc::Owned<UIView> editControl_;
    objc::Owned<UILabel> textLabel_;
    objc::Owned<UILabel> detailTextLabel_;
    objc::Owned<UIImageView> imageView_;
    objc::Owned<NSString> reuseIdentifier_;
    NSInteger style_ = 0;
    NSInteger accessoryType_ = 0;
    NSInteger selectionStyle_ = 3;
    bool editing_ = false;
    bool selected_ = false;
    bool highlighted_ = false;
};
