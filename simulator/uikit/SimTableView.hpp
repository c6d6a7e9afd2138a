// UITableView: rows below each other in sections; cells exist for the rows on screen only.
#pragma once

#include <map>
#include <vector>

#include "uikit/SimScrollView.hpp"

class SimTableViewCell;

class SimTableView : public SimScrollView {
  public:
    static void define();

    id initWithFrame(CGRect frame);
    /// Style 0 plain, 1 grouped.
    id initWithFrameStyle(CGRect frame, NSInteger style);
    NSInteger style() const { return style_; }
    NSObject dataSource() const { return NSObject(dataSource_); }
    /// Neither is retained.
    void setDataSource(NSObject dataSource);
    void setDelegate(NSObject delegate);
    CGFloat rowHeight() const { return rowHeight_; }
    void setRowHeight(CGFloat height) { rowHeight_ = height; }
    /// The line between rows; nil for the system's own grey.
    UIColor separatorColor() const { return separatorColor_; }
    void setSeparatorColor(UIColor color);
    /// How far the lines keep away from the cells' edges.
    UIEdgeInsets separatorInset() const { return separatorInset_; }
    void setSeparatorInset(UIEdgeInsets inset) { separatorInset_ = inset; }
    UIView tableHeaderView() const { return tableHeaderView_; }
    /// Stands above the first section, as high as it is when it is set and as wide as the table.
    void setTableHeaderView(UIView view);

    /// Asks the data source anew and lays the visible rows out at the next layout.
    void reloadData();
    NSInteger numberOfSections();
    NSInteger numberOfRowsInSection(NSInteger section);
    /// In the table's coordinates; a zero rectangle for a row that there is not.
    CGRect rectForRowAtIndexPath(NSObject indexPath);
    /// The row on screen at that point of the table; nil where there is none.
    NSObject indexPathForRowAtPoint(CGPoint point) const;
    /// Nil for a row that is not on screen.
    SimTableViewCell *cellForRowAtIndexPath(NSObject indexPath) const;
    NSObject indexPathForCell(SimTableViewCell *cell) const;
    NSArray visibleCells() const;
    SimTableViewCell *dequeueReusableCellWithIdentifier(NSString identifier);
    /// The offset nearest to the present one that shows the whole row.
    CGPoint offsetShowing(NSObject indexPath);
    /// Position 0: as little as is needed to show the whole row; 1: the row comes to the top.
    void scrollToRow(NSObject indexPath, NSInteger position, bool animated);
    bool isEditing() const { return editing_; }
    void setEditing(bool editing);
    /// Passed on to every visible cell, and later to those that come into sight.
    void setEditingAnimated(bool editing, bool animated);
    void layoutSubviews();

    /// The row that a finger tapped last; nil when none is selected any more.
    NSObject indexPathForSelectedRow() const { return selected_; }
    void deselectRow(NSObject indexPath, bool animated);
    // A touch on a row highlights it; lifted there the finger selects it, which the delegate hears.
    void touchesBegan(NSObject touches, SimEvent *event);
    void touchesEnded(NSObject touches, SimEvent *event);
    void touchesCancelled(NSObject touches, SimEvent *event);

    /// The row that is swiped open, or under a finger; null when none is.
    SimTableViewCell *swipedCell() const;
    /// A finger that comes down anywhere else than on an open row closes it and does nothing more.
    bool closesRowInstead(SimView *touched);

  private:
    struct RowFrame {
        CGFloat y;
        CGFloat height;
    };
    struct Section {
        RowFrame header;
        std::vector<RowFrame> rows;
        objc::Owned<UIView> headerView;
    };
    struct Place {
        NSInteger section;
        NSInteger row;
        auto operator<=>(const Place &) const = default;
    };

    CGFloat measureSection(NSInteger section, CGFloat y);
    void loadIfNeeded();
    void recycle(objc::Owned<UIView> cell);
    void dropInvisible(CGRect visible);
    void addVisible(CGRect visible);
    void addCell(Place place, CGRect frame);
    void addHeader(NSInteger index, CGRect visible);
    CGRect rectAt(RowFrame row) const;
    NSObject rowUnder(SimEvent *event);
    SimTableViewCell *endTouch();
    void select(NSObject indexPath);

    id dataSource_ = nullptr;
    std::vector<Section> sections_;
    std::map<Place, objc::Owned<UIView>> cells_;
    std::vector<objc::Owned<UIView>> reusable_;
    objc::Owned<NSObject> touched_;  // index paths
    objc::Owned<NSObject> selected_;
    objc::Owned<UIView> tableHeaderView_;
    objc::Owned<UIColor> separatorColor_;
    UIEdgeInsets separatorInset_{0, 15, 0, 0};
    NSInteger style_ = 0;
    CGFloat rowHeight_ = 44;
    bool editing_ = false;
    bool loaded_ = false;
};
