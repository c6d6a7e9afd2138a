// UITableView: measured as a whole, filled where it is visible.
#include "uikit/SimTableView.hpp"

#include <algorithm>

#include "uikit/Foundation.hpp"
#include "uikit/IndexPath.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimTableViewCell.hpp"

using objc::Owned;
using sim::instance;

namespace {

constexpr NSInteger kGrouped = 1;
constexpr CGFloat kGroupedGap = 35;  // above a group without a header of its own

/// What an optional message of a delegate returns; `missing` when there is none.
template <class Signature, objc::Literal name, class... Args>
auto ask(NSObject delegate, objc::Selector<name> selector,
         typename objc::Message<Signature>::Result missing, Args... args) {
    const bool isKnown = delegate != nullptr && delegate.respondsToSelector(selector);
    return isKnown ? objc::send<Signature>(delegate, selector, args...) : missing;
}

}  // namespace

id SimTableView::initWithFrame(CGRect frame) {
    objc::sendSuper<SimTableView, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    setBackgroundColor(SimColor::make(sim::kWhite));
    setAlwaysBounceVertical(true);
    return *this;
}

id SimTableView::initWithFrameStyle(CGRect frame, NSInteger style) {
    objc::send<id(CGRect)>(id(*this), "initWithFrame:"_sel, frame);
    style_ = style;
    if (style == kGrouped) {
        setBackgroundColor(SimColor::make({239 / 255.0, 239 / 255.0, 244 / 255.0, 1}));
    }
    return *this;
}

void SimTableView::setDataSource(NSObject dataSource) {
    dataSource_ = dataSource;
    reloadData();
}

void SimTableView::setDelegate(NSObject delegate) {
    objc::sendSuper<SimTableView, void(NSObject)>(this, "setDelegate:"_sel, delegate);
    reloadData();
}

void SimTableView::setSeparatorColor(UIColor color) {
    separatorColor_ = Owned<UIColor>::share(color);
}

void SimTableView::setTableHeaderView(UIView view) {
    tableHeaderView_->removeFromSuperview();
    tableHeaderView_ = Owned<UIView>::share(view);
    if (view != nullptr) {
        view.setFrame(rect(0, 0, bounds().size.width, view.frame().size.height));
        addSubview(instance<SimView>(view));
    }
    reloadData();
}

/// What is out of sight is neither swiped open nor looked at nor touched.
void SimTableView::recycle(Owned<UIView> cell) {
    auto *const gone = instance<SimTableViewCell>(cell.get());
    gone->closeSwipe();
    gone->setHighlightedAnimated(false, false);
    gone->setSelectedAnimated(false, false);
    cell->removeFromSuperview();
    reusable_.push_back(std::move(cell));
}

void SimTableView::reloadData() {
    // Taken out first: a cell that closes tells others of it, who may look at the table.
    auto cells = std::exchange(cells_, {});
    for (auto &[place, cell] : cells) {
        recycle(std::move(cell));
    }
    for (const Section &section : sections_) {
        section.headerView->removeFromSuperview();
    }
    sections_.clear();
    touched_ = {};
    selected_ = {};
    loaded_ = false;
    setNeedsLayout();
}

void SimTableView::loadIfNeeded() {
    if (loaded_) {
        return;
    }
    loaded_ = true;
    const auto count = ask<NSInteger(SimTableView *)>(
        dataSource(), "numberOfSectionsInTableView:"_sel, dataSource_ != nullptr ? 1 : 0, this);
    CGFloat y = tableHeaderView_->frame().size.height;
    for (NSInteger section = 0; section < count; ++section) {
        y = measureSection(section, y);
    }
    setContentSize({bounds().size.width, y});
    if (!isDragging() && contentOffset() != nearestRest(contentOffset())) {
        setContentOffsetAnimated(nearestRest(contentOffset()), false);
    }
}

/// Returns the y below the section.
CGFloat SimTableView::measureSection(NSInteger section, CGFloat y) {
    const CGFloat gap = style_ == kGrouped ? kGroupedGap : 0;
    const auto header = ask<CGFloat(SimTableView *, NSInteger)>(
        delegate(), "tableView:heightForHeaderInSection:"_sel, gap, this, section);
    const auto rows = ask<NSInteger(SimTableView *, NSInteger)>(
        dataSource(), "tableView:numberOfRowsInSection:"_sel, 0, this, section);
    Section measured{{y, header}, {}, {}};
    y += header;
    constexpr auto kRowHeight = "tableView:heightForRowAtIndexPath:"_sel;
    const bool differ = delegate() != nullptr && delegate().respondsToSelector(kRowHeight);
    measured.rows.reserve(static_cast<std::size_t>(std::max<NSInteger>(rows, 0)));
    for (NSInteger row = 0; row < rows; ++row) {
        const CGFloat height = differ
                                   ? objc::send<CGFloat(SimTableView *, NSObject)>(
                                         delegate(), kRowHeight, this, sim::indexPath(section, row))
                                   : rowHeight_;
        measured.rows.push_back({y, height});
        y += height;
    }
    sections_.push_back(std::move(measured));
    return y;
}

