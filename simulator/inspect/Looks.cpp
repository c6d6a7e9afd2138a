// Labels and image views are asked directly; of what draws its text itself, that much as it tells.
#include "inspect/Looks.hpp"

#include <array>
#include <cmath>
#include <cstdio>
#include <map>

#include "objc/Ivar.hpp"
#include "uikit/AttributedText.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimFont.hpp"
#include "uikit/SimImage.hpp"
#include "uikit/SimImageView.hpp"
#include "uikit/SimLabel.hpp"
#include "uikit/ViewTree.hpp"
#include "uikit/drawing/Utf16.hpp"

namespace inspect {
namespace {

/// Empty for what nobody sees.
std::string shown(UIColor color) {
    const sim::Color parts = SimColor::of(color);
    if (parts.alpha == 0) {
        return {};
    }
    const auto byte = [](double part) { return static_cast<unsigned>(std::lround(part * 255)); };
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "#%02x%02x%02x%02x", byte(parts.red), byte(parts.green),
                  byte(parts.blue), byte(parts.alpha));
    constexpr std::size_t kOpaque = 7;  // characters
    return {text.data(), parts.alpha == 1 ? kOpaque : kOpaque + 2};
}

std::string shown(UIFont font) {
    if (font == nullptr) {
        return {};
    }
    const auto *const known = sim::instance<SimFont>(font);
    return sim::utf8(known->fontName()) + " " + sim::trimmedNumber(known->pointSize());
}

std::vector<Run> runsOf(const SimLabel &label) {
    std::vector<Run> runs;
    const NSAttributedString text = label.attributedText();
    const std::u16string units = sim::units(label.text());
    for (NSUInteger at = 0; at < units.size();) {
        NSRange range{};
        const auto attributes = objc::send<NSDictionary(NSUInteger, NSRange *)>(
            text, "attributesAtIndex:effectiveRange:"_sel, at, &range);
        const auto font = attributes.objectForKey(NSObject(NSFontAttributeName)).as<UIFont>();
        const auto color =
            attributes.objectForKey(NSObject(NSForegroundColorAttributeName)).as<UIColor>();
        const NSUInteger end = range.location + range.length;
        runs.push_back({sim::utf8(std::u16string_view(units).substr(at, end - at)),
                        shown(color != nullptr ? color : label.textColor()),
                        shown(font != nullptr ? font : label.font())});
        at = end;
    }
    return runs;
}

void describeLabel(const SimLabel &label, View &into) {
    into.color = shown(label.textColor());
    into.font = shown(label.font());
    if (label.isAttributed()) {
        into.runs = runsOf(label);
    }
    if (into.runs.size() == 1) {
        into.color = into.runs.front().color;
        into.font = into.runs.front().font;
        into.runs.clear();
    }
}

/// Asked once for each class.
bool hasText(const SimView &view) {
    static std::map<Class, bool> g_known;
    const auto [known, isNew] = g_known.try_emplace(object_getClass(view), false);
    if (isNew) {
        known->second = NSObject(view).respondsToSelector("text"_sel);
    }
    return known->second;
}

}  // namespace

bool isOf(const SimView &view, Class wanted) {
    Class cls = object_getClass(view);
    while (cls != nullptr && cls != wanted) {
        cls = class_getSuperclass(cls);
    }
    return cls != nullptr;
}

void describeLook(SimView &view, View &into) {
    into.background = shown(view.backgroundColor());
    if (hasText(view)) {
        if (const auto text = objc::send<NSString()>(id(view), "text"_sel); text != nullptr) {
            into.text = sim::utf8(text);
        }
    }
    if (isOf(view, "UILabel"_cls)) {
        describeLabel(static_cast<SimLabel &>(view), into);
    } else if (into.text) {
        into.font = shown(objc::read<UIFont>(NSObject(view), "_font"_ivar));
    } else if (isOf(view, "UIImageView"_cls)) {
        const UIImage image = static_cast<SimImageView &>(view).image();
        into.image = image != nullptr ? sim::instance<SimImage>(image)->name() : std::string();
    }
}

std::string spokenText(SimView &view) {
    const auto label = objc::send<NSString()>(id(view), "accessibilityLabel"_sel);
    if (label.length() > 0) {
        return sim::utf8(label);
    }
    return hasText(view) ? sim::utf8(objc::send<NSString()>(id(view), "text"_sel)) : std::string();
}

}  // namespace inspect
