// UIScreen: the one screen, upright.
#pragma once

#include "objc/ClassBuilder.hpp"
#include "platform/UIKit.hpp"

class SimScreen : public objc::Instance {
  public:
    static void define();

    /// Made on first use, kept for the life of the process.
    static SimScreen *main();

    CGRect bounds() const;
    /// Without the status bar's 20 points.
    CGRect applicationFrame() const;
    CGFloat scale() const;
};
