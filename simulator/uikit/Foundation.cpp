// Conversions by message, so that they hold for every string and array class.
#include "uikit/Foundation.hpp"

#include <cstdlib>

#include "uikit/drawing/Utf16.hpp"

namespace sim {

std::u16string units(NSString string) {
    std::u16string result(string.length(), u'\0');
    string.getCharacters(result.data(), {0, result.size()});
    return result;
}

std::string utf8(NSString string) { return utf8(std::u16string_view(units(string))); }

NSString string(std::u16string_view units) {
    return NSString::withCharacters(units.data(), units.size());
}

NSString string(std::string_view utf8) { return string(std::u16string_view(utf16(utf8))); }

objc::Owned<NSString> copied(NSString string) {
    return objc::Owned<NSString>::adopt(objc::send<NSString()>(string, "copy"_sel));
}

NSArray array(std::span<const id> objects) {
    return objc::send<NSArray(const id *, NSUInteger)>("NSArray"_cls, "arrayWithObjects:count:"_sel,
                                                       objects.data(), objects.size());
}

void raise(NSString name, NSString reason) {
    const id exception = objc::send<id(NSString, NSString, id)>(
        "NSException"_cls, "exceptionWithName:reason:userInfo:"_sel, name, reason, nullptr);
    objc::send<void()>(exception, "raise"_sel);
    std::abort();  // raise does not come back
}

}  // namespace sim
