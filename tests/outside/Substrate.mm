// A hooking framework of somebody else's: it replaces methods that the class itself has.
#import <Foundation/Foundation.h>

#include <objc/runtime.h>

extern "C" void MSHookMessageEx(Class cls, SEL selector, IMP replacement, IMP *saved) {
    Method method = class_getInstanceMethod(cls, selector);
    if (method) {
        *saved = method_getImplementation(method);
        method_setImplementation(method, replacement);
    }
}
