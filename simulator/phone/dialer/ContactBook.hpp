// The people that the telephone's own address book holds, as far as dialer and in-call screen ask
// about them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace phone {

struct ContactNumber {
    std::string number;
    std::string label;  // "手机", "住宅"; may be empty
};

struct Contact {
    std::string name;
    std::vector<ContactNumber> numbers;
    int32_t recordId = -1;              // a negative one: the book gives the next free number
    std::filesystem::path picture{};    // shown beside the name in a call; empty for none
    std::filesystem::path wallpaper{};  // shown behind the whole in-call screen; empty for none
};

/// What the dialer shows under a number that belongs to somebody.
struct ContactMatch {
    std::string name;
    std::string label;
    bool operator==(const ContactMatch &) const = default;
};

class ContactBook {
  public:
    /// The telephone's own, one for the process; empty at first.
    static ContactBook &shared();

    void add(Contact contact);
    void clear() { contacts_.clear(); }

    /// Whose number was typed: the first contact with the same digits, whatever the grouping and
    /// with or without mainland China's country code. Nothing for a text that is no number.
    std::optional<ContactMatch> match(std::string_view typed) const;
    /// The person whose number it is by the same rules, null for nobody's; good until the book
    /// changes.
    const Contact *owner(std::string_view number) const;

  private:
    struct Entry {
        const Contact *contact = nullptr;
        const ContactNumber *number = nullptr;
    };
    Entry find(std::string_view number) const;

    std::vector<Contact> contacts_;
};

}  // namespace phone
