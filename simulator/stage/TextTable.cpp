// Column widths and padding of a terminal table.
#include "stage/TextTable.hpp"

#include <algorithm>

#include "uikit/drawing/Utf16.hpp"

namespace stage {
namespace {

/// Terminal cells: two for East Asian characters, one for the rest. Half a surrogate pair counts
/// one, so that a character outside the basic plane, mostly a picture, comes to two.
size_t cells(const std::string &text) {
    size_t sum = 0;
    for (const char16_t unit : sim::utf16(text)) {
        const bool wide =
            (unit >= 0x1100 && unit <= 0x115F) || (unit >= 0x2E80 && unit <= 0xA4CF) ||
            (unit >= 0xAC00 && unit <= 0xD7A3) || (unit >= 0xF900 && unit <= 0xFAFF) ||
            (unit >= 0xFE30 && unit <= 0xFE6F) || (unit >= 0xFF00 && unit <= 0xFF60);
        sum += wide ? 2 : 1;
    }
    return sum;
}

}  // namespace

void TextTable::add(std::vector<std::string> row) {
    for (std::string &cell : row) {
        cell = sim::drawableText(sim::utf16(cell)).utf8;
    }
    rows_.push_back(std::move(row));
}

std::string TextTable::str() const {
    std::vector<size_t> widths(rows_.front().size());
    for (const auto &row : rows_) {
        for (size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], cells(row[i]));
        }
    }
    std::string lines;
    const auto append = [&](const std::vector<std::string> &row) {
        std::string line;
        for (size_t i = 0; i < row.size(); ++i) {
            line += row[i] + std::string(widths[i] - cells(row[i]) + 2, ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        lines += line + "\n";
    };
    append(rows_.front());
    std::vector<std::string> rule;
    rule.reserve(widths.size());
    for (const size_t width : widths) {
        rule.emplace_back(width, '-');
    }
    append(rule);
    std::for_each(rows_.begin() + 1, rows_.end(), append);
    return lines;
}

}  // namespace stage
