// A Phone application of somebody else's that loads the add-on: host LIBRARY IDENTIFIER on|off. It
// prints what is not as it should be, and exits with 1 if anything was.
#include "Checks.h"

#include <dlfcn.h>
#include <objc/runtime.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

static NSString *g_identifier;
static int g_faults;

static NSString *bundleIdentifier(id, SEL) { return g_identifier; }

void check(bool holds, const char *what) {
    if (!holds) {
        std::printf("not so: %s\n", what);
        ++g_faults;
    }
}

bool stands(UIView *view, CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    CGRect frame = [view frame];
    return view && frame.origin.x == x && frame.origin.y == y && frame.size.width == width &&
           frame.size.height == height;
}

int main(int argc, char **argv) {
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    if (argc != 4) {
        std::fprintf(stderr, "usage: host LIBRARY IDENTIFIER on|off\n");
        return 2;
    }
    g_identifier = [[NSString alloc] initWithUTF8String:argv[2]];
    method_setImplementation(
        class_getInstanceMethod([NSBundle class], @selector(bundleIdentifier)),
        (IMP)bundleIdentifier);
    if (!dlopen(argv[1], RTLD_NOW)) {
        std::fprintf(stderr, "host: %s\n", dlerror());
        return 1;
    }
    bool isOn = std::strcmp(argv[3], "on") == 0;
    check((NSClassFromString(@"ZQDialNumberInputUIHook") != nil) == isOn, "its classes are there");
    bool is71 = std::atof(std::getenv("OUTSIDE_SYSTEM_VERSION")) >= 7.1;
    if (!is71) {
        checkDialer(isOn);
    }
    checkInCall(isOn, is71);
    [pool drain];
    return g_faults == 0 ? 0 : 1;
}
