// UIColor: four sRGB components, never changed once made.
#pragma once

#include "objc/ClassBuilder.hpp"
#include "platform/UIKit.hpp"
#include "uikit/drawing/Color.hpp"

class SimColor : public objc::Instance {
  public:
    static void define();

    /// A new autoreleased colour.
    static UIColor make(sim::Color color);
    /// The components of any UIColor; `missing` for nil.
    static sim::Color of(UIColor color, sim::Color missing = sim::kClear);

    static UIColor withRGBA(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha);
    static UIColor withWhite(CGFloat white, CGFloat alpha);
    static UIColor withHSBA(CGFloat hue, CGFloat saturation, CGFloat brightness, CGFloat alpha);

    id initWithRGBA(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha);
    id initWithWhite(CGFloat white, CGFloat alpha);
    UIColor colorWithAlphaComponent(CGFloat alpha);
    /// Any of the four may be null. Always YES.
    bool getComponents(CGFloat *red, CGFloat *green, CGFloat *blue, CGFloat *alpha);
    /// YES for greys only.
    bool getWhite(CGFloat *white, CGFloat *alpha);
    UIColor cgColor();
    bool isEqual(NSObject other);
    NSUInteger hash();
    NSString description();
    id copyWithZone(void *zone);
    // The current drawing's colours, inside drawRect:.
    void set();
    void setFill();
    void setStroke();

  private:
    sim::Color color_;
};
