// Tables as RFC 4180 writes them, read record by record so that a table of any length needs the
// memory of one. Written here because its mistakes have to be told by line, in records that
// themselves may run over several lines.
#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace stage {

struct CsvRecord {
    size_t line = 0;  // on which it begins, counted from 1
    std::vector<std::string> fields;
};

/// Quotes that are out of place; what follows them cannot be told apart.
class CsvError : public std::runtime_error {
  public:
    CsvError(size_t line, const std::string &what) : std::runtime_error(what), line_(line) {}
    size_t line() const { return line_; }

  private:
    size_t line_;
};

class CsvReader {
  public:
    /// Begins after a byte order mark, if there is one. The stream has to outlive the reader.
    explicit CsvReader(std::istream &in);

    /// The next record, nothing at the end of the stream. Lines end with or without a carriage
    /// return; empty ones are passed over. Throws CsvError.
    std::optional<CsvRecord> next();

  private:
    bool readLine();
    void takeField(CsvRecord &record);
    std::string quotedField(size_t startLine);

    std::istream &in_;
    std::string text_;  // the line at hand, without its end
    size_t at_ = 0;     // where in it
    size_t line_ = 0;
};

}  // namespace stage
