// The people that the telephone's own address book holds, as far as its screens ask about them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace phone {

struct ContactNumber {
    std::string number;  // or an e-mail address
    std::string label;   // "手机", "住宅"; may be empty
};

struct Contact {
    std::string name;
    std::vector<ContactNumber> numbers;
    int32_t recordId = -1;              // below 0: the book gives the next free one, from 1 on
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
    void clear();
    /// In the order in which they were added.
    const std::vector<Contact> &all() const { return contacts_; }

    /// Whose number was typed: the first contact with the same digits, whatever the grouping and
    /// with or without mainland China's country code. A text that is no number has to be an entry
    /// as it is.
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

    struct Place {
        size_t contact;
        size_t number;
    };

    std::vector<Contact> contacts_;
    std::unordered_map<std::string, Place> byKey_;
    int32_t highestRecordId_ = 0;
};

}  // namespace phone
