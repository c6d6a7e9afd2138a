// ZQNumberIdentity: one number's identity as it travels between the companion and its callers.
#pragma once

#include <cstdint>
#include <string>

#include "companion/world/Identity.hpp"
#include "objc/Instance.hpp"
#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"

extern "C" {
/// The keys of a brand's name and of the path of its logo file in brandInfo.
extern NSString kZQBrandServiceBrandNameKey;
extern NSString kZQBrandServiceBrandLogoPathKey;
}

namespace companion {

/// Everything may be read and written from outside; a new one is empty, its texts nil.
class ZQNumberIdentity : public objc::Instance {
  public:
    static Class define();

    /// An autoreleased object for a record.
    static ZQNumberIdentity *withRecord(const Identity &record);
    /// The record of an object; its number in pure form, its origin that of a stored answer.
    Identity record() const;

    objc::Owned<NSString> _number;
    objc::Owned<NSString> _identity;
    std::int32_t _type = 0;
    objc::Owned<NSString> _source;
    std::int32_t _numOfMark = 0;
    objc::Owned<NSAttributedString> _attriNumInfo;
    float _rating = 0;
    std::int32_t _cloudDataType = 0;
    objc::Owned<NSDictionary> _brandInfo;
};

}  // namespace companion
