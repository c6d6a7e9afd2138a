// The dump goes by messages, so that it shows what other code in the process would be told.
#include "uikit/ViewTree.hpp"

#include <array>
#include <charconv>
#include <cmath>

#include "uikit/Foundation.hpp"

namespace sim {
namespace {

std::string quoted(const std::string &text) {
    std::string result = "\"";
    for (const char character : text) {
        if (character == '\n') {
            result += "\\n";
        } else {
            if (character == '"' || character == '\\') {
                result += '\\';
            }
            result += character;
        }
    }
    return result + '"';
}

std::string described(CGRect frame) {
    return "(" + trimmedNumber(frame.origin.x) + ", " + trimmedNumber(frame.origin.y) + ", " +
           trimmedNumber(frame.size.width) + ", " + trimmedNumber(frame.size.height) + ")";
}

void append(std::string &tree, UIView view, std::size_t depth) {
    const auto tag = objc::send<NSInteger()>(view, "tag"_sel);
    tree += std::string(2 * depth, ' ') + class_getName(object_getClass(view));
    tree += tag != 0 ? " #" + std::to_string(tag) + " " : " ";
    tree += described(view.frame());
    if (objc::send<bool()>(view, "isHidden"_sel)) {
        tree += " hidden";
    }
    constexpr auto kText = "text"_sel;
    const NSString text =
        view.respondsToSelector(kText) ? objc::send<NSString()>(view, kText) : NSString();
    if (text != nullptr) {
        tree += " " + quoted(utf8(text));
    }
    tree += "\n";
    const auto subviews = objc::send<NSArray()>(view, "subviews"_sel);
    for (NSUInteger i = 0; i < subviews.count(); ++i) {
        append(tree, subviews.objectAtIndex(i).as<UIView>(), depth + 1);
    }
}

}  // namespace

std::string trimmedNumber(double value) {
    constexpr double kThousandths = 1000;
    constexpr double kTooLarge = 1e12;
    if (!std::isfinite(value) || std::abs(value) > kTooLarge) {
        return std::to_string(value);
    }
    // Adding zero turns -0 into 0.
    const double rounded = std::round(value * kThousandths) / kThousandths + 0.0;
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), rounded,
                                   std::chars_format::fixed)
                         .ptr;
    return {buffer.data(), end};
}

std::string viewTree(SimView *root) {
    std::string tree;
    append(tree, handle<UIView>(root), 0);
    return tree;
}

}  // namespace sim
