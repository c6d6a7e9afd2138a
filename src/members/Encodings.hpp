// Reading the runtime's type encodings: what NSInvocation, hooks and variables go by.
#pragma once

#include <algorithm>
#include <string_view>

namespace members {

/// Takes the first type off a method's encoding, as the runtime writes it: qualifiers before a type
/// and the numbers behind it, which are places in the frame, do not count.
constexpr std::string_view takeType(std::string_view &encoding) {
    constexpr std::string_view kQualifiers = "rnNoORVA", kPointers = "^rnNoORVA",
                               kDigits = "0123456789";
    encoding.remove_prefix(std::min(encoding.find_first_not_of(kQualifiers), encoding.size()));
    size_t end = std::min(encoding.find_first_not_of(kPointers), encoding.size());
    int depth = 0;
    do {
        const char c = end < encoding.size() ? encoding[end++] : '\0';
        depth += c == '{' || c == '(' || c == '[' ? 1 : c == '}' || c == ')' || c == ']' ? -1 : 0;
    } while (depth > 0 && end < encoding.size());
    std::string_view type = encoding;
    type.remove_suffix(encoding.size() - end);
    encoding.remove_prefix(end);
    if (type.starts_with('@') && encoding.starts_with('"')) {  // a variable's class
        encoding.remove_prefix(std::min(encoding.find('"', 1), encoding.size() - 1) + 1);
    }
    encoding.remove_prefix(std::min(encoding.find_first_not_of(kDigits), encoding.size()));
    return type;
}

/// Whether a value of one type may be taken for the other: every pointer is like every other.
constexpr bool isSameType(std::string_view one, std::string_view other) {
    return one == other || (one.starts_with('^') && other.starts_with('^'));
}

/// Whether a replacement of encoding `ours` may stand in for a method of encoding `theirs`; where
/// they return nothing nobody looks at what ours returns.
constexpr bool sameEncoding(std::string_view ours, std::string_view theirs) {
    for (bool isResult = true; !ours.empty() || !theirs.empty(); isResult = false) {
        const std::string_view mine = takeType(ours), other = takeType(theirs);
        if (!isSameType(mine, other) && !(isResult && other == "v")) {
            return false;
        }
    }
    return true;
}

}  // namespace members
