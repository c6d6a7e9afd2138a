// The lines by which a phone's state is told: the steps that were done, and the time between them.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace serve {

/// "wait 0.5"
std::string waitLine(std::chrono::milliseconds time);
/// The time of such a line; none of another.
std::optional<std::chrono::milliseconds> waitOf(std::string_view line);
bool isMove(std::string_view line);

/// Runs of waiting are one line, as far as one can be that long.
class StepList {
  public:
    void add(std::string line);
    void add(std::chrono::milliseconds time);
    /// A finger that moves on: where it was last is forgotten, but not the time that it took.
    void addMove(std::string line);

    const std::vector<std::string> &lines() const { return lines_; }
    size_t size() const { return lines_.size(); }
    bool empty() const { return lines_.empty(); }
    void clear() { lines_.clear(); }

  private:
    std::vector<std::string> lines_;
};

}  // namespace serve
