// From records to objects.
#include "stage/RecentCallObjects.hpp"

#include <vector>

#include "phone/recents/PHRecentCall.hpp"
#include "uikit/Foundation.hpp"

namespace stage {

NSArray recentCallObjects(std::span<const companion::RecentCall> calls) {
    std::vector<objc::Owned<NSObject>> objects;
    objects.reserve(calls.size());
    for (const companion::RecentCall &call : calls) {
        objects.push_back(phone::PHRecentCall::create({.number = call.number,
                                                       .name = call.name,
                                                       .label = call.label,
                                                       .incoming = call.incoming,
                                                       .answered = call.answered,
                                                       .date = call.date}));
    }
    return sim::array(objects);
}

}  // namespace stage