NSInteger SimTableView::numberOfSections() {
    loadIfNeeded();
    return static_cast<NSInteger>(sections_.size());
}

NSInteger SimTableView::numberOfRowsInSection(NSInteger section) {
    loadIfNeeded();
    return section >= 0 && section < numberOfSections()
               ? static_cast<NSInteger>(sections_[static_cast<std::size_t>(section)].rows.size())
               : 0;
}

CGRect SimTableView::rectAt(RowFrame row) const {
    return rect(0, row.y, bounds().size.width, row.height);
}

CGRect SimTableView::rectForRowAtIndexPath(NSObject indexPath) {
    const NSInteger section = sim::sectionOf(indexPath);
    const NSInteger row = sim::rowOf(indexPath);
    if (row < 0 || row >= numberOfRowsInSection(section)) {
        return {};
    }
    return rectAt(sections_[static_cast<std::size_t>(section)].rows[static_cast<std::size_t>(row)]);
}

SimTableViewCell *SimTableView::cellForRowAtIndexPath(NSObject indexPath) const {
    const auto found = cells_.find({sim::sectionOf(indexPath), sim::rowOf(indexPath)});
    return found != cells_.end() ? instance<SimTableViewCell>(found->second.get()) : nullptr;
}

NSObject SimTableView::indexPathForRowAtPoint(CGPoint point) const {
    for (const auto &[place, cell] : cells_) {
        if (sim::contains(cell->frame(), point)) {
            return sim::indexPath(place.section, place.row);
        }
    }
    return nullptr;
}

NSObject SimTableView::indexPathForCell(SimTableViewCell *cell) const {
    for (const auto &[place, known] : cells_) {
        if (instance<SimTableViewCell>(known.get()) == cell) {
            return sim::indexPath(place.section, place.row);
        }
    }
    return nullptr;
}

NSArray SimTableView::visibleCells() const {
    std::vector<id> ids;
    ids.reserve(cells_.size());
    for (const auto &[place, cell] : cells_) {
        ids.push_back(cell.get());
    }
    return sim::array(std::span<const id>(ids));
}

SimTableViewCell *SimTableView::dequeueReusableCellWithIdentifier(NSString identifier) {
    const auto matches = [identifier](const Owned<UIView> &cell) {
        const auto own = objc::send<NSString()>(cell.get(), "reuseIdentifier"_sel);
        return own != nullptr && own.isEqualToString(identifier);
    };
    const auto found = std::ranges::find_if(reusable_, matches);
    if (found == reusable_.end()) {
        return nullptr;
    }
    const UIView cell = std::exchange(*found, {}).autorelease();
    reusable_.erase(found);
    objc::send<void()>(cell, "prepareForReuse"_sel);
    return instance<SimTableViewCell>(cell);
}

CGPoint SimTableView::offsetShowing(NSObject indexPath) {
    const CGRect row = rectForRowAtIndexPath(indexPath);
    const CGRect seen = bounds();
    const CGFloat bottom = row.origin.y + row.size.height - seen.size.height;
    return nearestRest({seen.origin.x, std::max(std::min(seen.origin.y, row.origin.y), bottom)});
}

void SimTableView::scrollToRow(NSObject indexPath, NSInteger position, bool animated) {
    constexpr NSInteger kTop = 1;
    const CGPoint top{contentOffset().x, rectForRowAtIndexPath(indexPath).origin.y};
    setContentOffsetAnimated(position == kTop ? nearestRest(top) : offsetShowing(indexPath),
                             animated);
}

void SimTableView::setEditing(bool editing) {
    objc::send<void(bool, bool)>(id(*this), "setEditing:animated:"_sel, editing, false);
}

void SimTableView::setEditingAnimated(bool editing, bool animated) {
    editing_ = editing;
    const NSArray cells = visibleCells();
    for (NSUInteger i = 0; i < cells.count(); ++i) {
        objc::send<void(bool, bool)>(cells.objectAtIndex(i), "setEditing:animated:"_sel, editing,
                                     animated);
    }
}

void SimTableView::layoutSubviews() {
    loadIfNeeded();
    const CGRect visible = bounds();
    dropInvisible(visible);
    addVisible(visible);
}

void SimTableView::dropInvisible(CGRect visible) {
    for (auto entry = cells_.begin(); entry != cells_.end();) {
        Owned<UIView> &cell = entry->second;
        if (sim::intersects(cell->frame(), visible)) {
            ++entry;
            continue;
        }
        Owned<UIView> gone = std::move(cell);
        entry = cells_.erase(entry);
        recycle(std::move(gone));
    }
}

