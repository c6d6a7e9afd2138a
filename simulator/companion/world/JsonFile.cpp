// The parser keeps the last of two equal keys silently, so keys are watched while it works.
#include "companion/world/JsonFile.hpp"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <optional>
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
std::string detail(const json::parse_error &error) {
    std::string text = error.what();
    const std::size_t reason = text.find(" - ");
    text = reason == std::string::npos ? text.substr(text.find("] ") + 2) : text.substr(reason + 3);
    std::ranges::replace(text, '\n', ' ');
    return text;
}

/// Follows the parser through a document and notes the first key that comes twice in one object.
class KeyWatch {
  public:
    explicit KeyWatch(std::istream &in) : in_(in) {}

    bool operator()(int /*depth*/, json::parse_event_t event, const json &value) {
        using Event = json::parse_event_t;
        if (event == Event::key) {
            enter(value.get_ref<const std::string &>());
        } else if (event == Event::object_start || event == Event::array_start) {
            open_.push_back({event == Event::array_start});
        } else {
            if (event != Event::value) {
                open_.pop_back();
            }
            if (!open_.empty()) {
                ++open_.back().finished;
            }
        }
        return true;
    }

    struct Repeated {
        std::string place;  // of the object
        std::string key;    // in quotes
        std::size_t end;    // byte behind the key
    };
    const std::optional<Repeated> &repeated() const { return repeated_; }

  private:
    /// An object or a list that is being read.
    struct Open {
        bool isList = false;
        std::size_t finished = 0;  // how many of its values
        std::string key{};         // of the value at hand
        std::set<std::string> keys{};
    };

    void enter(const std::string &key) {
        const std::string shown = json(key).dump();
        if (!open_.back().keys.insert(key).second && !repeated_) {
            repeated_ = {place(), shown, static_cast<std::size_t>(in_.tellg())};
        }
        open_.back().key = shown.substr(1, shown.size() - 2);
    }

    /// Of the innermost object.
    std::string place() const {
        std::string path;
        for (std::size_t i = 0; i + 1 < open_.size(); ++i) {
            path += "/" + (open_[i].isList ? std::to_string(open_[i].finished) : open_[i].key);
        }
        return path.empty() ? "/" : path;
    }

    std::istream &in_;
    std::vector<Open> open_;
    std::optional<Repeated> repeated_;
};

}  // namespace

json readJsonFile(const std::filesystem::path &file) {
    const std::string text = readText(file);
    std::istringstream in(text);
    KeyWatch keys(in);
    json document;
    try {
        document = json::parse(in, std::ref(keys));
    } catch (const json::parse_error &error) {
        throw WorldError(file.string() + ": " + position(text, error.byte) +
                         ": not JSON: " + detail(error));
    }
    if (const auto &repeated = keys.repeated()) {
        throw WorldError(file.string() + ": " + lineOf(text, repeated->end) + ", " +
                         repeated->place + ": found the key " + repeated->key +
                         " twice in one object, expected it once");
    }
    return document;
}

}  // namespace companion
