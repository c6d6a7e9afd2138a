// The types of other people's methods and variables, written as their headers would have them, and
// the encodings that a runtime gives them: "void(CGRect, BOOL)" for a method, "CGFloat" for a
// variable. Objects of every class are "id" here.
#pragma once

#include <string_view>

#include "members/Encodings.hpp"

namespace members {

/// How a processor and its runtime have the types that differ.
struct Abi {
    bool isWide;       // pointers, NSInteger and CGFloat have 64 bits
    char booleanCode;  // of BOOL
};

inline constexpr Abi kArmv7{.isWide = false, .booleanCode = 'c'};
inline constexpr Abi kArm64{.isWide = true, .booleanCode = 'B'};
#if !defined(__APPLE__)
inline constexpr Abi kThisAbi{.isWide = sizeof(void *) == 8, .booleanCode = 'C'};
#elif defined(__LP64__)
inline constexpr Abi kThisAbi = kArm64;
#else
inline constexpr Abi kThisAbi = kArmv7;
#endif

/// A type by name, on a narrow processor and on a wide one.
struct TypeName {
    std::string_view name, narrow, wide;
};

inline constexpr std::string_view kBoolean = "BOOL";

inline constexpr TypeName kTypeNames[] = {
    {"id", "@", "@"},
    {"void", "v", "v"},
    {kBoolean, "", ""},
    {"CGFloat", "f", "d"},
    {"CGRect", "{CGRect={CGPoint=ff}{CGSize=ff}}", "{CGRect={CGPoint=dd}{CGSize=dd}}"},
    {"NSInteger", "i", "q"},
    {"NSUInteger", "I", "Q"},
#if defined(__APPLE__)
    {"NSStringEncoding", "I", "Q"},
#else
    {"NSStringEncoding", "I", "I"},
#endif
    {"int", "i", "i"},
    {"unsigned", "I", "I"},
    {"float", "f", "f"},
    {"double", "d", "d"},
    {"Class", "#", "#"},
    {"SEL", ":", ":"},
    {"CGPoint", "{CGPoint=ff}", "{CGPoint=dd}"},
    {"CGSize", "{CGSize=ff}", "{CGSize=dd}"},
    {"UIEdgeInsets", "{UIEdgeInsets=ffff}", "{UIEdgeInsets=dddd}"},
    {"NSRange", "{_NSRange=II}", "{_NSRange=QQ}"},
    {"char *", "*", "*"},
    {"void *", "^v", "^v"},
    {"id *", "^@", "^@"},
    {"unichar *", "^S", "^S"},
    {"CGPoint *", "^{CGPoint=ff}", "^{CGPoint=dd}"},
};

/// The encoding of one type; empty for a name that is not listed.
constexpr std::string_view encodingOf(std::string_view name, const Abi &abi) {
    if (name == kBoolean) {
        return {&abi.booleanCode, 1};
    }
    for (const TypeName &type : kTypeNames) {
        if (type.name == name) {
            return abi.isWide ? type.wide : type.narrow;
        }
    }
    return {};
}

/// Takes the first type's name off "CGRect(id, BOOL)", and what parts it from the next.
constexpr std::string_view takeName(std::string_view &types) {
    const size_t end = std::min(types.find_first_of("(,)"), types.size());
    std::string_view name = types;
    name.remove_suffix(types.size() - end);
    types.remove_prefix(end);
    types.remove_prefix(std::min(types.find_first_not_of("(,) "), types.size()));
    return name;
}

/// Takes the same type off both; false where they begin with different ones.
constexpr bool takeSame(std::string_view &encoding, std::string_view &types, const Abi &abi) {
    const std::string_view code = encodingOf(takeName(types), abi);
    return isSameType(takeType(encoding), code);
}

/// Whether `encoding` is what the runtime says of a variable of this type.
constexpr bool isVariableOf(std::string_view encoding, std::string_view type, const Abi &abi) {
    return takeSame(encoding, type, abi) && encoding.empty();
}

constexpr bool areArgumentsOf(std::string_view encoding, std::string_view types, const Abi &abi) {
    bool isSame = takeType(encoding) == "@" && takeType(encoding) == ":";
    while (isSame && !types.empty()) {
        isSame = takeSame(encoding, types, abi);
    }
    return isSame && encoding.empty();
}

/// Whether `encoding` is what the runtime says of a method of these types.
constexpr bool isMethodOf(std::string_view encoding, std::string_view types, const Abi &abi) {
    return takeSame(encoding, types, abi) && areArgumentsOf(encoding, types, abi);
}

/// Whether a function of that encoding may take such a method's place: where the method returns
/// nothing, nobody looks at what the function returns.
constexpr bool mayReplace(std::string_view encoding, std::string_view types, const Abi &abi) {
    const bool isNothing = types.starts_with("void(");
    return (takeSame(encoding, types, abi) || isNothing) && areArgumentsOf(encoding, types, abi);
}

}  // namespace members
