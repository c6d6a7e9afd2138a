// CoreGraphics' structs as an Objective-C program of the host has them.
#pragma once

typedef double CGFloat;
struct CGPoint {
    CGFloat x, y;
};
struct CGSize {
    CGFloat width, height;
};
struct CGRect {
    CGPoint origin;
    CGSize size;
};
struct UIEdgeInsets {
    CGFloat top, left, bottom, right;
};
