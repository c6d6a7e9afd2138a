// The plain records of a world beside identities: people, partners, calls and answers to come.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace companion {

struct ContactNumber {
    std::string label{};   ///< 手机, 家, 公司 ...
    std::string number{};  ///< as the address book writes it
};

struct Contact {
    std::int32_t recordId = 0;
    std::string name{};
    std::vector<ContactNumber> numbers{};  ///< at least one
    std::string avatar{};                  ///< picture file; empty when there is none
    std::string wallpaper{};  ///< file of a large picture for the whole screen; may be empty
};

/// A partner business; its id is above the highest mark count, since both travel in one field.
struct Partner {
    std::int32_t id = 0;
    std::string name{};
    std::string
        icon{};  ///< where the logo is downloaded from: a picture file of the resource folder
    std::string source{};
    std::string ads = "[]";  ///< advertisement entries, a JSON array
};

/// A rule of the user's black list: one number, or every number that begins with some digits.
struct BlackListRule {
    std::string digits{};
    bool isPrefix = false;
};

/// A profile of the microblog service that a mobile number is bound to.
struct Microblog {
    std::string number{};  ///< pure number
    std::string name{};
    std::string content{};        ///< the latest entry
    std::int32_t avatarKind = 0;  ///< 1: the standard picture, no picture of the user's own
    std::int32_t boundKind = 0;   ///< 1: bound to this number
    std::string avatar{};         ///< picture file; empty when none is stored
};

/// One call of the companion's own history. Action 1 is a call that the user dialled.
struct HistoryEntry {
    std::string number{};  ///< pure number
    std::int32_t action = 0;
    double date = 0;  ///< seconds since 1970
};

/// A call that the companion stored, found again by its number and second.
struct StoredCall {
    std::string number{};  ///< pure number
    double date = 0;       ///< seconds since 1970
};

/// A row of the Phone application's recents list.
struct RecentCall {
    std::string number{};  ///< or an e-mail address; empty for a caller who hid it
    std::string name{};    ///< of the contact; empty for anybody else
    std::string label{};   ///< of the contact's number
    bool incoming = false;
    bool answered = false;
    std::optional<double> date{};  ///< seconds since 1970; may be missing

    bool operator==(const RecentCall &) const = default;
};

/// What is to be said of where a number comes from, in place of what its digits tell.
struct NumberRegion {
    std::string number{};  ///< pure number
    std::string text{};    ///< region and operator; may be empty
};

/// A picture that a world names.
struct PictureUse {
    std::string place{};  ///< in the world's file: "/contacts/0/avatar"
    std::string name{};
};

/// What the cloud says when it is asked about a number.
struct CloudAnswer {
    enum class Outcome : std::int32_t { answer = 0, error = 1, cancel = 2, never = 3 };
    std::string number{};  ///< pure number
    Outcome outcome = Outcome::answer;
    std::optional<double> delay{};  ///< seconds; without one the world's delay holds
    std::string text{};             ///< the answer as a JSON object, or the error's description
};

}  // namespace companion
