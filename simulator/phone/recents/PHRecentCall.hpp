// One call of the recents list as the Phone application hands it around. What it can be asked
// depends on the system: iOS 8 gave the accessors new names and meanings.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "objc/Instance.hpp"
#include "objc/Owned.hpp"
#include "phone/dialer/ContactBook.hpp"
#include "platform/Foundation.hpp"

namespace phone {

struct RecentCallFacts {
    std::string number{};  ///< or an e-mail address; empty for a caller who hid it
    std::string name{};    ///< of the contact, where it is known; see PHRecentCall::create
    std::string
        label{};  ///< of the contact's number; of a stranger's: where it comes from, or empty
    bool incoming = true;
    bool answered = true;
    std::optional<double> date{};  ///< seconds since 1970
};

/// Has `date` (NSDate or nil), `type`, `destination` and `addressBookRecord`; from iOS 8 on it is a
/// CHRecentCall, which has `date`, `callStatus`, `callerId` and `addressBookRecordId`.
class PHRecentCall : public objc::Instance {
  public:
    static void define();

    /// A call on the device in use. It is a contact's when the number is in the contact book; a
    /// name that comes with a number which is not there is written into the book first.
    static objc::Owned<NSObject> create(const RecentCallFacts &facts);

    const RecentCallFacts &facts() const { return facts_; }
    bool isMissed() const { return facts_.incoming && !facts_.answered; }
    /// Null for a stranger's call; good until the book changes.
    const Contact *contact() const { return ContactBook::shared().owner(facts_.number); }

    /// Nil when unknown.
    NSDate date() const { return date_; }
    /// Nil for a caller who hid it.
    NSString number() const { return number_; }
    /// 1 answered, 8 missed, 2 dialled.
    int32_t type() const;
    uint32_t callStatus() const { return static_cast<uint32_t>(type()); }
    /// An ABPersonRecord with the contact's name and numbers; null for a stranger's call.
    const void *addressBookRecord() const;
    /// Nil for a stranger's call.
    NSString addressBookRecordId() const;

  private:
    RecentCallFacts facts_;
    objc::Owned<NSDate> date_;
    objc::Owned<NSString> number_;
};

}  // namespace phone
