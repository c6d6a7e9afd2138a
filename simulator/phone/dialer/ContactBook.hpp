// The people that the telephone's own address book holds, as far as the dialer asks about them.
#pragma once

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

    void add(Contact contact) { contacts_.push_back(std::move(contact)); }
    void clear() { contacts_.clear(); }

    /// Whose number was typed: the first contact with the same digits, whatever the grouping and
    /// with or without mainland China's country code. Nothing for a text that is no number.
    std::optional<ContactMatch> match(std::string_view typed) const;

  private:
    std::vector<Contact> contacts_;
};

}  // namespace phone
