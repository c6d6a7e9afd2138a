// What is hidden, clear or has no size is not seen.
#include "stage/Buttons.hpp"

#include <ranges>

#include "uikit/Foundation.hpp"
#include "uikit/SimButton.hpp"

namespace stage {
namespace {

bool isVisible(const SimView &view) {
    const CGSize size = view.bounds().size;
    return !view.isHidden() && view.alpha() > 0 && size.width > 0 && size.height > 0;
}

}  // namespace

SimView *visibleButton(SimView *root, std::string_view title) {
    if (!isVisible(*root)) {
        return nullptr;
    }
    if (NSObject(*root).isKindOfClass("UIButton"_cls) &&
        sim::utf8(static_cast<SimButton *>(root)->currentTitle()) == title) {
        return root;
    }
    for (const objc::Owned<UIView> &child : std::views::reverse(root->children())) {
        if (SimView *const found =
                visibleButton(objc::Wire<SimView *>::from(child.get().get()), title)) {
            return found;
        }
    }
    return nullptr;
}

}  // namespace stage
