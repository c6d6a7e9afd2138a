// The address book's own objects: a person and the list of the person's numbers. Other code makes
// and asks them by message.
#pragma once

#include <cstdint>

#include "objc/Instance.hpp"
#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"

namespace addressbook {

/// ABMultiValueRecord: values with labels, in order. Made with initWithValues:labels:, two arrays
/// of equal length; the label of a value without one is the empty text.
class MultiValue : public objc::Instance {
  public:
    id initWithValues(NSArray values, NSArray labels);

    NSUInteger count() const { return _values->count(); }
    /// Nil behind the end.
    NSObject valueAtIndex(NSUInteger index) const;
    NSObject labelAtIndex(NSUInteger index) const;
    NSArray allValues() const { return _values; }

  private:
    objc::Owned<NSArray> _values;
    objc::Owned<NSArray> _labels;
};

/// ABPersonRecord: made with initWithName:phones:, a text and an ABMultiValueRecord.
class Person : public objc::Instance {
  public:
    id initWithName(NSString name, NSObject phones);

    NSString name() const { return _name; }
    /// The phones for kABPersonPhoneProperty, nil for any other property.
    NSObject valueForProperty(int32_t property) const;

  private:
    objc::Owned<NSString> _name;
    objc::Owned<NSObject> _phones;
};

}  // namespace addressbook
