// The part of defining a class that does not depend on the C++ type.
#include "objc/ClassBuilder.hpp"

#include <bit>
#include <cstdio>

namespace objc {
namespace {

uint8_t log2(size_t alignment) { return static_cast<uint8_t>(std::countr_zero(alignment)); }

}  // namespace

ClassDefinition::ClassDefinition(const char *name, const char *superclass) {
    const Class parent = findClass(superclass);
    if (!parent) {
        return;
    }
    class_ = objc_allocateClassPair(parent, name, 0);
    end_ = class_getInstanceSize(parent);
}

ClassDefinition::~ClassDefinition() {
    if (class_) {
        objc_disposeClassPair(class_);
    }
}

void ClassDefinition::coverUpTo(size_t offset) {
    if (offset <= end_ || !class_) {
        return;
    }
    // Named by its offset: no class may repeat a name, not even one of its ancestors'.
    char name[32];
    std::snprintf(name, sizeof name, "_gap%zu", end_);
    const size_t size = offset - end_;
    sound_ = class_addIvar(class_, name, size, 0, "?") && sound_;
    end_ = offset;
}

void ClassDefinition::addIvar(const char *name, size_t offset, size_t size, size_t alignment,
                              const char *encoding) {
    if (!class_) {
        return;
    }
    if (offset >= end_ + alignment) {
        coverUpTo(offset);
    }
    // The runtime puts the variable at the next aligned byte; that has to be where C++ has it.
    const size_t placed = (end_ + alignment - 1) & ~(alignment - 1);
    sound_ =
        class_addIvar(class_, name, size, log2(alignment), encoding) && placed == offset && sound_;
    end_ = offset + size;
}

void ClassDefinition::addMethod(SEL selector, IMP implementation, const char *encoding) {
    if (class_) {
        class_addMethod(class_, selector, implementation, encoding);
    }
}

void ClassDefinition::addClassMethod(SEL selector, IMP implementation, const char *encoding) {
    if (class_) {
        class_addMethod(object_getClass(asObject(class_)), selector, implementation, encoding);
    }
}

void ClassDefinition::addSetter(const char *name, IMP implementation, const char *encoding) {
    constexpr int kLowerCaseBit = 0x20;
    char setter[64] = "set";
    char *end = setter + 3;
    *end++ = static_cast<char>(*name & ~kLowerCaseBit);
    while (*++name && end < setter + sizeof setter - 2) {
        *end++ = *name;
    }
    *end = ':';
    addMethod(sel_registerName(setter), implementation, encoding);
}

void ClassDefinition::addProtocol(const char *name) {
    const id protocol = objc_getProtocol(name);
    if (class_ && protocol) {
        class_addProtocol(class_, protocol);
    }
}

Class ClassDefinition::finish(size_t memory) {
    coverUpTo(memory);
    if (!class_ || !sound_) {
        return nullptr;
    }
    objc_registerClassPair(class_);
    return std::exchange(class_, nullptr);
}

}  // namespace objc
