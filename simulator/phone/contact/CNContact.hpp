// The person that a contact's detail view shows: somebody of the contact book, or a stranger made
// up for the number of one call.
#pragma once

#include <cstdint>

#include "objc/Instance.hpp"
#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"

namespace phone {

/// One number of a person: its label, and a value that has `formattedStringValue`.
class ABContactNumber : public objc::Instance {
  public:
    static void define();

    static objc::Owned<NSObject> make(NSString label, NSString formatted);
    NSString label() const { return label_; }
    NSObject value() const { return value_; }

  private:
    objc::Owned<NSString> label_;
    objc::Owned<NSObject> value_;
};

class CNContact : public objc::Instance {
  public:
    static void define();

    struct Facts {
        int32_t recordId = -1;  ///< below 0: in no address book
        NSString name;
        NSString tagline;      ///< the line under the name; may be nil
        NSArray phoneNumbers;  ///< of ABContactNumber; may be empty
    };
    static objc::Owned<NSObject> make(const Facts &facts);

    int32_t recordID() const { return recordId_; }
    NSString name() const { return name_; }
    NSString tagline() const { return tagline_; }
    NSArray phoneNumbers() const { return phoneNumbers_; }

  private:
    int32_t recordId_ = -1;
    objc::Owned<NSString> name_;
    objc::Owned<NSString> tagline_;
    objc::Owned<NSArray> phoneNumbers_;
};

}  // namespace phone
