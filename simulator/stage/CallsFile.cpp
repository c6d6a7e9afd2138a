// A row is read as far as it goes, whatever is wrong with it.
#include "stage/CallsFile.hpp"

#include <algorithm>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <utility>

#include "companion/world/Date.hpp"
#include "stage/CsvReader.hpp"
#include "stage/Errors.hpp"
#include "stage/Interruption.hpp"
#include "stage/ProgressBar.hpp"
#include "stage/UserFile.hpp"
#include "stage/Values.hpp"
#include "uikit/drawing/Utf16.hpp"

namespace stage {
namespace {

namespace fs = std::filesystem;
using companion::RecentCall;

const std::vector<std::string> kColumns = {"number", "name", "direction", "time", "answered"};

std::string joined(const std::vector<std::string> &fields) {
    std::string line;
    for (const std::string &field : fields) {
        line += (line.empty() ? "" : ",") + field;
    }
    return line;
}

/// One record, and where to say what is wrong with it.
class Row {
  public:
    Row(const CsvRecord &record, Mistakes &mistakes) : record_(record), mistakes_(mistakes) {}

    /// Good for nothing when a mistake was added.
    RecentCall call() const {
        const std::vector<std::string> &fields = record_.fields;
        if (fields.size() != kColumns.size()) {
            wrong(std::to_string(fields.size()) + (fields.size() == 1 ? " field" : " fields") +
                  " instead of " + std::to_string(kColumns.size()) + "; write " + joined(kColumns) +
                  ", a field with a comma in quotes");
            return {};
        }
        for (const std::string &field : fields) {
            if (sim::utf8(sim::utf16(field)) != field) {
                wrong(inQuotes(field) + " is no UTF-8 text; save the file in UTF-8");
            }
        }
        RecentCall call;
        call.number = fields[0];
        call.name = fields[1];
        call.incoming = isFirst(2, "incoming", "outgoing");
        call.date = companion::parseDate(fields[3]);
        if (!call.date && !fields[3].empty()) {
            wrong("time is " + inQuotes(fields[3]) +
                  "; write it like 2014-06-12T09:14:05+08:00, or leave it empty");
        }
        call.answered = isFirst(4, "yes", "no");
        return call;
    }

  private:
    void wrong(const std::string &what) const { mistakes_.add(record_.line, what); }

    bool isFirst(size_t column, const std::string &first, const std::string &second) const {
        const std::string &value = record_.fields[column];
        if (value != first && value != second) {
            wrong(kColumns[column] + " is " + inQuotes(value) + "; write " + first + " or " +
                  second);
        }
        return value == first;
    }

    const CsvRecord &record_;
    Mistakes &mistakes_;
};

/// What is wrong with the first line of a file; nothing when it is the heading.
std::string headingMistake(const std::vector<std::string> &fields) {
    const std::string expected = joined(kColumns);
    if (fields == kColumns) {
        return {};
    }
    if (fields.empty()) {
        return "found nothing, expected the heading " + expected;
    }
    std::string found = joined(fields);
    std::string remedy;
    if (std::ranges::is_permutation(fields, kColumns)) {
        remedy = " in this order, here and below";
    } else if (fields.size() == 1 && found.find_first_of(";\t") != std::string::npos) {
        remedy = " with commas, here and below";
    }
    return "found " + inQuotes(found) + ", expected the heading " + expected + remedy;
}

/// Latest first, the undated last; those of one moment as they come in the file.
using CallsByDate = std::multimap<std::optional<double>, RecentCall, std::greater<>>;

/// The names that belong to no number.
class LostNames {
  public:
    void noteIn(const RecentCall &call, size_t line) {
        const bool isLost = call.number.empty() && !call.name.empty();
        if (isLost && ++count_ == 1) {
            first_ = std::to_string(line) + ": " + inQuotes(call.name) +
                     " is not shown, since the number is missing: a caller who hides has no name";
        }
    }

    void tell(const fs::path &file, const Warn &warn) const {
        if (count_ > 0 && warn) {
            const std::string more = std::to_string(count_ - 1);
            warn(file.string() + ":" + first_ +
                 (count_ == 1 ? "" : "; the same in other rows: " + more));
        }
    }

  private:
    std::string first_;
    size_t count_ = 0;
};

/// Adds what can be read to `calls`, and what cannot to `mistakes`.
void readRecords(std::istream &in, ProgressBar &progress, CallsByDate &calls, Mistakes &mistakes,
                 LostNames &lost) {
    CsvReader reader(in);
    const CsvRecord first = reader.next().value_or(CsvRecord{1, {}});
    if (const std::string mistake = headingMistake(first.fields); !mistake.empty()) {
        mistakes.add(first.line, mistake);
        return;
    }
    while (const auto record = reader.next()) {
        RecentCall call = Row(*record, mistakes).call();
        lost.noteIn(call, record->line);
        const auto date = call.date;
        calls.emplace(date, std::move(call));
        Interruption::check();
        progress.show(static_cast<uintmax_t>(std::max<std::streamoff>(in.tellg(), 0)));
    }
}

}  // namespace

std::vector<RecentCall> readCallsFile(const fs::path &file, const Warn &warn, bool withProgress) {
    std::ifstream in = openUserFile(file, "name another with --calls");
    std::error_code sizeless;
    const uintmax_t size = fs::file_size(file, sizeless);
    CallsByDate byDate;
    Mistakes mistakes(file);
    LostNames lost;
    {
        ProgressBar progress("reading " + file.filename().string(),
                             sizeless || !withProgress ? 0 : size);
        try {
            readRecords(in, progress, byDate, mistakes, lost);
        } catch (const CsvError &error) {
            mistakes.add(error.line(), error.what());
        }
    }
    if (in.bad()) {
        throw Failure(file.string() + ": cannot be read to its end; is the disk in order?");
    }
    mistakes.throwIfAny();
    lost.tell(file, warn);
    tellIfLong(warn, file, byDate.size());
    std::vector<RecentCall> calls;
    calls.reserve(byDate.size());
    for (auto &[date, call] : byDate) {
        calls.push_back(std::move(call));
    }
    return calls;
}

}  // namespace stage
