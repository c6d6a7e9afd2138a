// What a line of the ledger says: a class, or a method or variable of one, as the add-on relies on
// it.
#pragma once

#include <string_view>

#include "members/Types.hpp"

namespace members {

/// Systems, as bits.
enum Systems : unsigned char {
    kIos70 = 1,
    kIos71 = 2,
    kIos80 = 4,
    kIos7 = kIos70 | kIos71,
    kEverySystem = kIos7 | kIos80,
};

/// Where it is known from.
enum class Source : unsigned char {
    Public,   // its maker's documentation
    Seen,     // lists of the classes of a phone
    Assumed,  // nothing but our own belief
};

/// A class, and one that it derives from, directly or not; empty where none is known.
struct KnownClass {
    std::string_view name, superclass;
    Source source;
    Systems systems = kEverySystem;
};

/// Whether a class implements a method itself.
enum class Has : unsigned char { Anyhow, InheritedOnly };

/// "-frame" of an instance, "+clearColor" of the class, "_table" for a variable. The class "?" is
/// one whose name is not known.
struct Member {
    std::string_view className, name, types;
    Source source;
    Systems systems = kEverySystem;
    Has has = Has::Anyhow;

    constexpr bool isVariable() const { return !name.starts_with('-') && !name.starts_with('+'); }
    constexpr bool isOfClass() const { return name.starts_with('+'); }
    constexpr std::string_view selector() const {
        std::string_view text = name;
        text.remove_prefix(isVariable() ? 0 : 1);
        return text;
    }
};

}  // namespace members
