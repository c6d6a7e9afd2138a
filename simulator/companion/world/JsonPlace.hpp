// A value of a JSON file together with the place where it stands, so that every disappointment can
// say exactly where and what.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json_fwd.hpp>

namespace companion {

class JsonPlace {
  public:
    static constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();

    /// The whole document; `document` and `file` must outlive every place made from it.
    JsonPlace(const nlohmann::json &document, const std::string &file);

    /// Throws WorldError "FILE: PLACE: found X, expected Y"; without `found`, X is the value here.
    [[noreturn]] void fail(std::string_view expected, std::string_view found = {}) const;

    /// Checks that this is an object with no keys but these.
    void expectObject(std::initializer_list<std::string_view> keys) const;

    bool has(std::string_view key) const;
    bool isNull() const;
    /// The member of an object. A missing member is a place too; reading from it fails.
    JsonPlace operator[](std::string_view key) const;
    /// Of all lists that are members of this object.
    std::size_t entries() const;
    /// The elements of a list; a missing list is an empty one.
    std::vector<JsonPlace> items() const;

    bool boolean() const;
    std::string text() const;          ///< may be empty
    std::string nonEmptyText() const;  ///< one character at least
    std::int32_t integer(std::int32_t low, std::int32_t high = kLargest) const;
    double real(double low, double high) const;
    double date() const;              ///< seconds since 1970
    std::string picture() const;      ///< the name of a PNG file, without a folder
    std::string number() const;       ///< the pure number of a text with 3 to 20 digits
    std::string compactJson() const;  ///< the value itself on one line; null when missing

    /// The value, or the fallback when the member is missing.
    bool booleanOr(bool fallback) const { return value_ == nullptr ? fallback : boolean(); }
    std::string textOr(std::string_view fallback) const;
    std::string pictureOrNone() const;
    std::int32_t integerOr(std::int32_t low, std::int32_t fallback) const;
    double realOr(double low, double high, double fallback) const;

    const std::string &place() const { return place_; }

  private:
    JsonPlace(const nlohmann::json *value, const std::string *file, std::string place);

    const nlohmann::json *value_;  // null: missing
    const std::string *file_;
    std::string place_;
};

}  // namespace companion
