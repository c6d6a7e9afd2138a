// UITableViewCell: a content view, which before iOS 8 lies in a scroll view of its own.
#pragma once

#include "uikit/SimView.hpp"

class SimImageView;
class SimLabel;
class SimScrollView;

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
    bool isSelected() const { return selected_; }
    void setSelected(bool selected) { selected_ = selected; }
    bool isHighlighted() const { return highlighted_; }
    void setHighlighted(bool highlighted) { highlighted_ = highlighted; }
    NSInteger accessoryType() const { return accessoryType_; }
    void setAccessoryType(NSInteger type) { accessoryType_ = type; }
    NSInteger selectionStyle() const { return selectionStyle_; }
    void setSelectionStyle(NSInteger style) { selectionStyle_ = style; }
    void prepareForReuse() {}
    void layoutSubviews();

  private:
    SimLabel *label(objc::Owned<UILabel> &slot, CGFloat points);
    void placeParts(CGSize room);

    objc::Owned<UIView> scrollView_;
    objc::Owned<UIView> contentView_;
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
