// A line at a time; only a quoted field asks for more of them.
#include "stage/CsvReader.hpp"

#include <algorithm>
#include <string_view>

namespace stage {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

CsvReader::CsvReader(std::istream &in) : in_(in) {}

bool CsvReader::readLine() {
    at_ = 0;
    if (!std::getline(in_, text_)) {
        return false;
    }
    ++line_;
    if (line_ == 1 && text_.starts_with(kByteOrderMark)) {
        text_.erase(0, kByteOrderMark.size());
    }
    if (text_.ends_with('\r')) {
        text_.pop_back();
    }
    return true;
}

std::optional<CsvRecord> CsvReader::next() {
    do {
        if (!readLine()) {
            return std::nullopt;
        }
    } while (text_.empty());
    CsvRecord record{line_, {}};
    takeField(record);
    while (at_ < text_.size()) {
        ++at_;  // the comma
        takeField(record);
    }
    return record;
}

/// Leaves the reader at the comma behind the field, or at the end of the line.
void CsvReader::takeField(CsvRecord &record) {
    if (at_ < text_.size() && text_[at_] == '"') {
        record.fields.push_back(quotedField(line_));
        if (at_ < text_.size() && text_[at_] != ',') {
            throw CsvError(line_, "text behind a closing quote; write a quote inside as \"\"");
        }
        return;
    }
    const size_t end = std::min(text_.find(',', at_), text_.size());
    record.fields.push_back(text_.substr(at_, end - at_));
    if (record.fields.back().find('"') != std::string::npos) {
        throw CsvError(line_, "a quote inside a field; put the field in quotes and write it \"\"");
    }
    at_ = end;
}

std::string CsvReader::quotedField(size_t startLine) {
    std::string field;
    ++at_;
    while (true) {
        const size_t quote = text_.find('"', at_);
        if (quote == std::string::npos) {
            field.append(text_, at_).append(1, '\n');
            if (!readLine()) {
                throw CsvError(startLine, "a quote that is never closed; close it");
            }
            continue;
        }
        field.append(text_, at_, quote - at_);
        at_ = quote + 1;
        if (at_ == text_.size() || text_[at_] != '"') {
            return field;
        }
        field += '"';
        ++at_;
    }
}

}  // namespace stage
