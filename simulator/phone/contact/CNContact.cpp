// Persons of the detail view and their numbers.
#include "phone/contact/CNContact.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

/// A telephone number as an object.
class PhoneNumberValue : public objc::Instance {
  public:
    NSString formatted() const { return formatted_; }
    void setFormatted(NSString text) { formatted_ = sim::copied(text); }

  private:
    objc::Owned<NSString> formatted_;
};

}  // namespace

void ABContactNumber::define() {
    using objc::member;
    sim::defined("ABPhoneNumberValue",
                 objc::ClassBuilder<PhoneNumberValue>("ABPhoneNumberValue", "NSObject")
                     .method("formattedStringValue"_sel, member<&PhoneNumberValue::formatted>)
                     .finish());
    sim::defined("ABContactNumber",
                 objc::ClassBuilder<ABContactNumber>("ABContactNumber", "NSObject")
                     .method("label"_sel, member<&ABContactNumber::label>)
                     .method("value"_sel, member<&ABContactNumber::value>)
                     .finish());
}

objc::Owned<NSObject> ABContactNumber::make(NSString label, NSString formatted) {
    auto value = objc::make<PhoneNumberValue>();
    value->setFormatted(formatted);
    auto number = objc::make<ABContactNumber>();
    number->label_ = sim::copied(label);
    number->value_ = std::move(value).as<NSObject>();
    return std::move(number).as<NSObject>();
}

void CNContact::define() {
    using objc::member;
    using Self = CNContact;
    sim::defined("CNContact", objc::ClassBuilder<Self>("CNContact", "NSObject")
                                  .method("recordID"_sel, member<&Self::recordID>)
                                  .method("name"_sel, member<&Self::name>)
                                  .method("tagline"_sel, member<&Self::tagline>)
                                  .method("phoneNumbers"_sel, member<&Self::phoneNumbers>)
                                  .finish());
}

objc::Owned<NSObject> CNContact::make(const Facts &facts) {
    auto contact = objc::make<CNContact>();
    contact->recordId_ = facts.recordId;
    contact->name_ = sim::copied(facts.name);
    contact->tagline_ = sim::copied(facts.tagline);
    contact->phoneNumbers_ = objc::Owned<NSArray>::share(facts.phoneNumbers);
    return std::move(contact).as<NSObject>();
}

}  // namespace phone
