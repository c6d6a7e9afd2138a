// Looking uses up in the ledger while they are compiled.
#pragma once

#include <algorithm>

#include "members/Apple.hpp"
#include "members/Companion.hpp"

namespace members {

// What the add-on itself has and sends messages to all the same.
inline constexpr KnownClass kOwnClasses[] = {
    {"ZQGroupButton", "UIButton", kPublic},
    {"ZQSystemCallHistoryViewHook", "NSObject", kPublic},
};

inline constexpr Member kOwnMembers[] = {
    {"ZQGroupButton", "-setIcon:title:", "void(id, id)", kPublic},
    {"ZQGroupButton", "-setBackgroundImageWithButtonIndex:", "void(NSInteger)", kPublic},
};

constexpr bool anyMember(auto visit) {
    return std::ranges::any_of(kAppleMembers, visit) ||
           std::ranges::any_of(kCompanionMembers, visit) || std::ranges::any_of(kOwnMembers, visit);
}

/// Whether any class has a method of that name and encoding, as this processor has it.
constexpr bool isListedMethod(std::string_view selector, std::string_view encoding) {
    return anyMember([&](const Member &member) {
        return !member.isVariable() && member.selector() == selector &&
               isMethodOf(encoding, member.types, kThisAbi);
    });
}

/// Whether a function of that encoding may replace this class's method.
constexpr bool isReplaceable(std::string_view className, std::string_view selector,
                             std::string_view encoding) {
    return anyMember([&](const Member &member) {
        return member.className == className && member.selector() == selector &&
               mayReplace(encoding, member.types, kThisAbi);
    });
}

/// Whether any class has a variable of that name and encoding.
constexpr bool isListedVariable(std::string_view name, std::string_view encoding) {
    return anyMember([&](const Member &member) {
        return member.isVariable() && member.name == name &&
               isVariableOf(encoding, member.types, kThisAbi);
    });
}

constexpr bool isListedClass(std::string_view name) {
    const auto isIt = [name](const KnownClass &known) { return known.name == name; };
    return std::ranges::any_of(kAppleClasses, isIt) ||
           std::ranges::any_of(kCompanionClasses, isIt) || std::ranges::any_of(kOwnClasses, isIt);
}

}  // namespace members
