// The tree is walked once, from the root down. What a person takes for one thing, such as a row, is
// named by the texts in it, which are gathered on the way.
#include "inspect/Views.hpp"

#include <algorithm>
#include <tuple>

#include "inspect/Covering.hpp"
#include "inspect/Looks.hpp"
#include "inspect/ViewNotes.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimControl.hpp"
#include "uikit/SimWindow.hpp"

namespace inspect {
namespace {

/// What a view hands down to those in it.
struct Surroundings {
    CGPoint origin{};          // of its coordinates, in the root's
    CGRect clip{};             // what may be seen, in the root's
    bool isSeen = false;       // as far as those above decide
    bool isOpaque = true;      // none above lets through what is behind
    bool isEnabled = true;     // for fingers
    bool isInElement = false;  // what a person takes for one thing
};

CGRect common(CGRect a, CGRect b) {
    const CGFloat left = std::max(a.origin.x, b.origin.x);
    const CGFloat top = std::max(a.origin.y, b.origin.y);
    const CGFloat right = std::min(a.origin.x + a.size.width, b.origin.x + b.size.width);
    const CGFloat bottom = std::min(a.origin.y + a.size.height, b.origin.y + b.size.height);
    return rect(left, top, std::max(right - left, CGFloat{0}), std::max(bottom - top, CGFloat{0}));
}

bool isEmpty(CGRect area) { return area.size.width <= 0 || area.size.height <= 0; }

bool isElement(Role role) { return role == Role::Button || role == Role::Row || role == Role::Tab; }

Role roleOf(const SimView &view, const View &described, bool isInElement) {
    const bool isButton = (view.accessibilityTraits() & kTraitButton) != 0;
    if (isOf(view, "UITableView"_cls)) {
        return Role::List;
    }
    if (isOf(view, "UITableViewCell"_cls)) {
        return Role::Row;
    }
    if (isOf(view, "PhoneTabBarButton"_cls)) {
        return Role::Tab;
    }
    if (isButton || (isOf(view, "UIControl"_cls) && !isOf(view, "UISegmentedControl"_cls))) {
        return Role::Button;
    }
    if (isInElement) {
        return Role::None;
    }
    if (described.text && !described.text->empty()) {
        return Role::Text;
    }
    return isOf(view, "UIImageView"_cls) && view.accessibilityLabel() != nullptr ? Role::Image
                                                                                 : Role::None;
}

/// Opaque as far as the view itself decides.
bool isOpaque(const SimView &view) {
    return SimColor::of(view.backgroundColor()).alpha == 1 && view.layer()->cornerRadius() == 0;
}

class Reader {
  public:
    View read(SimView &view, const Surroundings &around) {
        View result = described(view, around);
        result.shown = common(around.clip, result.place);
        Surroundings within = inside(view, around, result);
        result.seen = within.isSeen && !isEmpty(result.shown);
        describeUse(view, within, result);
        within.isInElement = around.isInElement || isElement(result.role);
        const std::size_t number =
            covering_.begin(result.shown, result.seen && within.isOpaque && isOpaque(view));
        const std::size_t firstText = texts_.size();
        result.children.reserve(view.children().size());
        for (const objc::Owned<UIView> &child : view.children()) {
            result.children.push_back(read(*sim::instance<SimView>(child.get()), within));
        }
        covering_.end(number);
        if (isElement(result.role)) {
            const std::string gathered = joined(firstText);
            result.name = result.name.empty() ? gathered : result.name;
        }
        return result;
    }

    /// To be called with the whole tree, when it has been read.
    void leaveOutCovered(View &view) {
        std::size_t number = 0;
        leaveOutCovered(view, number);
    }

  private:
    struct Text {
        CGPoint at{};
        std::string text{};
    };

    static Surroundings inside(const SimView &view, const Surroundings &around, const View &known) {
        const CGPoint scrolled = view.bounds().origin;
        return {.origin = {known.place.origin.x - scrolled.x, known.place.origin.y - scrolled.y},
                .clip = view.clipsToBounds() ? known.shown : around.clip,
                .isSeen = around.isSeen && !known.hidden && known.alpha > 0,
                .isOpaque = around.isOpaque && known.alpha == 1,
                .isEnabled = around.isEnabled && view.isUserInteractionEnabled(),
                .isInElement = around.isInElement};
    }

    void leaveOutCovered(View &view, std::size_t &number) {
        view.seen = view.seen && !covering_.isCovered(number);
        ++number;
        for (View &child : view.children) {
            leaveOutCovered(child, number);
        }
    }

    static View described(SimView &view, const Surroundings &around) {
        View result{.className = class_getName(object_getClass(view)),
                    .tag = view.tag(),
                    .frame = view.frame(),
                    .alpha = view.alpha(),
                    .id = view.viewId(),
                    .hidden = view.isHidden()};
        result.place = {
            {around.origin.x + result.frame.origin.x, around.origin.y + result.frame.origin.y},
            result.frame.size};
        describeLook(view, result);
        const ViewNote note = noteOf(result.id);
        result.ofAddOn = note.isOfAddOn;
        result.touched = note.touched != nullptr ? *note.touched : std::string_view();
        return result;
    }

    void describeUse(SimView &view, const Surroundings &within, View &into) {
        into.role = roleOf(view, into, within.isInElement);
        into.selected = (view.accessibilityTraits() & kTraitSelected) != 0;
        if (isOf(view, "UIControl"_cls)) {
            const auto &control = static_cast<const SimControl &>(view);
            into.disabled = !control.isEnabled() || !within.isEnabled;
            into.selected = into.selected || control.isSelected();
        }
        if (into.role != Role::None) {
            into.name = spokenText(view);
        } else if (within.isInElement && into.seen) {
            texts_.push_back({into.place.origin, spokenText(view)});
        }
    }

    /// The texts from there on, which are used up, as they are read: by columns.
    std::string joined(std::size_t first) {
        std::sort(texts_.begin() + static_cast<std::ptrdiff_t>(first), texts_.end(),
                  [](const Text &a, const Text &b) {
                      return std::tie(a.at.x, a.at.y) < std::tie(b.at.x, b.at.y);
                  });
        std::string name;
        for (std::size_t i = first; i < texts_.size(); ++i) {
            name += name.empty() || texts_[i].text.empty() ? "" : ", ";
            name += texts_[i].text;
        }
        texts_.resize(first);
        return name;
    }

    std::vector<Text> texts_;  // of the elements that are being read
    Covering covering_;
};

}  // namespace

View viewTree(SimView *root) {
    const objc::AutoreleasePool pool;
    const CGRect frame = root->frame();
    const Surroundings around{.origin = {-frame.origin.x, -frame.origin.y},
                              .clip = {{0, 0}, frame.size},
                              .isSeen = root->window() != nullptr};
    Reader reader;
    View tree = reader.read(*root, around);
    reader.leaveOutCovered(tree);
    return tree;
}

}  // namespace inspect
