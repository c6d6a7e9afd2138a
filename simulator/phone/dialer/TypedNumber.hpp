// What has been typed on the keypad, and how the telephone writes it.
#pragma once

#include <string>
#include <string_view>

namespace phone {

/// The characters typed so far, in UTF-8. Keys give digits, '*', '#' and '+'; anything else may be
/// pasted in.
class TypedNumber {
  public:
    void append(std::string_view text) { typed_ += text; }
    /// Takes the last character away; nothing happens when there is none.
    void deleteLast();
    void clear() { typed_.clear(); }

    const std::string &typed() const { return typed_; }
    bool empty() const { return typed_.empty(); }

    /// As shown: grouped the way mainland China writes numbers while they are typed. A text that is
    /// no telephone number, or too long for one, is shown as typed.
    std::string formatted() const;

  private:
    std::string typed_;
};

/// A whole number as it would be shown if it had been typed.
std::string formattedNumber(std::string_view number);

/// Only the digits of a text, without a country code of mainland China in front ("+86", "0086").
/// Two numbers with the same digits here are the same number to the address book.
std::string comparableDigits(std::string_view number);

}  // namespace phone
