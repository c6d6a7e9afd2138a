// ZQWeiboService: pictures and profiles of the microblog accounts that numbers are bound to.
#pragma once

#include <cstdint>

#include "objc/Instance.hpp"
#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"

namespace companion {

class ZQWeiboProfile : public objc::Instance {
  public:
    static Class define();

    objc::Owned<NSString> _name;
    std::int32_t _avatarType = 0;
    std::int32_t _boundType = 0;
};

class ZQWeiboService : public objc::Instance {
  public:
    static Class define();

    /// A picture (UIImage) of the number's microblog or else of its contact; nil when none is
    /// stored.
    static NSObject localAvatar(NSString number);
    /// Fills what it can; what is not known becomes nil, what is not asked for is skipped.
    void weiboInfo(NSString number, id *profile, id *content);
};

}  // namespace companion
