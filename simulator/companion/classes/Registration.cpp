// Makes the companion's classes and data symbols known as soon as the library is mapped.
#include <cstdio>
#include <cstdlib>

#include "companion/classes/CallRecords.hpp"
#include "companion/classes/Conversions.hpp"
#include "companion/classes/Services.hpp"
#include "companion/classes/Utilities.hpp"
#include "companion/classes/ZQIPCService.hpp"
#include "companion/classes/ZQNumberIdentity.hpp"
#include "companion/classes/ZQNumberIdentityService.hpp"
#include "companion/classes/ZQPartnerItem.hpp"
#include "companion/classes/ZQPartnerManager.hpp"
#include "companion/classes/ZQPhoneNumber.hpp"
#include "companion/classes/ZQWeiboService.hpp"

extern "C" {
constinit NSString kZQBrandServiceBrandNameKey;
constinit NSString kZQBrandServiceBrandLogoPathKey;
}

namespace companion {

namespace {

template <class... Classes>
bool defineAll() {
    return ((Classes::define() != nullptr) && ...);
}

__attribute__((constructor)) void defineClasses() {
    const objc::AutoreleasePool pool;
    kZQBrandServiceBrandNameKey = "kZQBrandServiceBrandNameKey"_ns;
    kZQBrandServiceBrandLogoPathKey = "kZQBrandServiceBrandLogoPathKey"_ns;
    const bool records = defineAll<ZQNumberIdentity, ZQPartnerItem, ZQCallRecord,
                                   ZQSystemHistoryRecord, ZQWeiboProfile, ZQPhoneNumber>();
    const bool services =
        defineAll<ZQNumberIdentityService, ZQContactService, ZQCallRecordService,
                  ZQSystemHistoryService, ZQBlackListService, ZQWeiboService, ZQPartnerManager,
                  ZQPingBackService, ZQPreference, ZQIPCService>();
    const bool helpers =
        defineAll<ZQPhoneNumberHelper, ZQUIUtil, ZQPhoneUtil, ZQMathUtil, ZQStringHelper>();
    if (!records || !services || !helpers) {
        std::fputs("libZQCommon.so: its classes cannot be defined; is it loaded twice?\n", stderr);
        std::abort();
    }
}

}  // namespace

}  // namespace companion
