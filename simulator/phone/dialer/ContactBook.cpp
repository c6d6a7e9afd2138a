// Matching numbers with contacts.
#include "phone/dialer/ContactBook.hpp"

#include <algorithm>

#include "phone/dialer/TypedNumber.hpp"

namespace phone {

ContactBook &ContactBook::shared() {
    static ContactBook book;
    return book;
}

void ContactBook::add(Contact contact) {
    if (contact.recordId < 0) {
        for (const Contact &known : contacts_) {
            contact.recordId = std::max(contact.recordId, known.recordId);
        }
        ++contact.recordId;
    }
    contacts_.push_back(std::move(contact));
}

ContactBook::Entry ContactBook::find(std::string_view number) const {
    // A service code such as *100# is not the number 100.
    const std::string digits = comparableDigits(number);
    if (digits.empty() || number.find_first_not_of("+0123456789 -()") != std::string_view::npos) {
        return {};
    }
    for (const Contact &contact : contacts_) {
        for (const ContactNumber &entry : contact.numbers) {
            if (comparableDigits(entry.number) == digits) {
                return {&contact, &entry};
            }
        }
    }
    return {};
}

std::optional<ContactMatch> ContactBook::match(std::string_view typed) const {
    const Entry found = find(typed);
    return found.contact ? std::optional(ContactMatch{found.contact->name, found.number->label})
                         : std::nullopt;
}

const Contact *ContactBook::owner(std::string_view number) const { return find(number).contact; }

}  // namespace phone
