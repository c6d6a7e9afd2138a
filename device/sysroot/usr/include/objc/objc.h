// The basic types of the device's Objective-C runtime.
#pragma once

typedef struct objc_class *Class;
typedef struct objc_object *id;
typedef struct objc_selector *SEL;
typedef void (*IMP)(void); // called only after a cast to the method's own type

#ifdef __LP64__
typedef bool BOOL;
#else
typedef signed char BOOL;
#endif

#define YES ((BOOL)1)
#define NO ((BOOL)0)

#ifdef __cplusplus
extern "C" {
#endif

SEL sel_registerName(const char *name);
const char *sel_getName(SEL selector);
BOOL sel_isEqual(SEL left, SEL right);

#ifdef __cplusplus
}
#endif
