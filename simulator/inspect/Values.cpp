// Objects are told by walking up their classes, so that nothing that is watched gets a message.
#include "inspect/Values.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include <ffi.h>

#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"
#include "substrate/RuntimeMethods.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/ViewTree.hpp"
#include "uikit/drawing/Utf16.hpp"

namespace inspect {
namespace {

template <class T>
T at(const void *place) {
    T value;
    std::memcpy(&value, place, sizeof(T));
    return value;
}

bool isA(id object, Class wanted) {
    Class cls = object_getClass(object);
    while (cls != nullptr && cls != wanted) {
        cls = class_getSuperclass(cls);
    }
    return cls != nullptr;
}

std::string quoted(NSString text) {
    constexpr NSUInteger kLongest = 60;
    std::u16string units = sim::units(text);
    const bool isCut = units.size() > kLongest;
    units.resize(std::min<std::size_t>(units.size(), kLongest));
    return '"' + sim::utf8(std::u16string_view(units)) + (isCut ? "…\"" : "\"");
}

bool isClassItself(id object) {
    const Class cls = object_getClass(object);
    return cls != nullptr && class_isMetaClass(cls) != 0;
}

std::string shownObject(id object) {
    if (object == nullptr) {
        return "nil";
    }
    if (isClassItself(object)) {
        return class_getName(reinterpret_cast<Class>(object));
    }
    const objc::AutoreleasePool pool;
    if (isA(object, "NSString"_cls)) {
        return quoted(NSString(object));
    }
    if (isA(object, "NSNumber"_cls)) {
        return sim::utf8(objc::send<NSString()>(object, "stringValue"_sel));
    }
    return '<' + std::string(class_getName(object_getClass(object))) + '>';
}

/// Structs of numbers, which is what the telephone's are; none of them has gaps.
std::string shownStruct(const std::string &code, const void *place) {
    std::string text;
    const auto *next = static_cast<const char *>(place);
    const auto add = [&]<class Number>(Number number) {
        text += (text.empty() ? "(" : ", ") + sim::trimmedNumber(static_cast<double>(number));
        next += sizeof(Number);
    };
    for (std::size_t i = code.find('=') + 1; i < code.size(); ++i) {
        switch (code[i]) {
        case '{':
            i = code.find('=', i);
            break;
        case '}':
            break;
        case 'd':
            add(at<double>(next));
            break;
        case 'f':
            add(at<float>(next));
            break;
        case 'q':
        case 'Q':
        case 'l':
        case 'L':
            add(at<long>(next));
            break;
        default:
            return "a struct";
        }
    }
    return text + ")";
}

std::string shownText(const char *text) {
    return text == nullptr ? "nil" : '"' + std::string(text) + '"';
}

/// The runtime's BOOL travels as a character.
std::string shownInteger(char code, std::int64_t value) {
    const bool isTruth = code == 'B' || code == 'C' || code == 'c';
    return !isTruth ? std::to_string(value) : value != 0 ? "YES" : "NO";
}

std::string shownSelector(SEL selector) {
    return selector == nullptr ? "nil" : sel_getName(selector);
}

/// What has the same form as an argument and as a result; empty for integers.
std::string shownOther(const std::string &code, const void *place) {
    switch (code.front()) {
    case '@':
        return shownObject(at<id>(place));
    case '#':
        return shownObject(objc::asObject(at<Class>(place)));
    case ':':
        return shownSelector(at<SEL>(place));
    case '*':
        return shownText(at<const char *>(place));
    case '^':
        return at<const void *>(place) == nullptr ? "nil" : "a pointer";
    case 'f':
        return sim::trimmedNumber(at<float>(place));
    case 'd':
        return sim::trimmedNumber(at<double>(place));
    case '{':
        return shownStruct(code, place);
    default:
        return {};
    }
}

std::int64_t argumentInteger(char code, const void *place) {
    switch (code) {
    case 'c':
        return at<signed char>(place);
    case 'B':
    case 'C':
        return at<unsigned char>(place);
    case 's':
        return at<std::int16_t>(place);
    case 'S':
        return at<std::uint16_t>(place);
    case 'i':
        return at<std::int32_t>(place);
    case 'I':
        return at<std::uint32_t>(place);
    default:
        return at<std::int64_t>(place);
    }
}

}  // namespace

std::string shownArgument(const std::string &code, const void *place) {
    const std::string other = shownOther(code, place);
    return other.empty() ? shownInteger(code.front(), argumentInteger(code.front(), place)) : other;
}

std::string shownResult(const std::string &code, const void *place) {
    if (code == "v") {
        return {};
    }
    const std::string other = shownOther(code, place);
    return other.empty() ? shownInteger(code.front(), static_cast<std::int64_t>(at<ffi_arg>(place)))
                         : other;
}

}  // namespace inspect
