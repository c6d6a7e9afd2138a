// Drawn anew only when there is one percent more to show.
#include "stage/ProgressBar.hpp"

#include <algorithm>
#include <iostream>
#include <utility>

#include <unistd.h>

#include "stage/Terminal.hpp"

namespace stage {

std::string progressLine(const std::string &title, uintmax_t percent, size_t columns) {
    std::string number = std::to_string(percent) + " %";
    number.insert(0, 5 - std::min<size_t>(number.size(), 5), ' ');
    const size_t taken = terminalCells(title) + 4 + number.size();  // with blanks and brackets
    constexpr size_t kShortest = 4;
    if (columns < taken + kShortest + 1) {  // the last column stays free: some terminals wrap there
        return number.size() < columns ? number : "";
    }
    const size_t width = columns - 1 - taken;
    std::string bar(width, ' ');
    std::fill_n(bar.begin(), percent * width / 100, '#');
    return title + " [" + bar + "] " + number;
}

void tellIfLong(const Warn &told, const std::filesystem::path &file, size_t entries) {
    constexpr size_t kLong = 100'000;
    if (told && entries >= kLong) {
        told(file.string() + ": " + std::to_string(entries) + " entries read");
    }
}

ProgressBar::ProgressBar(std::string title, uintmax_t total)
    : title_(std::move(title)), total_(isatty(STDERR_FILENO) != 0 ? total : 0) {}

ProgressBar::~ProgressBar() {
    if (percent_) {
        std::cerr << "\r\x1b[K" << std::flush;
    }
}

void ProgressBar::show(uintmax_t done) {
    if (total_ == 0) {
        return;
    }
    const uintmax_t percent = std::min(done, total_) * 100 / total_;
    if (percent != percent_) {
        percent_ = percent;
        std::cerr << "\r\x1b[K" << progressLine(title_, percent, terminalColumns()) << std::flush;
    }
}

}  // namespace stage
