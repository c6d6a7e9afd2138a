// A table for the terminal: columns aligned also where Chinese characters take two cells.
#pragma once

#include <string>
#include <vector>

namespace stage {

class TextTable {
  public:
    explicit TextTable(std::vector<std::string> heading) : rows_{std::move(heading)} {}

    /// A row has as many cells as the heading; texts are UTF-8. Newlines and other controls in them
    /// become blanks.
    void add(std::vector<std::string> row);

    /// Heading, a rule and the rows, each line ended; columns are two blanks apart.
    std::string str() const;

  private:
    std::vector<std::vector<std::string>> rows_;
};

}  // namespace stage
