// The bytes of a file, never read beyond their end.
#pragma once

#include <cstdint>
#include <cstring>
#include <span>
#include <string>

#include "Fault.hpp"

namespace loader {

class Bytes {
  public:
    explicit Bytes(std::span<const uint8_t> all) : all_(all) {}

    size_t size() const { return all_.size(); }
    const uint8_t *data() const { return all_.data(); }

    Bytes part(size_t offset, size_t size) const {
        if (offset > all_.size() || size > all_.size() - offset) {
            throw Fault("it ends early");
        }
        return Bytes(all_.subspan(offset, size));
    }
    Bytes from(size_t offset) const { return part(offset, all_.size() - std::min(offset, size())); }

    template <typename Value>
    Value at(size_t offset) const {
        Value value = {};
        std::memcpy(&value, part(offset, sizeof value).data(), sizeof value);
        return value;
    }

    /// A text up to its zero.
    std::string textAt(size_t offset) const {
        const Bytes rest = from(offset);
        const void *end = std::memchr(rest.data(), 0, rest.size());
        if (!end) {
            throw Fault("a text in it has no end");
        }
        return {reinterpret_cast<const char *>(rest.data()), static_cast<const char *>(end)};
    }

  private:
    std::span<const uint8_t> all_;
};

/// Reads one thing after another.
class Cursor {
  public:
    explicit Cursor(Bytes bytes) : bytes_(bytes) {}

    size_t position() const { return at_; }
    bool isAtEnd() const { return at_ >= bytes_.size(); }
    uint8_t byte() { return bytes_.at<uint8_t>(at_++); }

    /// A number in groups of seven bits.
    uint64_t uleb() {
        unsigned bits = 0;
        return groups(bits);
    }
    int64_t sleb() {
        unsigned bits = 0;
        const uint64_t value = groups(bits);
        const bool isNegative = bits < 64 && (value >> (bits - 1) & 1);
        return static_cast<int64_t>(isNegative ? value | ~uint64_t{0} << bits : value);
    }

    std::string text() {
        const std::string text = bytes_.textAt(at_);
        at_ += text.size() + 1;
        return text;
    }

  private:
    uint64_t groups(unsigned &bits) {
        uint64_t value = 0;
        for (uint8_t group = 0x80; group & 0x80; bits += 7) {
            group = byte();
            value |= bits < 64 ? uint64_t{group & 0x7fU} << bits : 0;
        }
        return value;
    }

    Bytes bytes_;
    size_t at_ = 0;
};

}  // namespace loader
