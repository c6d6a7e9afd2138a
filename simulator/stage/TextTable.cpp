// Column widths and padding of a terminal table.
#include "stage/TextTable.hpp"

#include <algorithm>

#include "stage/Terminal.hpp"
#include "uikit/drawing/Utf16.hpp"

namespace stage {

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
            widths[i] = std::max(widths[i], terminalCells(row[i]));
        }
    }
    std::string lines;
    const auto append = [&](const std::vector<std::string> &row) {
        std::string line;
        for (size_t i = 0; i < row.size(); ++i) {
            line += row[i] + std::string(widths[i] - terminalCells(row[i]) + 2, ' ');
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
