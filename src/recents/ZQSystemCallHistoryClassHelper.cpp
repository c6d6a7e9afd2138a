// The recent calls' accessors as class messages.
#include "recents/ZQSystemCallHistoryClassHelper.hpp"

#include "recents/RecentCall.hpp"

using recents::RecentCall;

namespace {

bool isOneContactCall(RecentCall call) { return call.isOfContact(); }
bool isOneIncomingCall(RecentCall call) { return call.isIncoming(); }
NSString callNumber(RecentCall call) { return call.number(); }

}  // namespace

objc::ClassBuilder<ZQSystemCallHistoryClassHelper> ZQSystemCallHistoryClassHelper::define() {
    using objc::function;
    return objc::ClassBuilder<ZQSystemCallHistoryClassHelper>("ZQSystemCallHistoryClassHelper",
                                                              "NSObject")
        .classMethod("isOneContactCall:"_sel, function<&isOneContactCall>)
        .classMethod("isOneIncomingCall:"_sel, function<&isOneIncomingCall>)
        .classMethod("getCallNumberFromRecentCall:"_sel, function<&callNumber>);
}
