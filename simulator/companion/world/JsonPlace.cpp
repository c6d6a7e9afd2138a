// Checks and conversions; every refusal goes through fail().
#include "companion/world/JsonPlace.hpp"

#include <algorithm>
#include <utility>

#include <nlohmann/json.hpp>

#include "companion/numbers/Numbers.hpp"
#include "companion/world/Date.hpp"
#include "companion/world/World.hpp"

namespace companion {

namespace {

using nlohmann::json;

constexpr std::size_t kShownLength = 48;  // bytes of a value that a message repeats
constexpr std::size_t kFewestDigits = 3;
constexpr std::size_t kMostDigits = 20;

/// A value as a message shows it: short, on one line, never cut within a character.
std::string shown(const json &value) {
    if (value.is_object()) {
        return "an object";
    }
    if (value.is_array()) {
        return "a list";
    }
    std::string text = value.dump(-1, ' ', false, json::error_handler_t::replace);
    if (text.size() > kShownLength) {
        std::size_t end = kShownLength;
        while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
            --end;
        }
        text = text.substr(0, end) + "…";
    }
    return text;
}

std::string trimmedNumber(double value) {
    std::string text = json(value).dump();
    if (text.ends_with(".0")) {
        text.resize(text.size() - 2);
    }
    return text;
}

}  // namespace

JsonPlace::JsonPlace(const json &document, const std::string &file)
    : JsonPlace(&document, &file, {}) {}

JsonPlace::JsonPlace(const json *value, const std::string *file, std::string place)
    : value_(value), file_(file), place_(std::move(place)) {}

void JsonPlace::fail(std::string_view expected, std::string_view found) const {
    const std::string here = value_ == nullptr ? "nothing" : shown(*value_);
    throw WorldError(*file_ + ": " + (place_.empty() ? "/" : place_) + ": found " +
                     (found.empty() ? here : std::string(found)) + ", expected " +
                     std::string(expected));
}

void JsonPlace::expectObject(std::initializer_list<std::string_view> keys) const {
    if (value_ == nullptr || !value_->is_object()) {
        fail("an object");
    }
    for (const auto &item : value_->items()) {
        if (std::ranges::find(keys, std::string_view(item.key())) != keys.end()) {
            continue;
        }
        std::string known = "one of the keys";
        for (std::string_view key : keys) {
            known += (key == *keys.begin() ? " " : ", ") + std::string(key);
        }
        fail(known, "the key " + shown(json(item.key())));
    }
}

bool JsonPlace::has(std::string_view key) const {
    return value_ != nullptr && value_->is_object() && value_->contains(key);
}

bool JsonPlace::isNull() const { return value_ != nullptr && value_->is_null(); }

JsonPlace JsonPlace::operator[](std::string_view key) const {
    const json *member = has(key) ? &*value_->find(key) : nullptr;
    return {member, file_, place_ + "/" + std::string(key)};
}

std::size_t JsonPlace::entries() const {
    std::size_t count = 0;
    for (const json &member : *value_) {
        count += member.is_array() ? member.size() : 0;
    }
    return count;
}

std::vector<JsonPlace> JsonPlace::items() const {
    std::vector<JsonPlace> result;
    if (value_ == nullptr) {
        return result;
    }
    if (!value_->is_array()) {
        fail("a list");
    }
    result.reserve(value_->size());
    for (const json &element : *value_) {
        result.push_back({&element, file_, place_ + "/" + std::to_string(result.size())});
    }
    return result;
}

bool JsonPlace::boolean() const {
    if (value_ == nullptr || !value_->is_boolean()) {
        fail("true or false");
    }
    return value_->get<bool>();
}

std::string JsonPlace::text() const {
    if (value_ == nullptr || !value_->is_string()) {
        fail("a text");
    }
    return value_->get<std::string>();
}

std::string JsonPlace::nonEmptyText() const {
    if (value_ == nullptr || !value_->is_string() ||
        value_->get_ref<const std::string &>().empty()) {
        fail("a text that is not empty");
    }
    return text();
}

std::int32_t JsonPlace::integer(std::int32_t low, std::int32_t high) const {
    const bool whole = value_ != nullptr && value_->is_number_integer();
    // A number beyond 64 bits is kept as a real one and is no whole number here.
    const bool huge = whole && value_->is_number_unsigned() &&
                      value_->get<std::uint64_t>() > static_cast<std::uint64_t>(high);
    if (!whole || huge || value_->get<std::int64_t>() < low || value_->get<std::int64_t>() > high) {
        fail("a whole number from " + std::to_string(low) + " to " + std::to_string(high));
    }
    return value_->get<std::int32_t>();
}

double JsonPlace::real(double low, double high) const {
    const bool number = value_ != nullptr && value_->is_number();
    if (!number || !(value_->get<double>() >= low && value_->get<double>() <= high)) {
        fail("a number from " + trimmedNumber(low) + " to " + trimmedNumber(high));
    }
    return value_->get<double>();
}

double JsonPlace::date() const {
    const bool isText = value_ != nullptr && value_->is_string();
    const auto seconds = isText ? parseDate(value_->get_ref<const std::string &>()) : std::nullopt;
    if (!seconds) {
        fail("a date such as \"2014-05-13T21:33:20+08:00\"");
    }
    return *seconds;
}

std::string JsonPlace::picture() const {
    std::string name = value_ != nullptr && value_->is_string() ? text() : std::string();
    if (!name.ends_with(".png") || name == ".png" || name.find('/') != std::string::npos) {
        fail("the name of a picture such as \"logo.png\", without a folder");
    }
    return name;
}

std::string JsonPlace::number() const {
    const bool isText = value_ != nullptr && value_->is_string();
    std::string pure = isText ? pureNumber(value_->get_ref<const std::string &>()) : std::string();
    if (pure.size() < kFewestDigits || pure.size() > kMostDigits) {
        fail("a phone number of 3 to 20 digits, as a text");
    }
    return pure;
}

std::string JsonPlace::compactJson() const { return value_ == nullptr ? "null" : value_->dump(); }

std::string JsonPlace::textOr(std::string_view fallback) const {
    return value_ == nullptr ? std::string(fallback) : text();
}

std::string JsonPlace::pictureOrNone() const {
    return value_ == nullptr ? std::string() : picture();
}

std::int32_t JsonPlace::integerOr(std::int32_t low, std::int32_t fallback) const {
    return value_ == nullptr ? fallback : integer(low);
}

double JsonPlace::realOr(double low, double high, double fallback) const {
    return value_ == nullptr ? fallback : real(low, high);
}

}  // namespace companion
