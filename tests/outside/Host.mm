// A Phone application of somebody else's that loads the add-on: host LIBRARY IDENTIFIER
// on|bare|off. It prints what is not as it should be, and exits with 1 if anything was.
#include "Checks.h"

#include <dlfcn.h>
#include <objc/runtime.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

static NSString *g_identifier;
static NSString *g_case;
static int g_faults;

static NSString *bundleIdentifier(id, SEL) { return g_identifier; }

Case::Case(NSString *name) : outer_(g_case) {
    g_case = [(outer_ ? [outer_ stringByAppendingFormat:@": %@", name] : name) copy];
}

Case::~Case() {
    [g_case release];
    g_case = outer_;
}

void check(bool holds, const char *what) {
    if (!holds) {
        std::printf("not so: %s%s%s\n", g_case ? [g_case UTF8String] : "", g_case ? ": " : "",
                    what);
        ++g_faults;
    }
}

bool stands(UIView *view, CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    CGRect frame = [view frame];
    return view && frame.origin.x == x && frame.origin.y == y && frame.size.width == width &&
           frame.size.height == height;
}

bool isColor(UIColor *color, int red, int green, int blue) {
    auto is = [](CGFloat part, int expected) { return std::fabs(part * 255 - expected) < 0.01; };
    return color && is(color->red, red) && is(color->green, green) && is(color->blue, blue) &&
           color->alpha == 1;
}

bool isClear(UIView *view) {
    UIColor *color = [view backgroundColor];
    return color && color->alpha == 0;
}

double systemVersion() { return std::atof(std::getenv("OUTSIDE_SYSTEM_VERSION")); }

int main(int argc, char **argv) {
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    if (argc != 4) {
        std::fprintf(stderr, "usage: host LIBRARY IDENTIFIER on|bare|off\n");
        return 2;
    }
    bool isOn = std::strcmp(argv[3], "off") != 0;
    bool isBare = std::strcmp(argv[3], "bare") == 0;
    g_identifier = [[NSString alloc] initWithUTF8String:argv[2]];
    method_setImplementation(class_getInstanceMethod([NSBundle class], @selector(bundleIdentifier)),
                             (IMP)bundleIdentifier);
    if (!isBare) {
        addScrollViewOfCells();
    }
    if (!dlopen(argv[1], RTLD_NOW)) {
        std::fprintf(stderr, "host: %s\n", dlerror());
        return 1;
    }
    check((NSClassFromString(@"ZQDialNumberInputUIHook") != nil) == isOn, "its classes are there");
    bool showsCalls = isOn && !isNewer();
    if (systemVersion() < 7.1 || !showsCalls) {
        checkDialer(showsCalls);
    }
    checkInCall(showsCalls, systemVersion() >= 7.1);
    checkSwipe(isOn, isBare);
    checkRecents(isOn);
    checkDetails(isOn);
    [pool drain];
    return g_faults == 0 ? 0 : 1;
}
