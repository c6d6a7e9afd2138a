// CoreGraphics' structs as an Objective-C program of the processor has them.
#pragma once

#ifdef __LP64__
typedef double CGFloat;
#else
typedef float CGFloat;
#endif
struct CGPoint {
    CGFloat x, y;
    bool operator==(const CGPoint &) const = default;
};
struct CGSize {
    CGFloat width, height;
    bool operator==(const CGSize &) const = default;
};
struct CGRect {
    CGPoint origin;
    CGSize size;
    bool operator==(const CGRect &) const = default;
};
struct UIEdgeInsets {
    CGFloat top, left, bottom, right;
    bool operator==(const UIEdgeInsets &) const = default;
};
