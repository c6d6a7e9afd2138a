// Looking uses up in the ledger while they are compiled.
#pragma once

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

// Every use asks while it is compiled, so that most entries are passed over by a number alone.

constexpr unsigned keyOf(std::string_view name) {
    return static_cast<unsigned>(name.size()) * 65536U +
           static_cast<unsigned char>(name[name.size() / 2]) * 256U +
           static_cast<unsigned char>(name.back());
}
constexpr unsigned keyOf(const Member &member) { return keyOf(member.selector()); }
constexpr unsigned keyOf(const KnownClass &known) { return keyOf(known.name); }

template <class Entry, size_t count>
struct Table {
    consteval explicit Table(const Entry (&all)[count]) : entries(all) {
        for (size_t i = 0; i < count; ++i) {
            keys[i] = keyOf(all[i]);
        }
    }

    constexpr bool any(unsigned key, const auto &isIt) const {
        for (size_t i = 0; i < count; ++i) {
            if (keys[i] == key && isIt(entries[i])) {
                return true;
            }
        }
        return false;
    }

    const Entry (&entries)[count];
    unsigned keys[count]{};
};

inline constexpr Table kAppleMemberTable(kAppleMembers);
inline constexpr Table kCompanionMemberTable(kCompanionMembers);
inline constexpr Table kOwnMemberTable(kOwnMembers);
inline constexpr Table kAppleClassTable(kAppleClasses);
inline constexpr Table kCompanionClassTable(kCompanionClasses);
inline constexpr Table kOwnClassTable(kOwnClasses);

constexpr bool anyMember(std::string_view selector, const auto &isIt) {
    const unsigned key = keyOf(selector);
    return kAppleMemberTable.any(key, isIt) || kCompanionMemberTable.any(key, isIt) ||
           kOwnMemberTable.any(key, isIt);
}

/// Whether any class has a method of that name and encoding, as this processor has it.
constexpr bool isListedMethod(std::string_view selector, std::string_view encoding) {
    return anyMember(selector, [&](const Member &member) {
        return !member.isVariable() && member.selector() == selector &&
               isMethodOf(encoding, member.types, kThisAbi);
    });
}

/// Whether a function of that encoding may replace this class's method.
constexpr bool isReplaceable(std::string_view className, std::string_view selector,
                             std::string_view encoding) {
    return anyMember(selector, [&](const Member &member) {
        return member.className == className && member.selector() == selector &&
               mayReplace(encoding, member.types, kThisAbi);
    });
}

/// Whether any class has a variable of that name and encoding.
constexpr bool isListedVariable(std::string_view name, std::string_view encoding) {
    return anyMember(name, [&](const Member &member) {
        return member.isVariable() && member.name == name &&
               isVariableOf(encoding, member.types, kThisAbi);
    });
}

constexpr bool isListedClass(std::string_view name) {
    const unsigned key = keyOf(name);
    const auto isIt = [name](const KnownClass &known) { return known.name == name; };
    return kAppleClassTable.any(key, isIt) || kCompanionClassTable.any(key, isIt) ||
           kOwnClassTable.any(key, isIt);
}

}  // namespace members
