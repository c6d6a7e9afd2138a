// Filling a format's conversions in, unit by unit.
#include "platform/Format.hpp"

#include <algorithm>
#include <cstdio>
#include <memory>

namespace objc {
namespace {

/// A cut may have left half a surrogate pair.
void replaceHalfCharacters(std::span<char16_t> units) {
    constexpr char16_t kReplacement = 0xFFFD;
    const auto isHalf = [&](size_t i, char16_t first) {
        return i < units.size() && (units[i] & 0xFC00U) == first;
    };
    for (size_t i = 0; i < units.size(); ++i) {
        if (isHalf(i, 0xD800) && isHalf(i + 1, 0xDC00)) {
            ++i;
        } else if (isHalf(i, 0xD800) || isHalf(i, 0xDC00)) {
            units[i] = kReplacement;
        }
    }
}

/// UTF-16 units that grow: short texts, which nearly all are, stay within the object.
class Units {
  public:
    /// Room for `count` more units, to be filled by the caller.
    char16_t *extend(size_t count) {
        if (length_ + count > capacity_) {
            grow(length_ + count);
        }
        char16_t *const room = units_ + length_;
        length_ += count;
        return room;
    }

    void append(std::span<const char16_t> units) { std::ranges::copy(units, extend(units.size())); }

    void append(NSString string) {
        const NSUInteger length = string.length();
        string.getCharacters(extend(length), {0, length});
    }

    template <class Number>
    void append(const char *conversion, Number number) {
        // Wide enough for every int32_t and, with up to nine decimals, for the largest double.
        char digits[330];
        const int count = std::snprintf(digits, sizeof digits, conversion, number);
        std::copy_n(digits, count, extend(static_cast<size_t>(count)));
    }

    NSString string() {
        const NSString made = NSString::withCharacters(units_, length_);
        if (made) [[likely]] {
            return made;
        }
        // The device's Foundation takes half a character, the development host's refuses the text.
        replaceHalfCharacters({units_, length_});
        return NSString::withCharacters(units_, length_);
    }

  private:
    void grow(size_t wanted) {
        const size_t capacity = std::max(wanted, 2 * capacity_);
        std::unique_ptr<char16_t[]> bigger(new char16_t[capacity]);
        std::copy_n(units_, length_, bigger.get());
        heap_ = std::move(bigger);
        units_ = heap_.get();
        capacity_ = capacity;
    }

    char16_t inline_[128];
    std::unique_ptr<char16_t[]> heap_;
    char16_t *units_ = inline_;
    size_t capacity_ = std::size(inline_);
    size_t length_ = 0;
};

void appendArgument(Units &out, const FormatArgument &argument, char16_t decimals) {
    switch (argument.kind) {
    case FormatArgument::Kind::Object:
        // As the platform's own formatting shows an object that is not there.
        out.append(argument.object ? argument.object.description() : "(null)"_ns);
        break;
    case FormatArgument::Kind::Integer:
        out.append("%d", argument.integer);
        break;
    case FormatArgument::Kind::Real: {
        const char conversion[] = {'%', '.', static_cast<char>(decimals), 'f', '\0'};
        out.append(conversion, argument.real);
        break;
    }
    }
}

}  // namespace

NSString formatUnits(std::span<const char16_t> text, std::span<const FormatArgument> arguments) {
    Units out;
    auto argument = arguments.begin();
    for (auto rest = text; !rest.empty();) {
        const auto percent = std::ranges::find(rest, u'%');
        const auto plain = static_cast<size_t>(percent - rest.begin());
        out.append(rest.first(plain));
        rest = rest.subspan(plain);
        if (!rest.empty()) {
            const bool isReal = rest[1] == u'.';
            appendArgument(out, *argument++, isReal ? rest[2] : u'0');
            rest = rest.subspan(isReal ? 4 : 2);
        }
    }
    return out.string();
}

}  // namespace objc
