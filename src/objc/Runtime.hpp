// The Objective-C runtime as plain C: the types and the few functions the bridge calls. Declared
// here rather than included, because the same declarations serve Apple's runtime and GCC's, and no
// Objective-C header is needed to build for either.
#pragma once

#include <cstddef>
#include <cstdint>

struct objc_class;
struct objc_selector;
struct objc_method;
struct objc_ivar;

#if defined(__APPLE__)
struct objc_object;
#else
struct objc_object {
    objc_class *class_pointer;
};
#endif

using id = objc_object *;
using Class = objc_class *;
using SEL = const objc_selector *;
using IMP = void (*)();
using Method = objc_method *;
using Ivar = objc_ivar *;

// BOOL is whatever the runtime compiled it as; it is never wider than one byte.
#if defined(__APPLE__) && defined(__LP64__)
using BOOL = bool;
#elif defined(__APPLE__)
using BOOL = signed char;
#else
using BOOL = unsigned char;
#endif

extern "C" {
#if defined(__APPLE__)
void objc_msgSend();
#if defined(__arm__)
void objc_msgSend_stret();
IMP class_getMethodImplementation_stret(Class cls, SEL selector);
#endif
Class object_getClass(id object);
#else
IMP objc_msg_lookup(id receiver, SEL selector);
inline Class object_getClass(id object) { return object ? object->class_pointer : nullptr; }
#endif

#if defined(__APPLE__)
id objc_getClass(const char *name);
#else
Class objc_getClass(const char *name);
#endif

SEL sel_registerName(const char *name);
const char *sel_getName(SEL selector);

const char *class_getName(Class cls);
Class class_getSuperclass(Class cls);
size_t class_getInstanceSize(Class cls);
Method class_getInstanceMethod(Class cls, SEL selector);
IMP class_getMethodImplementation(Class cls, SEL selector);
const char *method_getTypeEncoding(Method method);
Ivar class_getInstanceVariable(Class cls, const char *name);
ptrdiff_t ivar_getOffset(Ivar ivar);
const char *ivar_getTypeEncoding(Ivar ivar);

Class objc_allocateClassPair(Class superclass, const char *name, size_t extraBytes);
void objc_registerClassPair(Class cls);
void objc_disposeClassPair(Class cls);
BOOL class_addIvar(Class cls, const char *name, size_t size, uint8_t log2Alignment,
                   const char *encoding);
BOOL class_addMethod(Class cls, SEL selector, IMP implementation, const char *encoding);
id objc_getProtocol(const char *name);
BOOL class_addProtocol(Class cls, id protocol);

int objc_sync_enter(id object);
int objc_sync_exit(id object);
}

namespace objc {

/// The class registered under `name`, or nil: asked of the runtime anew at every call.
inline Class findClass(const char *name) {
#if defined(__APPLE__)
    return reinterpret_cast<Class>(objc_getClass(name));
#else
    return objc_getClass(name);
#endif
}

/// A class seen as the object it is, so that it can receive messages.
inline id asObject(Class cls) { return reinterpret_cast<id>(cls); }

}  // namespace objc
