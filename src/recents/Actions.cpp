// What the user may do with a number.
#include "recents/Actions.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

#include "objc/Silently.hpp"
#include "platform/Format.hpp"
#include "recents/HistoryDescription.hpp"
#include "recents/LookupContext.hpp"

// Whoever runs a search service names its host when building.
#ifndef ZQDIAL_SEARCH_HOST
#define ZQDIAL_SEARCH_HOST "m.zequor.example"
#endif

namespace recents {
namespace {

/// Whether one of the number's calls in the companion's history may be marked.
bool hasMarkableCall(NSString number) {
    constexpr NSInteger kMostCalls = 100;
    constexpr int32_t kUnmarkable = 1;
    const ZQSystemHistoryService history = ZQSystemHistoryService::defaultService();
    for (const ZQHistoryRecord call : history.getAllCallHistoryByPhoneNumber(number, kMostCalls)) {
        if (call.actionType() != kUnmarkable) {
            return true;
        }
    }
    return false;
}

/// Toward zero. What an int32_t cannot hold becomes its nearest end and what is no number 0, as the
/// device's processors convert.
int32_t wholeSeconds(double seconds) {
    constexpr double kLeast = std::numeric_limits<int32_t>::min();
    constexpr double kMost = std::numeric_limits<int32_t>::max();
    return std::isnan(seconds) ? 0 : static_cast<int32_t>(std::clamp(seconds, kLeast, kMost));
}

/// Buttons send their actions with nobody around to catch what the companion raises.
template <class MakeLink>
void open(MakeLink makeLink) {
    objc::silently([&] {
        if (const NSString link = makeLink()) {
            ZQPhoneUtil::systemOpenUrl(link);
        }
    });
}

}  // namespace

OfferedActions offeredActions(NSString number, ZQNumberIdentity identity) {
    const bool mark = hasMarkableCall(number);
    if (!identity) {
        return {.correct = false, .mark = mark};
    }
    if (identity.type() == IdentityKind::Region) {
        return {};
    }
    if (isSearchResult(identity)) {
        return {.correct = true, .mark = false};
    }
    return {.correct = isCloudMark(identity) || isBrand(identity), .mark = mark};
}

NSString correctLink(NSString number) {
    return number.length() != 0 ? format<"zequor://errorCorrect?%@/">(number) : nullptr;
}

NSString markLink(NSString number, double seconds) {
    return number.length() != 0 ? format<"zequor://mark?%@/%d">(number, wholeSeconds(seconds))
                                : nullptr;
}

NSString searchLink(NSString number) {
    if (number.length() == 0) {
        return nullptr;
    }
    const NSString digits =
        ZQPhoneNumberHelper::getDigitNumber(ZQPhoneNumberHelper::trimLeading86(number));
    const auto keyword = objc::send<NSString(NSStringEncoding)>(
        digits, "stringByAddingPercentEscapesUsingEncoding:"_sel, kAsciiEncoding);
    return keyword ? format<"http://" ZQDIAL_SEARCH_HOST
                            "/web/searchList.jsp?uID=q-R-MwzzPa7KLcdE&v=5&w=1278&t=1368328313424"
                            "&keyword=%@&pg=webSearchList&s=">(keyword)
                   : nullptr;
}

void openCorrectLink() {
    open([] { return correctLink(phonePureNumber()); });
}

void openMarkLink() {
    open([] { return markLink(phonePureNumber(), currentRecordDate()->secondsSince1970()); });
}

void openSearchLink() {
    open([] { return searchLink(phonePureNumber()); });
}

}  // namespace recents
