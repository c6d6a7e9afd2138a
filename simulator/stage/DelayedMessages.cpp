// Foundation's method is replaced where every object inherits it: in NSObject.
#include "stage/DelayedMessages.hpp"

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

#include "substrate/RuntimeMethods.hpp"
#include "uikit/SimScrollView.hpp"

namespace stage {

DelayedMessages::DelayedMessages() {
    constexpr auto kDelayed = "performSelector:withObject:afterDelay:"_sel;
    const Class root = "NSObject"_cls;
    // Classes as receivers have copies of the root class's methods in this runtime.
    for (const Class holder : {root, object_getClass(objc::asObject(root))}) {
        const Method method = class_getInstanceMethod(holder, kDelayed);
        method_setImplementation(method, reinterpret_cast<IMP>(&DelayedMessages::take));
    }
    method_setImplementation(
        class_getInstanceMethod(object_getClass(objc::asObject(root)),
                                "cancelPreviousPerformRequestsWithTarget:"_sel),
        reinterpret_cast<IMP>(&DelayedMessages::takeBack));
}

DelayedMessages &DelayedMessages::shared() {
    // Kept for good: objects may still ask while the process ends.
    static auto *const messages = new DelayedMessages();
    return *messages;
}

void DelayedMessages::take(id target, SEL, SEL selector, id argument, double seconds) {
    const std::chrono::duration<double> delay(std::max(seconds, 0.0));
    const Moment due = companion::SimulatedTime::shared().now() + std::chrono::round<Moment>(delay);
    shared().waiting_.emplace(due, Message{objc::Owned<NSObject>::share(NSObject(target)), selector,
                                           objc::Owned<NSObject>::share(NSObject(argument))});
}

void DelayedMessages::takeBack(id, SEL, id target) {
    std::erase_if(shared().waiting_,
                  [target](const auto &entry) { return entry.second.target.get() == target; });
}

std::optional<DelayedMessages::Moment> DelayedMessages::next() const {
    return waiting_.empty() || SimScrollView::isAnyTracking()
               ? std::nullopt
               : std::optional(waiting_.begin()->first);
}

void DelayedMessages::sendDue(Moment now) {
    if (SimScrollView::isAnyTracking()) {
        return;
    }
    // Taken out first: what a message asks for in turn is not sent before the next call.
    std::vector<Message> due;
    const auto end = waiting_.upper_bound(now);
    for (auto waiting = waiting_.begin(); waiting != end; ++waiting) {
        due.push_back(std::move(waiting->second));
    }
    waiting_.erase(waiting_.begin(), end);
    for (const Message &message : due) {
        const objc::AutoreleasePool pool;
        if (listener_ != nullptr) {
            listener_(message.target, message.selector);
        }
        objc::send<id(SEL, NSObject)>(message.target, "performSelector:withObject:"_sel,
                                      message.selector, message.argument);
    }
}

}  // namespace stage
