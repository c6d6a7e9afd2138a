// Matching numbers with contacts.
#include "phone/dialer/ContactBook.hpp"

#include <algorithm>
#include <cctype>

#include "phone/dialer/TypedNumber.hpp"

namespace phone {
namespace {

/// A service code such as *100# is not the number 100, nor is BANK-1 the number 1.
bool isWrittenInDigits(std::string_view text) {
    return std::ranges::none_of(text, [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte >= 0x80U || std::isalpha(byte) != 0 || c == '@' || c == '*' || c == '#';
    });
}

/// What an entry is found by: the digits of a number, the text of anything else.
std::string keyOf(std::string_view text) {
    return isWrittenInDigits(text) ? comparableDigits(text) : std::string(text);
}

}  // namespace

ContactBook &ContactBook::shared() {
    static ContactBook book;
    return book;
}

void ContactBook::add(Contact contact) {
    if (contact.recordId < 0) {
        contact.recordId = highestRecordId_ + 1;
    }
    highestRecordId_ = std::max(highestRecordId_, contact.recordId);
    for (size_t i = 0; i < contact.numbers.size(); ++i) {
        byKey_.emplace(keyOf(contact.numbers[i].number), Place{contacts_.size(), i});
    }
    contacts_.push_back(std::move(contact));
}

void ContactBook::clear() {
    contacts_.clear();
    byKey_.clear();
    highestRecordId_ = 0;
}

ContactBook::Entry ContactBook::find(std::string_view number) const {
    const std::string key = keyOf(number);
    const auto found = key.empty() ? byKey_.end() : byKey_.find(key);
    if (found == byKey_.end()) {
        return {};
    }
    const Contact &contact = contacts_[found->second.contact];
    return {&contact, &contact.numbers[found->second.number]};
}

std::optional<ContactMatch> ContactBook::match(std::string_view typed) const {
    const Entry found = find(typed);
    return found.contact ? std::optional(ContactMatch{found.contact->name, found.number->label})
                         : std::nullopt;
}

const Contact *ContactBook::owner(std::string_view number) const { return find(number).contact; }

}  // namespace phone
