// What was worked out for a text in a font, kept for the next time: a screen is drawn many times
// over, nearly always with the same texts.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "uikit/drawing/Font.hpp"

namespace sim {

template <class Character, class Value>
class TextMemory {
  public:
    using Text = std::basic_string_view<Character>;

    /// What `work` returned when it was first asked for the text. The reference is good until the
    /// next call.
    const Value &get(Text text, const Font &font, const std::function<Value()> &work) {
        const Key key{std::basic_string<Character>(text), font};
        const auto known = known_.find(key);
        if (known != known_.end()) {
            return known->second;
        }
        constexpr size_t kMost = 1000;  // texts; forgotten all at once
        constexpr size_t kLongest = 200;
        if (text.size() > kLongest) {
            return unkept_ = work();
        }
        if (known_.size() >= kMost) {
            known_.clear();
        }
        return known_[key] = work();
    }

  private:
    struct Key {
        std::basic_string<Character> text;
        Font font;

        bool operator==(const Key &) const = default;
    };
    struct Hash {
        size_t operator()(const Key &key) const { return std::hash<Text>()(key.text); }
    };

    std::unordered_map<Key, Value, Hash> known_;
    Value unkept_{};
};

}  // namespace sim
