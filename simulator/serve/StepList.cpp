// Time counts whole milliseconds.
#include "serve/StepList.hpp"

#include <charconv>
#include <cmath>

namespace serve {
namespace {

using std::chrono::milliseconds;

constexpr std::string_view kWait = "wait ";
constexpr std::string_view kMove = "move ";
constexpr milliseconds kLongestWait = std::chrono::hours(2);  // that a step may take

}  // namespace

std::string waitLine(milliseconds time) {
    const auto count = time.count();
    std::string fraction = std::to_string(1000 + count % 1000);
    fraction.front() = '.';
    fraction.erase(fraction.find_last_not_of('0') + 1);
    return std::string(kWait) + std::to_string(count / 1000) + (fraction == "." ? "" : fraction);
}

std::optional<milliseconds> waitOf(std::string_view line) {
    if (!line.starts_with(kWait)) {
        return std::nullopt;
    }
    double seconds = 0;
    const char *const end = line.data() + line.size();
    const auto [rest, error] = std::from_chars(line.data() + kWait.size(), end, seconds);
    if (error != std::errc() || rest != end ||
        !(seconds >= 0 && seconds * 1000 <= kLongestWait.count())) {
        return std::nullopt;
    }
    return std::chrono::round<milliseconds>(std::chrono::duration<double>(seconds));
}

bool isMove(std::string_view line) { return line.starts_with(kMove); }

void StepList::add(std::string line) {
    const auto time = waitOf(line);
    const auto before = lines_.empty() ? std::nullopt : waitOf(lines_.back());
    if (time && before && *time + *before <= kLongestWait) {
        lines_.back() = waitLine(*time + *before);
    } else {
        lines_.push_back(std::move(line));
    }
}

void StepList::add(milliseconds time) {
    if (time > milliseconds(0)) {
        add(waitLine(time));
    }
}

void StepList::addMove(std::string line) {
    milliseconds since{};
    if (!lines_.empty()) {
        if (const auto time = waitOf(lines_.back()); time && lines_.size() > 1) {
            if (isMove(lines_[lines_.size() - 2])) {
                since = *time;
                lines_.pop_back();
            }
        }
        if (isMove(lines_.back())) {
            lines_.pop_back();
        }
    }
    add(since);
    add(std::move(line));
}

}  // namespace serve
