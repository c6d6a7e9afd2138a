// The device's Objective-C runtime as far as the library uses it, all of it present in iOS 7.
#pragma once
#include <objc/objc.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef struct objc_method *Method;
typedef struct objc_ivar *Ivar;

Class objc_getClass(const char *name);
Class objc_lookUpClass(const char *name);
Class objc_getMetaClass(const char *name);
Class objc_allocateClassPair(Class superclass, const char *name, size_t extraBytes);
void objc_registerClassPair(Class newClass);
void objc_disposeClassPair(Class unregisteredClass);

const char *class_getName(Class queried);
Class class_getSuperclass(Class queried);
BOOL class_isMetaClass(Class queried);
size_t class_getInstanceSize(Class queried);
Ivar class_getInstanceVariable(Class queried, const char *name);
Method class_getInstanceMethod(Class queried, SEL selector);
Method class_getClassMethod(Class queried, SEL selector);
IMP class_getMethodImplementation(Class queried, SEL selector);
BOOL class_respondsToSelector(Class queried, SEL selector);
BOOL class_addIvar(Class target, const char *name, size_t size, uint8_t alignmentLog2,
                   const char *types);
BOOL class_addMethod(Class target, SEL selector, IMP implementation, const char *types);
id class_createInstance(Class instantiated, size_t extraBytes);

id object_dispose(id object);
Class object_getClass(id object);
const char *object_getClassName(id object);
id object_getIvar(id object, Ivar variable);
void object_setIvar(id object, Ivar variable, id value);
Ivar object_getInstanceVariable(id object, const char *name, void **value);

const char *ivar_getName(Ivar variable);
ptrdiff_t ivar_getOffset(Ivar variable);
const char *ivar_getTypeEncoding(Ivar variable);

SEL method_getName(Method method);
IMP method_getImplementation(Method method);
IMP method_setImplementation(Method method, IMP implementation);
const char *method_getTypeEncoding(Method method);

#ifdef __cplusplus
}
#endif
