// Reading the Phone application's recent calls on every system.
#include "recents/RecentCall.hpp"

#include "platform/Format.hpp"

namespace recents {

bool RecentCall::isOfContact(bool from80) const {
    if (from80) {
        // A text on some systems and a number on others, of which only the lower half is certain.
        const auto identifier = "addressBookRecordId"_sel;
        return returnsObject(*this, identifier) ? send<id()>(identifier) != nullptr
                                                : ifKnown<int32_t>(*this, identifier) != 0;
    }
    if (const auto record = "addressBookRecord"_sel; respondsToSelector(record)) {
        return send<const void *()>(record) != nullptr;
    }
    return ifKnown<id>(*this, "addressBookDestination"_sel) != nullptr;
}

bool RecentCall::isIncoming(bool from80) const {
    const auto status = from80 ? static_cast<int32_t>(ifKnown<uint32_t>(*this, "callStatus"_sel))
                               : ifKnown<int32_t>(*this, "type"_sel);
    if (ios::isFrom(6.0)) {
        return status == 1 || status == 4 || status == 8;
    }
    return status == 1 || status == 3;
}

NSString RecentCall::ownNumber(bool from80) const {
    return from80 ? ifKnown<NSString>(*this, "callerId"_sel)
                  : ifKnown<NSString>(*this, "destination"_sel);
}

NSString RecentCall::number(bool from80) const {
    // Put together anew: copying an immutable string would give the same object.
    const NSString own = ownNumber(from80);
    return own ? format<"%@">(own) : nullptr;
}

}  // namespace recents
