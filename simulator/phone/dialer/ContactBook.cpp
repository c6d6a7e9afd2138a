// Matching typed numbers with contacts.
#include "phone/dialer/ContactBook.hpp"

#include "phone/dialer/TypedNumber.hpp"

namespace phone {

ContactBook &ContactBook::shared() {
    static ContactBook book;
    return book;
}

std::optional<ContactMatch> ContactBook::match(std::string_view typed) const {
    // A service code such as *100# is not the number 100.
    const std::string digits = comparableDigits(typed);
    if (digits.empty() || typed.find_first_not_of("+0123456789 -()") != std::string_view::npos) {
        return std::nullopt;
    }
    for (const Contact &contact : contacts_) {
        for (const ContactNumber &entry : contact.numbers) {
            if (comparableDigits(entry.number) == digits) {
                return ContactMatch{contact.name, entry.label};
            }
        }
    }
    return std::nullopt;
}

}  // namespace phone
