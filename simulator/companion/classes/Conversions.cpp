// Strings go by their UTF-16 units, which every string has, well formed or not.
#include "companion/classes/Conversions.hpp"

#include <unicode/unistr.h>

#include "companion/numbers/Numbers.hpp"

namespace companion {

namespace {

class NSData : public NSObject {
  public:
    using NSObject::NSObject;
    std::string text() const {
        const auto *bytes = send<const char *()>("bytes"_sel);
        return bytes == nullptr ? std::string()
                                : std::string(bytes, send<NSUInteger()>("length"_sel));
    }
    static NSData withText(std::string_view text) {
        return objc::send<NSData(const char *, NSUInteger)>(
            "NSData"_cls, "dataWithBytes:length:"_sel, text.data(), text.size());
    }
};

constexpr NSUInteger kNoOptions = 0;

}  // namespace

std::string utf8(NSString string) {
    std::u16string units(string.length(), u'\0');
    string.getCharacters(units.data(), {0, units.size()});
    std::string result;
    return icu::UnicodeString(false, units.data(), static_cast<int32_t>(units.size()))
        .toUTF8String(result);
}

NSString string(std::string_view utf8) {
    constexpr NSUInteger kUtf8 = 4;
    return objc::Owned<NSString>::adopt(objc::send<NSString(const char *, NSUInteger, NSUInteger)>(
                                            objc::send<id()>("NSString"_cls, "alloc"_sel),
                                            "initWithBytes:length:encoding:"_sel, utf8.data(),
                                            utf8.size(), kUtf8))
        .autorelease();
}

std::string pure(NSString number) { return pureNumber(utf8(number)); }

NSDate date(double secondsSince1970) {
    return objc::send<NSDate(double)>("NSDate"_cls, "dateWithTimeIntervalSince1970:"_sel,
                                      secondsSince1970);
}

double seconds(NSDate date) { return objc::send<double()>(date, "timeIntervalSince1970"_sel); }

NSObject objectFromJson(std::string_view json) {
    return objc::send<NSObject(NSData, NSUInteger, id *)>(
        "NSJSONSerialization"_cls, "JSONObjectWithData:options:error:"_sel, NSData::withText(json),
        kNoOptions, nullptr);
}

std::string jsonFromObject(NSObject object, std::string_view fallback) {
    const Class serialization = "NSJSONSerialization"_cls;
    const bool sayable =
        object.get() != nullptr &&
        objc::send<bool(NSObject)>(serialization, "isValidJSONObject:"_sel, object);
    if (!sayable) {
        return std::string(fallback);
    }
    return objc::send<NSData(NSObject, NSUInteger, id *)>(
               serialization, "dataWithJSONObject:options:error:"_sel, object, kNoOptions, nullptr)
        .text();
}

}  // namespace companion
