// Drawn anew only when there is one percent more to show.
#include "stage/ProgressBar.hpp"

#include <algorithm>
#include <iostream>
#include <utility>

#include <unistd.h>

namespace stage {

ProgressBar::ProgressBar(std::string title, uintmax_t total)
    : title_(std::move(title)), total_(isatty(STDERR_FILENO) != 0 ? total : 0) {}

ProgressBar::~ProgressBar() {
    if (percent_ > 0) {
        std::cerr << "\r\x1b[K" << std::flush;
    }
}

void ProgressBar::show(uintmax_t done) {
    const uintmax_t percent = total_ == 0 ? 0 : std::min(done, total_) * 100 / total_;
    if (percent == percent_) {
        return;
    }
    percent_ = percent;
    constexpr size_t kWidth = 40;
    std::string bar(kWidth, ' ');
    std::fill_n(bar.begin(), percent * kWidth / 100, '#');
    std::cerr << '\r' << title_ << " [" << bar << "] " << percent << " %" << std::flush;
}

}  // namespace stage
