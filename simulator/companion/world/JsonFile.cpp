// The parser keeps the last of two equal keys silently, so keys are watched while it works.
#include "companion/world/JsonFile.hpp"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <set>
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

std::string position(std::string_view text, std::size_t byte) {
    const std::string_view before = text.substr(0, byte == 0 ? 0 : byte - 1);
    const auto line = 1 + std::ranges::count(before, '\n');
    const std::size_t lineStart = before.rfind('\n') + 1;  // npos + 1 is 0: the first line
    const auto column = 1 + std::ranges::count_if(before.substr(lineStart), [](char c) {
                            return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
                        });
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

/// What the parser disliked, without its own prefix and position.
std::string detail(const json::parse_error &error) {
    std::string text = error.what();
    const std::size_t reason = text.find(" - ");
    text = reason == std::string::npos ? text.substr(text.find("] ") + 2) : text.substr(reason + 3);
    std::ranges::replace(text, '\n', ' ');
    return text;
}

/// Collects the keys of every open object and notes the first that comes twice.
class KeyWatch {
  public:
    bool operator()(int /*depth*/, json::parse_event_t event, const json &value) {
        if (event == json::parse_event_t::object_start) {
            open_.emplace_back();
        } else if (event == json::parse_event_t::object_end) {
            open_.pop_back();
        } else if (event == json::parse_event_t::key) {
            const auto &key = value.get_ref<const std::string &>();
            if (!open_.back().insert(key).second && repeated_.empty()) {
                repeated_ = json(key).dump();
            }
        }
        return true;
    }

    const std::string &repeated() const { return repeated_; }

  private:
    std::vector<std::set<std::string>> open_;
    std::string repeated_;
};

}  // namespace

json readJsonFile(const std::filesystem::path &file) {
    const std::string text = readText(file);
    KeyWatch keys;
    json document;
    try {
        document = json::parse(text, std::ref(keys));
    } catch (const json::parse_error &error) {
        throw WorldError(file.string() + ": " + position(text, error.byte) +
                         ": not JSON: " + detail(error));
    }
    if (!keys.repeated().empty()) {
        throw WorldError(file.string() + ": found the key " + keys.repeated() +
                         " twice in one object, expected it once");
    }
    return document;
}

}  // namespace companion
