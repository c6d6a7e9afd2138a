// Pictures are made by the process's own UIKit.
#include "companion/classes/ZQWeiboService.hpp"

#include "companion/Companion.hpp"
#include "companion/classes/Conversions.hpp"
#include "companion/classes/Pictures.hpp"
#include "objc/ClassBuilder.hpp"

namespace companion {

Class ZQWeiboProfile::define() {
    return objc::ClassBuilder<ZQWeiboProfile>("ZQWeiboProfile", "NSObject")
        .getter<&ZQWeiboProfile::_name>("name")
        .getter<&ZQWeiboProfile::_avatarType>("avatarType")
        .getter<&ZQWeiboProfile::_boundType>("boundType")
        .finish();
}

Class ZQWeiboService::define() {
    return objc::ClassBuilder<ZQWeiboService>("ZQWeiboService", "NSObject")
        .classMethod("getLocalAvatarForNumber:"_sel, objc::function<&ZQWeiboService::localAvatar>)
        .method("getWeiboInfoWithNumber:outProfile:outContent:"_sel,
                objc::member<&ZQWeiboService::weiboInfo>)
        .finish();
}

NSObject ZQWeiboService::localAvatar(NSString number) {
    const std::string key = pure(number);
    const auto blog = store().microblog(key);
    if (blog && !blog->avatar.empty()) {
        return picture(blog->avatar);
    }
    const auto contact = store().contactWithNumber(key);
    return contact && !contact->avatar.empty() ? picture(contact->avatar) : NSObject();
}

// NOLINTNEXTLINE(readability-non-const-parameter): both are written
void ZQWeiboService::weiboInfo(NSString number, id *profile, id *content) {
    const auto blog = store().microblog(pure(number));
    if (profile != nullptr) {
        auto *const made = blog ? autoreleased<ZQWeiboProfile>() : nullptr;
        if (blog) {
            made->_name = objc::Owned<NSString>::share(string(blog->name));
            made->_avatarType = blog->avatarKind;
            made->_boundType = blog->boundKind;
        }
        *profile = handle(made);
    }
    if (content != nullptr) {
        *content = blog && !blog->content.empty() ? string(blog->content).get() : nullptr;
    }
}

}  // namespace companion
