// Every line is read and checked before anything is said, so that one run tells all there is to
// mend.
#include "stage/CallsFile.hpp"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <system_error>
#include <utility>

#include "companion/world/Date.hpp"
#include "stage/CsvReader.hpp"
#include "stage/Errors.hpp"
#include "stage/ProgressBar.hpp"
#include "uikit/drawing/Utf16.hpp"

namespace stage {
namespace {

namespace fs = std::filesystem;
using companion::RecentCall;

constexpr size_t kShownMistakes = 10;
const std::vector<std::string> kColumns = {"number", "name", "direction", "time", "answered"};

std::string quoted(const std::string &value) {
    constexpr size_t kMost = 40;
    const std::u16string text = sim::utf16(value);
    return "'" + (text.size() <= kMost ? sim::utf8(text) : sim::utf8(text.substr(0, kMost)) + "…") +
           "'";
}

bool isOneOf(const std::string &value, const char *yes, const char *no, const char *column) {
    if (value != yes && value != no) {
        throw Failure(std::string(column) + " is " + quoted(value) + "; write " + yes + " or " +
                      no);
    }
    return value == yes;
}

/// Throws Failure with the mistake.
RecentCall callOf(const CsvRecord &record) {
    const std::vector<std::string> &fields = record.fields;
    if (fields.size() != kColumns.size()) {
        throw Failure(std::to_string(fields.size()) + (fields.size() == 1 ? " field" : " fields") +
                      " instead of " + std::to_string(kColumns.size()) +
                      "; write number,name,direction,time,answered, a field with a comma in "
                      "quotes");
    }
    for (const std::string &field : fields) {
        if (sim::utf8(sim::utf16(field)) != field) {
            throw Failure(quoted(field) + " is no UTF-8 text; save the file in UTF-8");
        }
    }
    RecentCall call;
    call.number = fields[0];
    call.name = fields[1];
    call.incoming = isOneOf(fields[2], "incoming", "outgoing", "direction");
    call.date = companion::parseDate(fields[3]);
    if (!call.date && !fields[3].empty()) {
        throw Failure("time is " + quoted(fields[3]) +
                      "; write it like 2014-06-12T09:14:05+08:00, or leave it empty");
    }
    call.answered = isOneOf(fields[4], "yes", "no", "answered");
    return call;
}

/// Latest first, the undated last; those of one moment as they come in the file.
using CallsByDate = std::multimap<std::optional<double>, RecentCall, std::greater<>>;

/// What is wrong with a file, by line.
class Mistakes {
  public:
    explicit Mistakes(const fs::path &file) : file_(file.string()) {}

    void add(size_t line, const std::string &what) {
        if (++count_ <= kShownMistakes) {
            list_ += "\n" + file_ + ":" + std::to_string(line) + ": " + what;
        }
    }

    void throwIfAny() const {
        if (count_ > 0) {
            const std::string all =
                count_ == 1 ? "a mistake" : std::to_string(count_) + " mistakes";
            const std::string shown = count_ == 1                ? "this:"
                                      : count_ <= kShownMistakes ? "these:"
                                                                 : "the rest as well as these:";
            throw Failure(file_ + ": " + all + ", so that nothing of it is used; mend " + shown +
                          list_);
        }
    }

  private:
    std::string file_;
    std::string list_;
    size_t count_ = 0;
};

std::ifstream opened(const fs::path &file) {
    std::ifstream in(file, std::ios::binary);
    if (!in || fs::is_directory(file)) {
        const int reason = in ? EISDIR : errno;
        throw Failure(file.string() + ": cannot be read: " +
                      std::generic_category().message(reason) + "; name another with --calls");
    }
    return in;
}

/// Adds what can be read to `calls`, and what cannot to `mistakes`.
void readRecords(std::istream &in, ProgressBar &progress, CallsByDate &calls, Mistakes &mistakes) {
    CsvReader reader(in);
    const auto header = reader.next();
    if (!header || header->fields != kColumns) {
        mistakes.add(header ? header->line : 1,
                     "no heading; begin with the line number,name,direction,time,answered");
        return;
    }
    while (const auto record = reader.next()) {
        try {
            RecentCall call = callOf(*record);
            const auto date = call.date;
            calls.emplace(date, std::move(call));
        } catch (const Failure &mistake) {
            mistakes.add(record->line, mistake.what());
        }
        progress.show(static_cast<uintmax_t>(std::max<std::streamoff>(in.tellg(), 0)));
    }
}

}  // namespace

std::vector<RecentCall> readCallsFile(const fs::path &file) {
    std::ifstream in = opened(file);
    std::error_code sizeless;
    const uintmax_t size = fs::file_size(file, sizeless);
    CallsByDate byDate;
    Mistakes mistakes(file);
    {
        ProgressBar progress("reading " + file.filename().string(), sizeless ? 0 : size);
        try {
            readRecords(in, progress, byDate, mistakes);
        } catch (const CsvError &error) {
            mistakes.add(error.line(), error.what());
        }
    }
    if (in.bad()) {
        throw Failure(file.string() + ": cannot be read to its end; is the disk in order?");
    }
    mistakes.throwIfAny();
    std::vector<RecentCall> calls;
    calls.reserve(byDate.size());
    for (auto &[date, call] : byDate) {
        calls.push_back(std::move(call));
    }
    return calls;
}

}  // namespace stage
