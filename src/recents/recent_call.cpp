// Reading the Phone application's recent calls on every system.
#include "recents/recent_call.hpp"

#include "identity/companion.hpp"
#include "platform/format.hpp"

namespace recents {
namespace {

bool isFrom(double version) { return ZQPhoneUtil::isLaterThanIOSVersion(version, true); }

template <class T, objc::Text name>
T readIfAnswered(RecentCall call, objc::Selector<name> accessor) {
    return call.respondsToSelector(accessor) ? objc::send<T()>(call, accessor) : T();
}

}  // namespace

bool RecentCall::isOfContact() const {
    if (isFrom(8.0)) {
        return readIfAnswered<int32_t>(*this, "addressBookRecordId"_sel) != 0;
    }
    if (const auto record = "addressBookRecord"_sel; respondsToSelector(record)) {
        return send<id()>(record) != nullptr;
    }
    return readIfAnswered<id>(*this, "addressBookDestination"_sel) != nullptr;
}

bool RecentCall::isIncoming() const {
    const auto status = isFrom(8.0) ? readIfAnswered<int32_t>(*this, "callStatus"_sel)
                                    : readIfAnswered<int32_t>(*this, "type"_sel);
    if (isFrom(6.0)) {
        return status == 1 || status == 4 || status == 8;
    }
    return status == 1 || status == 3;
}

NSString RecentCall::ownNumber() const {
    return isFrom(8.0) ? readIfAnswered<NSString>(*this, "callerId"_sel)
                       : readIfAnswered<NSString>(*this, "destination"_sel);
}

NSString RecentCall::number() const {
    // Put together anew: copying an immutable string would give the same object.
    const NSString own = ownNumber();
    return own ? format<"%@">(own) : nullptr;
}

}  // namespace recents
