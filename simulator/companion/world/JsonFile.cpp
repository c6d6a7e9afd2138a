// The document is built here: the parser keeps the last of two equal keys silently.
#include "companion/world/JsonFile.hpp"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <optional>
#include <span>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "companion/world/World.hpp"

namespace companion {

namespace {

using nlohmann::json;

std::string readText(const std::filesystem::path &file) {
    std::error_code error;
    if (std::filesystem::is_directory(file, error)) {
        throw WorldError(file.string() + ": is a folder; name a world file in JSON");
    }
    errno = 0;
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    if (in) {
        text << in.rdbuf();
    }
    if (!in || in.bad()) {
        const char *reason = errno != 0 ? std::strerror(errno) : "unknown reason";
        throw WorldError(file.string() + ": cannot be read (" + reason +
                         "); name a world file in JSON");
    }
    return std::move(text).str();
}

std::string lineOf(std::string_view text, std::size_t byte) {
    return "line " + std::to_string(1 + std::ranges::count(text.substr(0, byte), '\n'));
}

std::string position(std::string_view text, std::size_t byte) {
    const std::string_view before = text.substr(0, byte == 0 ? 0 : byte - 1);
    const std::size_t lineStart = before.rfind('\n') + 1;  // npos + 1 is 0: the first line
    const auto column = 1 + std::ranges::count_if(before.substr(lineStart), [](char c) {
                            return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
                        });
    return lineOf(before, before.size()) + ", column " + std::to_string(column);
}

/// What the parser disliked, without its own prefix and position.
std::string detail(std::string text) {
    const std::size_t reason = text.find(" - ");
    text = reason == std::string::npos ? text.substr(text.find("] ") + 2) : text.substr(reason + 3);
    std::ranges::replace(text, '\n', ' ');
    return text;
}

/// Puts the document together from what the parser finds, and notes the first key that comes twice
/// in one object. The parser's own builder looks through the whole list behind every entry as soon
/// as somebody watches it, and a list may be long.
class Builder final : public json::json_sax_t {
  public:
    Builder(std::istream &in, std::size_t size, const Progress &progress)
        : in_(in), size_(static_cast<double>(size)), progress_(progress) {}

    bool null() override { return add(nullptr); }
    bool boolean(bool value) override { return add(value); }
    bool number_integer(json::number_integer_t value) override { return add(value); }
    bool number_unsigned(json::number_unsigned_t value) override { return add(value); }
    bool number_float(json::number_float_t value, const std::string & /*text*/) override {
        return add(value);
    }
    bool string(std::string &value) override { return add(std::move(value)); }
    bool binary(json::binary_t &value) override { return add(std::move(value)); }
    bool start_object(std::size_t /*size*/) override { return open(json::object()); }
    bool key(std::string &name) override {
        const auto [member, isNew] =
            open_.back().value->get_ref<json::object_t &>().try_emplace(name);
        if (!isNew && !repeated_) {
            repeated_ = {place(), json(name).dump(), static_cast<std::size_t>(in_.tellg())};
        }
        open_.back().member = member;
        return true;
    }
    bool end_object() override { return close(); }
    bool start_array(std::size_t /*size*/) override { return open(json::array()); }
    bool end_array() override { return close(); }
    bool parse_error(std::size_t byte, const std::string & /*token*/,
                     const json::exception &error) override {
        mistake_ = {byte, detail(error.what())};
        return false;
    }

    struct Repeated {
        std::string place;  // of the object
        std::string key;    // in quotes
        std::size_t end;    // byte behind the key
    };
    const std::optional<Repeated> &repeated() const { return repeated_; }
    /// Where the text is no JSON and why.
    const std::pair<std::size_t, std::string> &mistake() const { return mistake_; }
    json document() { return std::move(document_); }

  private:
    /// An object or a list that is being read; its address stays as long as that lasts.
    struct Open {
        json *value;
        json::object_t::iterator member{};  // of an object: the value at hand
    };

    json &added(json value) {
        if (open_.empty()) {
            return document_ = std::move(value);
        }
        const Open &inner = open_.back();
        json &place = inner.value->is_array() ? inner.value->emplace_back() : inner.member->second;
        return place = std::move(value);
    }
    bool add(json value) {
        constexpr std::size_t kSeldom = 4096;
        if (++values_ % kSeldom == 0 && progress_) {
            progress_(static_cast<double>(in_.tellg()) / size_);
        }
        added(std::move(value));
        return true;
    }
    bool open(json value) {
        open_.push_back({&added(std::move(value))});
        return true;
    }
    bool close() {
        open_.pop_back();
        return true;
    }

    /// Of the innermost object.
    std::string place() const {
        std::string path;
        for (const Open &outer : std::span(open_).first(open_.size() - 1)) {
            const std::string key = outer.value->is_array() ? "" : json(outer.member->first).dump();
            path += "/" + (key.empty() ? std::to_string(outer.value->size() - 1)
                                       : key.substr(1, key.size() - 2));
        }
        return path.empty() ? "/" : path;
    }

    std::istream &in_;
    double size_;  // in bytes
    const Progress &progress_;
    std::size_t values_ = 0;
    json document_;
    std::vector<Open> open_;  // from the outermost inwards
    std::optional<Repeated> repeated_;
    std::pair<std::size_t, std::string> mistake_;
};

}  // namespace

json readJsonFile(const std::filesystem::path &file, const Progress &progress) {
    return readJsonText(readText(file), file.string(), progress);
}

json readJsonText(const std::string &text, const std::string &name, const Progress &progress) {
    std::istringstream in(text);
    Builder builder(in, text.size(), progress);
    if (!json::sax_parse(in, &builder)) {
        const auto &[byte, reason] = builder.mistake();
        throw WorldError(name + ": " + position(text, byte) + ": not JSON: " + reason);
    }
    if (const auto &repeated = builder.repeated()) {
        throw WorldError(name + ": " + lineOf(text, repeated->end) + ", " + repeated->place +
                         ": found the key " + repeated->key +
                         " twice in one object, expected it once");
    }
    return builder.document();
}

}  // namespace companion
