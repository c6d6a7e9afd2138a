#include "Fixups.hpp"

#include <cstdio>
#include <optional>

namespace loader {
namespace {

constexpr uint8_t kPointer = 1;

[[noreturn]] void refuseOpcode(const char *list, uint8_t opcode) {
    char number[8];
    std::snprintf(number, sizeof number, "%#x", opcode);
    throw Fault(std::string("its ") + list + " list has the fixup kind " + number +
                    ", which the loader does not know",
                "keep it out of the library, or teach it to device/loader/Fixups.cpp");
}

/// A place in a segment's part of the file, beyond which there is nothing to fix.
class Place {
  public:
    explicit Place(const Slice &slice) : slice_(slice) {}

    void set(size_t segment, uint64_t offset) {
        if (segment >= slice_.segments.size()) {
            throw Fault("a fixup lies in a segment that it does not have");
        }
        segment_ = &slice_.segments[segment];
        address_ = segment_->address + offset;
    }
    void advance(uint64_t bytes) { address_ += bytes; }

    /// The word here; the place goes on behind it.
    uint64_t next() {
        if (!segment_ || address_ < segment_->address ||
            address_ - segment_->address + sizeof(Word) > segment_->fileSize) {
            throw Fault("a fixup lies outside the segments");
        }
        address_ += sizeof(Word);
        return address_ - sizeof(Word);
    }

  private:
    const Slice &slice_;
    const Segment *segment_ = nullptr;
    uint64_t address_ = 0;
};

/// Carries out a list of binds. The one of lazy binds goes on after each end.
class BindList {
  public:
    BindList(const Slice &slice, Bytes list) : slice_(slice), cursor_(list), place_(slice) {}

    /// Up to the next end; returns whether there was one.
    bool run(const std::function<void(const Bind &)> &use) {
        while (!cursor_.isAtEnd()) {
            const uint8_t byte = cursor_.byte();
            if (byte == 0) {
                return true;
            }
            step(byte & 0xf0, byte & 0x0f, use);
        }
        return false;
    }

  private:
    void step(uint8_t opcode, uint8_t immediate, const std::function<void(const Bind &)> &use) {
        switch (opcode) {
        case 0x10:
            setLibrary(immediate);
            break;
        case 0x20:
            setLibrary(cursor_.uleb());
            break;
        case 0x40:
            if (immediate) {
                throw Fault("it imports " + cursor_.text() + " weakly", "import it plainly");
            }
            bind_.symbol = cursor_.text();
            break;
        case 0x50:
            if (immediate != kPointer) {
                refuseOpcode("bind", opcode | immediate);
            }
            break;
        case 0x60:
            bind_.addend = cursor_.sleb();
            break;
        case 0x70:
            place_.set(immediate, cursor_.uleb());
            break;
        case 0x80:
            place_.advance(cursor_.uleb());
            break;
        case 0x90:
            bind(use, 1, 0);
            break;
        case 0xa0:
            bind(use, 1, 0);
            place_.advance(cursor_.uleb());
            break;
        case 0xb0:
            bind(use, 1, immediate * sizeof(Word));
            break;
        case 0xc0: {
            const uint64_t times = cursor_.uleb();
            bind(use, times, cursor_.uleb());
            break;
        }
        default:
            refuseOpcode("bind", opcode | immediate);
        }
    }

    void setLibrary(uint64_t ordinal) {
        if (ordinal < 1 || ordinal > slice_.libraries.size()) {
            throw Fault("a bind is from a library that it does not load");
        }
        bind_.library = slice_.libraries[ordinal - 1];
    }

    void bind(const std::function<void(const Bind &)> &use, uint64_t times, uint64_t gap) {
        for (uint64_t i = 0; i < times; ++i) {
            bind_.address = place_.next();
            use(bind_);
            place_.advance(gap);
        }
    }

    const Slice &slice_;
    Cursor cursor_;
    Place place_;
    Bind bind_ = {};
};

}  // namespace

void eachRebase(const Slice &slice, const std::function<void(uint64_t address)> &use) {
    Cursor cursor(slice.content(slice.rebases));
    Place place(slice);
    const auto repeat = [&](uint64_t times, uint64_t gap) {
        for (uint64_t i = 0; i < times; ++i) {
            use(place.next());
            place.advance(gap);
        }
    };
    while (!cursor.isAtEnd()) {
        const uint8_t byte = cursor.byte(), immediate = byte & 0x0f;
        switch (byte & 0xf0) {
        case 0x00:
            return;
        case 0x10:
            if (immediate != kPointer) {
                refuseOpcode("rebase", byte);
            }
            break;
        case 0x20:
            place.set(immediate, cursor.uleb());
            break;
        case 0x30:
            place.advance(cursor.uleb());
            break;
        case 0x40:
            place.advance(immediate * sizeof(Word));
            break;
        case 0x50:
            repeat(immediate, 0);
            break;
        case 0x60:
            repeat(cursor.uleb(), 0);
            break;
        case 0x70:
            repeat(1, cursor.uleb());
            break;
        case 0x80: {
            const uint64_t times = cursor.uleb();
            repeat(times, cursor.uleb());
            break;
        }
        default:
            refuseOpcode("rebase", byte);
        }
    }
}

void eachBind(const Slice &slice, const std::function<void(const Bind &)> &use) {
    BindList(slice, slice.content(slice.binds)).run(use);
}

void eachLazyBind(const Slice &slice, const std::function<void(const Bind &)> &use) {
    for (BindList list(slice, slice.content(slice.lazyBinds)); list.run(use);) {
    }
}

Bind lazyBindAt(const Slice &slice, uint64_t offset) {
    std::optional<Bind> found;
    BindList(slice, slice.content(slice.lazyBinds).from(offset)).run([&](const Bind &bind) {
        found = bind;
    });
    if (!found) {
        throw Fault("a stub helper names no lazy bind");
    }
    return *found;
}

}  // namespace loader
