// Looking variables up, and reading numbers by the width that they have.
#include "objc/Ivar.hpp"

#include "members/Encodings.hpp"

namespace objc {
namespace {

template <class Stored>
Stored stored(id object, VariablePlace place) {
    Stored value;
    std::memcpy(&value, reinterpret_cast<const char *>(object) + place.offset, sizeof value);
    return value;
}

/// The letter of an integer that many bytes wide.
char letterOf(size_t width) { return width == 1 ? 'c' : width == 2 ? 's' : width == 4 ? 'i' : 'q'; }

}  // namespace

VariablePlace VariableFinder::find(Class cls) {
    for (Known &known : known_) {
        const Class knownClass = known.cls.load(std::memory_order_acquire);
        if (knownClass == cls) [[likely]] {
            return known.place;
        }
        if (!knownClass) {
            return remember(known, cls);
        }
    }
    return search(cls);
}

VariablePlace VariableFinder::search(Class cls) const {
    const Ivar variable = class_getInstanceVariable(cls, name_);
    if (!variable) {
        return {};
    }
    const char *const text = ivar_getTypeEncoding(variable);
    std::string_view encoding = text ? text : "";
    const std::string_view type = members::takeType(encoding);
    return {.offset = ivar_getOffset(variable), .type = type.empty() ? '?' : type.front()};
}

VariablePlace VariableFinder::remember(Known &known, Class cls) const {
    const VariablePlace found = search(cls);
    if (!known.taken.exchange(true, std::memory_order_relaxed)) {
        known.place = found;
        known.cls.store(cls, std::memory_order_release);
    }
    return found;
}

int64_t integerAt(id object, VariablePlace place, size_t width) {
    switch (place.type == '?' ? letterOf(width) : place.type) {
    case 'c':
        return stored<int8_t>(object, place);
    case 'B':
    case 'C':
        return stored<uint8_t>(object, place);
    case 's':
        return stored<int16_t>(object, place);
    case 'S':
        return stored<uint16_t>(object, place);
    case 'i':
    case 'l':  // a long of 64 bits is a 'q'
        return stored<int32_t>(object, place);
    case 'I':
    case 'L':
        return stored<uint32_t>(object, place);
    case 'q':
    case 'Q':
        return stored<int64_t>(object, place);
    default:
        return 0;
    }
}

double floatingAt(id object, VariablePlace place, size_t width) {
    switch (place.type == '?' && width == sizeof(float) ? 'f' : place.type) {
    case 'f':
        return double{stored<float>(object, place)};
    case 'd':
    case '?':
        return stored<double>(object, place);
    default:
        return 0;
    }
}

}  // namespace objc
