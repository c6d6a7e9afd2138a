// A hooking framework of somebody else's. A class that only inherits a method gets its own, so that
// its superclass and its siblings stay as they are. No class is sent a message.
#import <Foundation/Foundation.h>
#include <objc/runtime.h>

#include "Substrate.h"

static std::multimap<std::string, void *> g_methods;

const std::multimap<std::string, void *> &hookedMethods() { return g_methods; }

extern "C" void MSHookMessageEx(Class cls, SEL selector, IMP replacement, IMP *saved) {
    Method method = class_getInstanceMethod(cls, selector);
    if (!method) {
        return;
    }
    g_methods.emplace(std::string(class_getName(cls)) + " " + sel_getName(selector),
                      (void *)replacement);
    *saved = method_getImplementation(method);
    if (!class_addMethod(cls, selector, replacement, method_getTypeEncoding(method))) {
        method_setImplementation(method, replacement);
    }
}
