// Reading the Phone application's recent calls on every system.
#include "recents/RecentCall.hpp"

#include "companion/companion.hpp"
#include "platform/format.hpp"

namespace recents {

using ios::isFrom;

bool RecentCall::isOfContact() const {
    if (isFrom(8.0)) {
        return ifKnown<int32_t>(*this, "addressBookRecordId"_sel) != 0;
    }
    if (const auto record = "addressBookRecord"_sel; respondsToSelector(record)) {
        return send<id()>(record) != nullptr;
    }
    return ifKnown<id>(*this, "addressBookDestination"_sel) != nullptr;
}

bool RecentCall::isIncoming() const {
    const auto status = isFrom(8.0) ? ifKnown<int32_t>(*this, "callStatus"_sel)
                                    : ifKnown<int32_t>(*this, "type"_sel);
    if (isFrom(6.0)) {
        return status == 1 || status == 4 || status == 8;
    }
    return status == 1 || status == 3;
}

NSString RecentCall::ownNumber() const {
    return isFrom(8.0) ? ifKnown<NSString>(*this, "callerId"_sel)
                       : ifKnown<NSString>(*this, "destination"_sel);
}

NSString RecentCall::number() const {
    // Put together anew: copying an immutable string would give the same object.
    const NSString own = ownNumber();
    return own ? format<"%@">(own) : nullptr;
}

}  // namespace recents
