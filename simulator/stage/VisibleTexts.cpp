// Collecting texts from a view tree.
#include "stage/VisibleTexts.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/SimView.hpp"

namespace stage {

std::string joinedTexts(UIView view, UIView except) {
    if (view.get() == except.get() || objc::send<bool()>(view, "isHidden"_sel)) {
        return {};
    }
    constexpr auto kText = "text"_sel;
    // What has a text shows all of it, whatever it is made of inside.
    if (view.respondsToSelector(kText)) {
        return sim::utf8(objc::send<NSString()>(view, kText));
    }
    std::string joined;
    for (const objc::Owned<UIView> &child : objc::Wire<SimView *>::from(view.get())->children()) {
        const std::string text = joinedTexts(child, except);
        joined += joined.empty() || text.empty() ? "" : " | ";
        joined += text;
    }
    return joined;
}

}  // namespace stage