void SimTableView::addVisible(CGRect visible) {
    for (std::size_t s = 0; s < sections_.size(); ++s) {
        const auto section = static_cast<NSInteger>(s);
        addHeader(section, visible);
        const auto &rows = sections_[s].rows;
        const auto first = std::ranges::partition_point(rows, [visible](const RowFrame &row) {
            return row.y + row.height <= visible.origin.y;
        });
        for (auto row = static_cast<std::size_t>(first - rows.begin()); row < rows.size(); ++row) {
            const CGRect frame = rectAt(rows[row]);
            if (frame.origin.y >= visible.origin.y + visible.size.height) {
                break;
            }
            const Place place{section, static_cast<NSInteger>(row)};
            if (sim::intersects(frame, visible) && !cells_.contains(place)) {
                addCell(place, frame);
            }
        }
    }
}

void SimTableView::addCell(Place place, CGRect frame) {
    const auto cell = objc::send<UIView(SimTableView *, NSObject)>(
        dataSource(), "tableView:cellForRowAtIndexPath:"_sel, this,
        sim::indexPath(place.section, place.row));
    if (cell == nullptr) {
        sim::raise("NSInternalInconsistencyException"_ns,
                   "the data source gave no cell for a row"_ns);
    }
    cell.setFrame(frame);
    if (objc::send<bool()>(cell, "isEditing"_sel) != editing_) {
        objc::send<void(bool, bool)>(cell, "setEditing:animated:"_sel, editing_, false);
    }
    cells_[place] = Owned<UIView>::share(cell);
    insertSubviewAtIndex(instance<SimView>(cell), 0);
}

void SimTableView::addHeader(NSInteger index, CGRect visible) {
    Section &section = sections_[static_cast<std::size_t>(index)];
    const CGRect frame = rectAt(section.header);
    if (section.headerView || !sim::intersects(frame, visible)) {
        return;
    }
    const auto view = ask<UIView(SimTableView *, NSInteger)>(
        delegate(), "tableView:viewForHeaderInSection:"_sel, UIView(), this, index);
    if (view != nullptr) {
        view.setFrame(frame);
        section.headerView = Owned<UIView>::share(view);
        addSubview(instance<SimView>(view));
    }
}

void SimTableView::define() {
    using objc::member;
    using T = SimTableView;
    sim::defined("UITableView",
                 objc::ClassBuilder<T>("UITableView", "UIScrollView")
                     .method("initWithFrame:"_sel, member<&T::initWithFrame>)
                     .method("initWithFrame:style:"_sel, member<&T::initWithFrameStyle>)
                     .method("style"_sel, member<&T::style>)
                     .method("dataSource"_sel, member<&T::dataSource>)
                     .method("setDataSource:"_sel, member<&T::setDataSource>)
                     .method("setDelegate:"_sel, member<&T::setDelegate>)
                     .method("rowHeight"_sel, member<&T::rowHeight>)
                     .method("setRowHeight:"_sel, member<&T::setRowHeight>)
                     .method("separatorColor"_sel, member<&T::separatorColor>)
                     .method("setSeparatorColor:"_sel, member<&T::setSeparatorColor>)
                     .method("separatorInset"_sel, member<&T::separatorInset>)
                     .method("setSeparatorInset:"_sel, member<&T::setSeparatorInset>)
                     .method("tableHeaderView"_sel, member<&T::tableHeaderView>)
                     .method("setTableHeaderView:"_sel, member<&T::setTableHeaderView>)
                     .method("reloadData"_sel, member<&T::reloadData>)
                     .method("numberOfSections"_sel, member<&T::numberOfSections>)
                     .method("numberOfRowsInSection:"_sel, member<&T::numberOfRowsInSection>)
                     .method("rectForRowAtIndexPath:"_sel, member<&T::rectForRowAtIndexPath>)
                     .method("cellForRowAtIndexPath:"_sel, member<&T::cellForRowAtIndexPath>)
                     .method("indexPathForRowAtPoint:"_sel, member<&T::indexPathForRowAtPoint>)
                     .method("indexPathForCell:"_sel, member<&T::indexPathForCell>)
                     .method("visibleCells"_sel, member<&T::visibleCells>)
                     .method("dequeueReusableCellWithIdentifier:"_sel,
                             member<&T::dequeueReusableCellWithIdentifier>)
                     .method("scrollToRowAtIndexPath:atScrollPosition:animated:"_sel,
                             member<&T::scrollToRow>)
                     .method("isEditing"_sel, member<&T::isEditing>)
                     .method("setEditing:"_sel, member<&T::setEditing>)
                     .method("setEditing:animated:"_sel, member<&T::setEditingAnimated>)
                     .method("layoutSubviews"_sel, member<&T::layoutSubviews>)
                     .method("indexPathForSelectedRow"_sel, member<&T::indexPathForSelectedRow>)
                     .method("deselectRowAtIndexPath:animated:"_sel, member<&T::deselectRow>)
                     .method("touchesBegan:withEvent:"_sel, member<&T::touchesBegan>)
                     .method("touchesEnded:withEvent:"_sel, member<&T::touchesEnded>)
                     .method("touchesCancelled:withEvent:"_sel, member<&T::touchesCancelled>)
                     .finish());
}
