// A notification centre of the companion's own does the work.
#include "companion/classes/ZQIPCService.hpp"

#include "companion/Companion.hpp"
#include "companion/classes/Conversions.hpp"
#include "objc/ClassBuilder.hpp"

namespace companion {

namespace {

id center() {
    static const id instance =
        objc::send<id()>(objc::send<id()>("NSNotificationCenter"_cls, "alloc"_sel), "init"_sel);
    return instance;
}

}  // namespace

Class ZQIPCService::define() {
    return objc::ClassBuilder<ZQIPCService>("ZQIPCService", "NSObject")
        .classMethod("addObserver:sel:forMsg:"_sel, objc::function<&ZQIPCService::addObserver>)
        .classMethod("removeObserver:forMsg:"_sel, objc::function<&ZQIPCService::removeObserver>)
        .classMethod("postMsg:withInfo:"_sel, objc::function<&ZQIPCService::post>)
        .finish();
}

void ZQIPCService::addObserver(NSObject observer, SEL selector, NSString message) {
    // Without a name an observer would hear everything, so that nobody is added without one.
    if (observer.get() != nullptr && message.get() != nullptr) {
        objc::send<void(NSObject, SEL, NSString, id)>(center(),
                                                      "addObserver:selector:name:object:"_sel,
                                                      observer, selector, message, nullptr);
    }
}

void ZQIPCService::removeObserver(NSObject observer, NSString message) {
    objc::send<void(NSObject, NSString, id)>(center(), "removeObserver:name:object:"_sel, observer,
                                             message, nullptr);
}

void ZQIPCService::post(NSString message, NSDictionary info) {
    if (message.get() == nullptr) {
        return;
    }
    tell(Told::Message, utf8(message));
    objc::send<void(NSString, id, NSDictionary)>(
        center(), "postNotificationName:object:userInfo:"_sel, message, nullptr, info);
}

}  // namespace companion
