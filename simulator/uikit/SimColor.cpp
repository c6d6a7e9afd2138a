// UIColor: constructors, components, and the colours that a drawing uses.
#include "uikit/SimColor.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

#include "platform/Format.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/GraphicsContext.hpp"
#include "uikit/Registration.hpp"

using sim::Color;
using sim::instance;

namespace {

Color clamped(Color color) {
    const auto unit = [](double value) { return std::clamp(value, 0.0, 1.0); };
    return {unit(color.red), unit(color.green), unit(color.blue), unit(color.alpha)};
}

/// The hue's place on the circle of six edges between red, green and blue.
Color fromHue(double hue, double saturation, double brightness, double alpha) {
    const auto component = [&](double offset) {
        const double k = std::fmod(offset + hue * 6, 6);
        return brightness * (1 - saturation * std::clamp(std::min(k, 4 - k), 0.0, 1.0));
    };
    return {component(5), component(3), component(1), alpha};
}

template <Color color>
UIColor named() {
    return SimColor::make(color);
}

void store(CGFloat *place, double value) {
    if (place != nullptr) {
        *place = value;
    }
}

}  // namespace

UIColor SimColor::make(Color color) {
    auto *const made = sim::autoreleased<SimColor>();
    made->color_ = clamped(color);
    return sim::handle<UIColor>(made);
}

Color SimColor::of(UIColor color, Color missing) {
    return color != nullptr ? instance<SimColor>(color)->color_ : missing;
}

UIColor SimColor::withRGBA(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) {
    return make({red, green, blue, alpha});
}

UIColor SimColor::withWhite(CGFloat white, CGFloat alpha) {
    return make({white, white, white, alpha});
}

UIColor SimColor::withHSBA(CGFloat hue, CGFloat saturation, CGFloat brightness, CGFloat alpha) {
    return make(fromHue(hue, saturation, brightness, alpha));
}

id SimColor::initWithRGBA(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) {
    color_ = clamped({red, green, blue, alpha});
    return *this;
}

id SimColor::initWithWhite(CGFloat white, CGFloat alpha) {
    return initWithRGBA(white, white, white, alpha);
}

UIColor SimColor::colorWithAlphaComponent(CGFloat alpha) {
    return make({color_.red, color_.green, color_.blue, alpha});
}

bool SimColor::getComponents(CGFloat *red, CGFloat *green, CGFloat *blue, CGFloat *alpha) {
    store(red, color_.red);
    store(green, color_.green);
    store(blue, color_.blue);
    store(alpha, color_.alpha);
    return true;
}

bool SimColor::getWhite(CGFloat *white, CGFloat *alpha) {
    if (color_.red != color_.green || color_.green != color_.blue) {
        return false;
    }
    store(white, color_.red);
    store(alpha, color_.alpha);
    return true;
}

UIColor SimColor::cgColor() { return sim::handle<UIColor>(this); }

bool SimColor::isEqual(NSObject other) {
    return other != nullptr && other.isKindOfClass("UIColor"_cls) &&
           instance<SimColor>(other)->color_ == color_;
}

NSUInteger SimColor::hash() {
    NSUInteger mixed = 0;
    for (const double component : {color_.red, color_.green, color_.blue, color_.alpha}) {
        mixed = mixed * 31 + std::hash<double>()(component);
    }
    return mixed;
}

NSString SimColor::description() {
    return format<"UIColor %.3f %.3f %.3f %.3f">(color_.red, color_.green, color_.blue,
                                                 color_.alpha);
}

id SimColor::copyWithZone(void *) { return objc::send<id()>(id(*this), "retain"_sel); }

void SimColor::set() {
    setFill();
    setStroke();
}

void SimColor::setFill() {
    if (auto *const context = sim::GraphicsContext::current(); context != nullptr) {
        context->fill = color_;
    }
}

void SimColor::setStroke() {
    if (auto *const context = sim::GraphicsContext::current(); context != nullptr) {
        context->stroke = color_;
    }
}

void SimColor::define() {
    using objc::function;
    using objc::member;
    sim::defined(
        "UIColor",
        objc::ClassBuilder<SimColor>("UIColor", "NSObject")
            .classMethod("colorWithRed:green:blue:alpha:"_sel, function<&SimColor::withRGBA>)
            .classMethod("colorWithWhite:alpha:"_sel, function<&SimColor::withWhite>)
            .classMethod("colorWithHue:saturation:brightness:alpha:"_sel,
                         function<&SimColor::withHSBA>)
            .classMethod("clearColor"_sel, function<&named<sim::kClear>>)
            .classMethod("blackColor"_sel, function<&named<sim::kBlack>>)
            .classMethod("whiteColor"_sel, function<&named<sim::kWhite>>)
            .classMethod("darkGrayColor"_sel, function<&named<Color{1 / 3.0, 1 / 3.0, 1 / 3.0, 1}>>)
            .classMethod("lightGrayColor"_sel,
                         function<&named<Color{2 / 3.0, 2 / 3.0, 2 / 3.0, 1}>>)
            .classMethod("grayColor"_sel, function<&named<Color{0.5, 0.5, 0.5, 1}>>)
            .classMethod("redColor"_sel, function<&named<Color{1, 0, 0, 1}>>)
            .classMethod("greenColor"_sel, function<&named<Color{0, 1, 0, 1}>>)
            .classMethod("blueColor"_sel, function<&named<Color{0, 0, 1, 1}>>)
            .classMethod("cyanColor"_sel, function<&named<Color{0, 1, 1, 1}>>)
            .classMethod("yellowColor"_sel, function<&named<Color{1, 1, 0, 1}>>)
            .classMethod("magentaColor"_sel, function<&named<Color{1, 0, 1, 1}>>)
            .classMethod("orangeColor"_sel, function<&named<Color{1, 0.5, 0, 1}>>)
            .classMethod("purpleColor"_sel, function<&named<Color{0.5, 0, 0.5, 1}>>)
            .classMethod("brownColor"_sel, function<&named<Color{0.6, 0.4, 0.2, 1}>>)
            .method("initWithRed:green:blue:alpha:"_sel, member<&SimColor::initWithRGBA>)
            .method("initWithWhite:alpha:"_sel, member<&SimColor::initWithWhite>)
            .method("colorWithAlphaComponent:"_sel, member<&SimColor::colorWithAlphaComponent>)
            .method("getRed:green:blue:alpha:"_sel, member<&SimColor::getComponents>)
            .method("getWhite:alpha:"_sel, member<&SimColor::getWhite>)
            .method("CGColor"_sel, member<&SimColor::cgColor>)
            .method("isEqual:"_sel, member<&SimColor::isEqual>)
            .method("hash"_sel, member<&SimColor::hash>)
            .method("description"_sel, member<&SimColor::description>)
            .method("copyWithZone:"_sel, member<&SimColor::copyWithZone>)
            .method("set"_sel, member<&SimColor::set>)
            .method("setFill"_sel, member<&SimColor::setFill>)
            .method("setStroke"_sel, member<&SimColor::setStroke>)
            .finish());
}
