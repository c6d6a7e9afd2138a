// ZQPartnerManager: partner businesses and the downloads of their logos.
#pragma once

#include <cstdint>

#include "companion/classes/ZQPartnerItem.hpp"
#include "objc/Instance.hpp"
#include "platform/Foundation.hpp"

namespace companion {

class ZQPartnerManager : public objc::Instance {
  public:
    static Class define();

    ZQPartnerItem *partnerItem(std::int32_t partnerId);
    void addOrUpdate(ZQPartnerItem *item);

    /// Puts the logo in place after the world's delay, from the main run loop, then posts
    /// "msgPartnerLogoDownloaded" with the path under "plogopath". A logo that cannot be had is
    /// told on the error output; nothing is posted then.
    void download(NSString icon, NSString destination);

    /// The end of a download: icon and destination.
    void finishDownload(NSArray request);
};

}  // namespace companion
