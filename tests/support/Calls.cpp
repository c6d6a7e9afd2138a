// Calls and displays as the Phone application makes them.
#include "support/Calls.hpp"

namespace test {

using objc::send;

objc::Owned<NSObject> beginCall(const Caller &caller) {
    const auto number = [](int value) {
        return send<NSObject(int32_t)>("NSNumber"_cls, "numberWithInt:"_sel, value);
    };
    const auto facts = objc::create<NSMutableDictionary>();
    if (caller.number) {
        facts->setObject(NSString::withUTF8String(caller.number), "destinationID"_ns);
    }
    facts->setObject(number(caller.isOutgoing ? 1 : 0), "outgoing"_ns);
    facts->setObject(number(caller.contact), "abUID"_ns);
    const id memory = send<id()>("TUTelephonyCall"_cls, "alloc"_sel);
    return objc::Owned<NSObject>::adopt(
        send<NSObject(NSObject)>(memory, "initWithCall:"_sel, facts.get()));
}

objc::Owned<UIView> makeDisplay(const char *className) {
    const id memory = send<id()>(objc::findClass(className), "alloc"_sel);
    return objc::Owned<UIView>::adopt(
        send<UIView(CGRect)>(memory, "initWithFrame:"_sel, rect(0, 20, 320, 96)));
}

}  // namespace test
