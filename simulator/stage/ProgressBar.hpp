// How far a long piece of work has come, on the terminal.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "stage/Errors.hpp"

namespace stage {

/// One line for a terminal of so many columns; the bar gives way to the number, and that to
/// nothing.
std::string progressLine(const std::string &title, uintmax_t percent, size_t columns);

/// Where no bar is seen, a line tells that reading a long file is over.
void tellIfLong(const Warn &told, const std::filesystem::path &file, size_t entries);

class ProgressBar {
  public:
    /// `total` is in units of the caller's; when it is 0, or stderr is no terminal, nothing is ever
    /// shown.
    ProgressBar(std::string title, uintmax_t total);
    ProgressBar(const ProgressBar &) = delete;
    ProgressBar &operator=(const ProgressBar &) = delete;
    /// Takes the bar off the terminal.
    ~ProgressBar();

    void show(uintmax_t done);

  private:
    std::string title_;
    uintmax_t total_;
    std::optional<uintmax_t> percent_;  // that is shown
};

}  // namespace stage
