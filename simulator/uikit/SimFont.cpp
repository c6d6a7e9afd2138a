// UIFont: the names that the device knows and the weights they are drawn in.
#include "uikit/SimFont.hpp"

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>

#include "platform/Format.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

using sim::FontWeight;
using sim::instance;

namespace {

struct KnownFont {
    std::string_view name;
    FontWeight weight;
};
constexpr std::array kKnownFonts{
    KnownFont{"HelveticaNeue", FontWeight::Regular},
    KnownFont{"HelveticaNeue-Bold", FontWeight::Bold},
    KnownFont{"HelveticaNeue-Light", FontWeight::Light},
    KnownFont{"HelveticaNeue-Medium", FontWeight::Bold},
    KnownFont{"HelveticaNeue-Thin", FontWeight::Light},
    KnownFont{"HelveticaNeue-UltraLight", FontWeight::Light},
    KnownFont{"Helvetica", FontWeight::Regular},
    KnownFont{"Helvetica-Bold", FontWeight::Bold},
    KnownFont{"Helvetica-Light", FontWeight::Light},
    KnownFont{"STHeitiSC-Light", FontWeight::Light},
    KnownFont{"STHeitiSC-Medium", FontWeight::Bold},
};

}  // namespace

UIFont SimFont::make(NSString name, sim::Font font) {
    auto *const made = sim::autoreleased<SimFont>();
    made->name_ = sim::copied(name);
    made->font_ = font;
    return sim::handle<UIFont>(made);
}

UIFont SimFont::systemFontOfSize(CGFloat points) {
    return make(".HelveticaNeueInterface-Regular"_ns, {points, FontWeight::Regular});
}

UIFont SimFont::boldSystemFontOfSize(CGFloat points) {
    return make(".HelveticaNeueInterface-MediumP4"_ns, {points, FontWeight::Bold});
}

UIFont SimFont::withName(NSString name, CGFloat points) {
    const std::string wanted = sim::utf8(name);
    const auto found = std::ranges::find(kKnownFonts, wanted, &KnownFont::name);
    return found != kKnownFonts.end() ? make(name, {points, found->weight}) : nullptr;
}

sim::Font SimFont::of(UIFont font) {
    return font != nullptr ? instance<SimFont>(font)->font_ : sim::Font{SimFont::kDefaultPoints};
}

NSString SimFont::familyName() const {
    const std::string name = sim::utf8(name_);
    return sim::string(std::string_view(name).substr(0, name.find('-')));
}

UIFont SimFont::fontWithSize(CGFloat points) { return make(name_, {points, font_.weight}); }

bool SimFont::isEqual(NSObject other) {
    return other != nullptr && other.isKindOfClass("UIFont"_cls) &&
           instance<SimFont>(other)->font_ == font_ &&
           instance<SimFont>(other)->fontName().isEqualToString(name_);
}

NSUInteger SimFont::hash() { return std::hash<double>()(font_.points); }

NSString SimFont::description() { return format<"UIFont %@ %.2f">(fontName(), font_.points); }

id SimFont::copyWithZone(void *) { return objc::send<id()>(id(*this), "retain"_sel); }

void SimFont::define() {
    using objc::function;
    using objc::member;
    sim::defined(
        "UIFont",
        objc::ClassBuilder<SimFont>("UIFont", "NSObject")
            .classMethod("systemFontOfSize:"_sel, function<&SimFont::systemFontOfSize>)
            .classMethod("boldSystemFontOfSize:"_sel, function<&SimFont::boldSystemFontOfSize>)
            .classMethod("fontWithName:size:"_sel, function<&SimFont::withName>)
            .method("fontName"_sel, member<&SimFont::fontName>)
            .method("familyName"_sel, member<&SimFont::familyName>)
            .method("pointSize"_sel, member<&SimFont::pointSize>)
            .method("lineHeight"_sel, member<&SimFont::lineHeight>)
            .method("ascender"_sel, member<&SimFont::ascender>)
            .method("descender"_sel, member<&SimFont::descender>)
            .method("fontWithSize:"_sel, member<&SimFont::fontWithSize>)
            .method("isEqual:"_sel, member<&SimFont::isEqual>)
            .method("hash"_sel, member<&SimFont::hash>)
            .method("description"_sel, member<&SimFont::description>)
            .method("copyWithZone:"_sel, member<&SimFont::copyWithZone>)
            .finish());
}
