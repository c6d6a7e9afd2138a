// Collecting labels from a view tree.
#include "stage/VisibleTexts.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/SimView.hpp"

namespace stage {

std::string joinedTexts(UIView view, UIView except) {
    if (view.get() == except.get() || objc::send<bool()>(view, "isHidden"_sel)) {
        return {};
    }
    std::string joined;
    const auto add = [&](const std::string &text) {
        joined += joined.empty() || text.empty() ? "" : " | ";
        joined += text;
    };
    if (view.isKindOfClass("UILabel"_cls)) {
        add(sim::utf8(view.as<UILabel>().text()));
    }
    for (const objc::Owned<UIView> &child : objc::Wire<SimView *>::from(view.get())->children()) {
        add(joinedTexts(child, except));
    }
    return joined;
}

}  // namespace stage
