// Strings go by their UTF-16 units, which every string has, well formed or not.
#include "companion/classes/Conversions.hpp"

#include "companion/numbers/Numbers.hpp"

namespace companion {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isHigh(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLow(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

void append(std::string &out, char32_t point) {
    const auto tail = [&](unsigned shift) {
        out.push_back(static_cast<char>(0x80U | ((point >> shift) & 0x3FU)));
    };
    if (point < 0x80) {
        out.push_back(static_cast<char>(point));
    } else if (point < 0x800) {
        out.push_back(static_cast<char>(0xC0U | (point >> 6U)));
        tail(0);
    } else if (point < 0x10000) {
        out.push_back(static_cast<char>(0xE0U | (point >> 12U)));
        tail(6);
        tail(0);
    } else {
        out.push_back(static_cast<char>(0xF0U | (point >> 18U)));
        tail(12);
        tail(6);
        tail(0);
    }
}

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
    result.reserve(units.size());
    for (size_t i = 0; i < units.size(); ++i) {
        char32_t point = units[i];
        if (isHigh(units[i]) && i + 1 < units.size() && isLow(units[i + 1])) {
            point = 0x10000 + ((point - 0xD800) << 10U) + (units[++i] - char32_t{0xDC00});
        } else if (isHigh(units[i]) || isLow(units[i])) {
            point = kReplacement;
        }
        append(result, point);
    }
    return result;
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
