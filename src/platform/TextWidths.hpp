// Measuring text, remembered: a list that scrolls measures the same few texts over and over.
#pragma once

#include "platform/UIKit.hpp"

/// boundingWidth() and the width of lineSize(), measured once for as long as text, font and room
/// stay the same and no other texts have pushed the result out. Main thread only.
CGFloat rememberedBoundingWidth(NSString text, UIFont font, CGSize room, NSInteger options);
CGFloat rememberedLineWidth(NSString text, UIFont font);
