// What the in-call display says about the calls there are.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "phone/incall/CallList.hpp"

namespace phone {

/// One call, or several that were merged.
struct DisplayRow {
    std::string name{};
    std::string label{};
};

struct DisplayContent {
    std::vector<DisplayRow> rows{};     // none, one or two
    bool isContact = false;             // the only caller
    bool hasOneCall = false;            // one row is no sign of it: merged calls have one as well
    std::filesystem::path picture{};    // of the only caller; empty for none
    std::filesystem::path wallpaper{};  // likewise
};

/// What is shown of `calls` at `now`. Of more than two rows those that are held give way.
DisplayContent displayContent(const std::vector<ListedCall> &calls,
                              companion::SimulatedTime::Duration now);

/// What is shown of a call that was the last one and has ended.
DisplayContent endedContent(const ListedCall &call);

/// "00:07", from an hour on "01:00:07".
std::string runningTime(companion::SimulatedTime::Duration time);

}  // namespace phone
