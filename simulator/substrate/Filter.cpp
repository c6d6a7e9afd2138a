// Reading filter files with Foundation's own property list parser.
#include "substrate/Filter.hpp"

#include <algorithm>

#include "platform/Foundation.hpp"
#include "substrate/Loader.hpp"

namespace substrate {
namespace {

NSObject parse(const std::filesystem::path &file) {
    const NSObject data = objc::send<NSObject(NSString)>(
        "NSData"_cls, "dataWithContentsOfFile:"_sel, NSString::withUTF8String(file.c_str()));
    if (!data) {
        throw LoadError(file.string() + ": cannot be read; check that it is a readable file");
    }
    id error = nullptr;
    const NSObject list = objc::send<NSObject(NSObject, NSUInteger, NSUInteger *, id *)>(
        "NSPropertyListSerialization"_cls,
        "propertyListFromData:mutabilityOption:format:errorDescription:"_sel, data, NSUInteger{0},
        nullptr, &error);
    if (!list) {
        const char *const why = NSString(error).UTF8String();
        throw LoadError(file.string() + ": is not a property list: " + (why ? why : "no content"));
    }
    return list;
}

NSObject entry(NSObject dictionary, NSString key) {
    return dictionary.isKindOfClass("NSDictionary"_cls)
               ? dictionary.as<NSDictionary>().objectForKey(key)
               : NSObject();
}

}  // namespace

Filter Filter::read(const std::filesystem::path &file) {
    const objc::AutoreleasePool pool;
    const auto bundles = entry(entry(parse(file), "Filter"_ns), "Bundles"_ns).as<NSArray>();
    if (!bundles || !bundles.isKindOfClass("NSArray"_cls)) {
        throw LoadError(file.string() +
                        ": has no list of bundles; it should read "
                        "{ Filter = { Bundles = ( \"com.example.app\" ); }; }");
    }
    Filter filter;
    for (NSUInteger i = 0; i < bundles.count(); ++i) {
        filter.bundles_.emplace_back(bundles.objectAtIndex(i).description().UTF8String());
    }
    return filter;
}

bool Filter::admits(const std::string &bundleIdentifier) const {
    return std::ranges::find(bundles_, bundleIdentifier) != bundles_.end();
}

}  // namespace substrate
