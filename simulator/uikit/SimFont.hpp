// UIFont: a font by its name on the device and its size, drawn with the font that stands in for it.
#pragma once

#include "objc/ClassBuilder.hpp"
#include "platform/UIKit.hpp"
#include "uikit/drawing/Font.hpp"

class SimFont : public objc::Instance {
  public:
    static void define();

    /// Of a label that was given no font.
    static constexpr CGFloat kDefaultPoints = 17;

    static UIFont systemFontOfSize(CGFloat points);
    static UIFont boldSystemFontOfSize(CGFloat points);
    /// Nil for a name that the device does not have.
    static UIFont withName(NSString name, CGFloat points);
    /// What any UIFont is drawn with; the system font of 17 points for nil.
    static sim::Font of(UIFont font);

    NSString fontName() const { return name_; }
    NSString familyName() const;
    CGFloat pointSize() const { return font_.points; }
    CGFloat lineHeight() const { return font_.lineHeight(); }
    CGFloat ascender() const { return font_.ascender(); }
    CGFloat descender() const { return font_.ascender() - font_.lineHeight(); }
    UIFont fontWithSize(CGFloat points);
    bool isEqual(NSObject other);
    NSUInteger hash();
    NSString description();
    id copyWithZone(void *zone);

  private:
    static UIFont make(NSString name, sim::Font font);

    objc::Owned<NSString> name_;
    sim::Font font_;
};
