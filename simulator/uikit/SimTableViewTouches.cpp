// UITableView under a finger that does not scroll: rows are highlighted and selected. The touches
// come from the cells by way of the responder chain.
#include <algorithm>

#include "uikit/Foundation.hpp"
#include "uikit/SimTableView.hpp"
#include "uikit/SimTableViewCell.hpp"
#include "uikit/SimTouch.hpp"

using objc::Owned;

SimTableViewCell *SimTableView::swipedCell() const {
    const auto swiped = std::ranges::find_if(cells_, [](const auto &entry) {
        return sim::instance<SimTableViewCell>(entry.second.get())->isSwiped();
    });
    return swiped != cells_.end() ? sim::instance<SimTableViewCell>(swiped->second.get()) : nullptr;
}

/// Assumed: how the platform takes such a touch is seen from its behaviour only.
bool SimTableView::closesRowInstead(SimView *touched) {
    SimTableViewCell *const open = swipedCell();
    if (open == nullptr || touched->isDescendantOfView(open)) {
        return false;
    }
    open->foldSwipe();
    return true;
}

NSObject SimTableView::rowUnder(SimEvent *event) {
    return indexPathForRowAtPoint(event->touch()->locationInView(this));
}

void SimTableView::touchesBegan(NSObject, SimEvent *event) {
    const NSObject row = rowUnder(event);
    SimTableViewCell *const cell = cellForRowAtIndexPath(row);
    if (cell != nullptr && !editing_) {
        touched_ = Owned<NSObject>::share(row);
        if (!cell->isSwiped()) {
            cell->setHighlighted(true);
        }
    }
}

/// The cell that was touched, no longer highlighted; null when there is none.
SimTableViewCell *SimTableView::endTouch() {
    const auto row = std::exchange(touched_, {});
    SimTableViewCell *const cell = cellForRowAtIndexPath(row);
    if (cell != nullptr) {
        cell->setHighlighted(false);
    }
    return cell;
}

void SimTableView::touchesCancelled(NSObject, SimEvent *) { endTouch(); }

void SimTableView::touchesEnded(NSObject, SimEvent *event) {
    SimTableViewCell *const cell = endTouch();
    const NSObject row = rowUnder(event);
    if (cell == nullptr || cellForRowAtIndexPath(row) != cell) {
        return;
    }
    if (cell->isSwiped()) {
        cell->foldSwipe();
    } else {
        select(row);
    }
}

void SimTableView::select(NSObject indexPath) {
    constexpr auto kDidSelect = "tableView:didSelectRowAtIndexPath:"_sel;
    deselectRow(selected_, false);
    selected_ = Owned<NSObject>::share(indexPath);
    cellForRowAtIndexPath(indexPath)->setSelected(true);
    if (delegate() != nullptr && delegate().respondsToSelector(kDidSelect)) {
        objc::send<void(SimTableView *, NSObject)>(delegate(), kDidSelect, this, indexPath);
    }
}

void SimTableView::deselectRow(NSObject indexPath, bool animated) {
    if (SimTableViewCell *const cell = cellForRowAtIndexPath(indexPath)) {
        objc::send<void(bool, bool)>(id(*cell), "setSelected:animated:"_sel, false, animated);
    }
    selected_ = {};
}
