// The display's words.
#include "phone/incall/DisplayContent.hpp"

#include <algorithm>
#include <cstdio>

namespace phone {
namespace {

using Time = ListedCall::Time;

struct CallRow {
    DisplayRow texts;
    bool isHeld;
};

std::string labelOf(const ListedCall &call, Time now) {
    const std::string &label = call.caller.label;
    switch (call.status) {
    case CallStatus::Dialing:
        return label.empty() ? "正在呼叫…" : label;
    case CallStatus::Ringing:
        return label.empty() ? "来电" : label;
    case CallStatus::Active:
        return runningTime(now - call.answeredAt.value_or(now));
    case CallStatus::Held:
        return "保留";
    case CallStatus::None:
    case CallStatus::Disconnected:
        break;
    }
    return {};
}

/// Merged calls stand where the first of them stood, and have lasted as long as the longest.
std::vector<CallRow> allRows(const std::vector<ListedCall> &calls, Time now) {
    std::vector<CallRow> rows;
    const auto firstMerged = std::ranges::find(calls, true, &ListedCall::isMerged);
    for (auto call = calls.begin(); call != calls.end(); ++call) {
        const bool isHeld = call->status == CallStatus::Held;
        if (!call->isMerged) {
            rows.push_back({{call->caller.name, labelOf(*call, now)}, isHeld});
        } else if (call == firstMerged) {
            const auto longest =
                std::ranges::min_element(calls, {}, [now](const ListedCall &candidate) {
                    return candidate.isMerged ? candidate.answeredAt.value_or(now) : Time::max();
                });
            rows.push_back({{"会议通话", labelOf(*longest, now)}, isHeld});
        }
    }
    return rows;
}

}  // namespace

DisplayContent displayContent(const std::vector<ListedCall> &calls, Time now) {
    constexpr size_t kMostRows = 2;
    std::vector<CallRow> rows = allRows(calls, now);
    while (rows.size() > kMostRows) {
        const auto held = std::ranges::find(rows, true, &CallRow::isHeld);
        rows.erase(held == rows.end() ? rows.begin() : held);
    }
    DisplayContent content;
    for (CallRow &row : rows) {
        content.rows.push_back(std::move(row.texts));
    }
    content.hasOneCall = calls.size() == 1;
    if (content.hasOneCall) {
        content.isContact = !calls.front().caller.label.empty();
        content.picture = calls.front().caller.picture;
        content.wallpaper = calls.front().caller.wallpaper;
    }
    return content;
}

DisplayContent endedContent(const ListedCall &call) {
    return {.rows = {{call.caller.name, "通话结束"}},
            .isContact = !call.caller.label.empty(),
            .hasOneCall = true,
            .picture = call.caller.picture,
            .wallpaper = call.caller.wallpaper};
}

std::string runningTime(Time time) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time).count();
    const auto minutes = seconds / 60;
    char text[32];
    if (minutes < 60) {
        std::snprintf(text, sizeof text, "%02lld:%02lld", static_cast<long long>(minutes),
                      static_cast<long long>(seconds % 60));
    } else {
        std::snprintf(text, sizeof text, "%02lld:%02lld:%02lld",
                      static_cast<long long>(minutes / 60), static_cast<long long>(minutes % 60),
                      static_cast<long long>(seconds % 60));
    }
    return text;
}

}  // namespace phone
