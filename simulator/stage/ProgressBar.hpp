// How far a long piece of work has come, on the terminal.
#pragma once

#include <cstdint>
#include <string>

namespace stage {

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
    uintmax_t percent_ = 0;  // that is shown
};

}  // namespace stage
