// What the host checks with: faults are printed and counted.
#pragma once

#import "UIKit.h"

#include <initializer_list>

inline NSArray *list(std::initializer_list<id> objects) {
    return [NSArray arrayWithObjects:objects.begin() count:objects.size()];
}

inline NSNumber *number(int value) { return [NSNumber numberWithInt:value]; }

void check(bool holds, const char *what);
bool stands(UIView *view, CGFloat x, CGFloat y, CGFloat width, CGFloat height);
bool isColor(UIColor *color, int red, int green, int blue);
bool isClear(UIView *view);

inline bool isText(id text, NSString *expected) {
    return text == expected || [text isEqual:expected];
}

/// The case that faults are printed with, as long as it lives.
class Case {
  public:
    explicit Case(NSString *name);
    ~Case();
    Case(const Case &) = delete;
    Case &operator=(const Case &) = delete;

  private:
    NSString *outer_;
};

template <typename Work>
bool isQuiet(Work work) {
    try {
        work();
        return true;
    } catch (...) {
        return false;
    }
}

double systemVersion();
inline bool isNewer() { return systemVersion() >= 8; }

/// The checks of one screen, with the add-on loaded or kept out; the dialer's are those of 7.0.
void checkDialer(bool isOn);
void checkInCall(bool isOn, bool is71);
void checkRecents(bool isOn);
void checkDetails(bool isOn);
/// Comes before the others that show recent calls. A bare system lacks the cells' scroll view.
void checkSwipe(bool isOn, bool isBare);
/// The class of that scroll view, which has to be there before the add-on comes.
void addScrollViewOfCells();
