// The image's compact unwind information, written out as the table of frames that this process
// unwinds by.
#include <cstring>
#include <map>
#include <vector>

#include "Image.hpp"

extern "C" void __register_frame(void *);

namespace loader {
namespace {

constexpr uint32_t kModes = 0x0f000000, kFrameless = 0x02000000, kWithFrame = 0x04000000;
constexpr uint32_t kHasTable = 0x40000000, kRegularPage = 2;
constexpr unsigned kFramePointer = 29, kLink = 30, kStackPointer = 31;

// Instructions of a table of frames, and how its pointers are written.
constexpr uint8_t kDefineFrame = 0x0c, kSavedAt = 0x80, kSavedAtLong = 0x05;
constexpr uint8_t kAbsolute = 0x00, kMinus8 = 0x78;

/// Pairs of registers that a function may have saved, from its frame downwards.
constexpr struct {
    uint32_t bit;
    unsigned first;
} kPairs[] = {{0x001, 19}, {0x002, 21}, {0x004, 23}, {0x008, 25}, {0x010, 27},
              {0x100, 72}, {0x200, 74}, {0x400, 76}, {0x800, 78}};

struct Function {
    uint32_t start, encoding;
};

/// The image's own index.
struct Index {
    std::vector<Function> functions;  // and an end
    std::map<uint32_t, uint32_t> tables;
    Bytes bytes;

    explicit Index(Bytes all) : bytes(all) {
        const uint32_t entries = word(20), count = word(24);
        if (word(0) != 1 || count == 0) {
            throw Fault("its __unwind_info is of a kind that the loader does not know");
        }
        for (uint32_t i = 0; i + 1 < count; ++i) {
            const uint32_t entry = entries + i * 12;
            for (uint32_t at = word(entry + 8); at < word(entry + 20); at += 8) {
                tables[word(at)] = word(at + 4);
            }
            if (const uint32_t page = word(entry + 4)) {
                addPage(page, word(entry));
            }
        }
        functions.push_back({word(entries + (count - 1) * 12), 0});
    }

    uint32_t word(size_t at) const { return bytes.at<uint32_t>(at); }

    /// Where the image keeps the address of a function's personality routine; 0: it has none.
    uint32_t personality(uint32_t encoding) const {
        const uint32_t number = encoding >> 28 & 3;
        return number ? word(word(12) + (number - 1) * 4) : 0;
    }

  private:
    void addPage(uint32_t page, uint32_t first) {
        const uint32_t list = page + bytes.at<uint16_t>(page + 4);
        for (uint32_t i = 0; i < bytes.at<uint16_t>(page + 6); ++i) {
            if (word(page) == kRegularPage) {
                functions.push_back({word(list + i * 8), word(list + i * 8 + 4)});
                continue;
            }
            const uint32_t entry = word(list + i * 4), encoding = entry >> 24, common = word(8);
            const uint32_t at = encoding < common
                                    ? word(4) + encoding * 4
                                    : page + bytes.at<uint16_t>(page + 8) + (encoding - common) * 4;
            functions.push_back({first + (entry & 0xffffff), word(at)});
        }
    }
};

/// A table of frames in the making: common parts, one for each personality, and functions.
class Frames {
  public:
    explicit Frames(const Image &image) : image_(image) {}

    void add(const Function &function, uint32_t end, uint32_t table, uint32_t personality) {
        const size_t common = commonPart(personality);
        const size_t begin = beginRecord();
        put<uint32_t>(bytes_.size() - common);
        put(image_.at(function.start));
        put<uint64_t>(end - function.start);
        if (personality) {
            number(8);
            put(table ? image_.at(table) : nullptr);
        } else {
            number(0);
        }
        addRegisters(function.encoding);
        endRecord(begin);
    }

    /// The whole, with the end that a reader looks for.
    std::vector<uint8_t> finished() {
        put<uint32_t>(0);
        return std::move(bytes_);
    }

  private:
    size_t commonPart(uint32_t personality) {
        if (const auto known = common_.find(personality); known != common_.end()) {
            return known->second;
        }
        const size_t begin = beginRecord();
        put<uint32_t>(0);
        put<uint8_t>(1);
        for (const char *at = personality ? "zPLR" : "zR";; ++at) {
            put(*at);
            if (!*at) {
                break;
            }
        }
        number(1);
        put(kMinus8);
        number(kLink);
        number(personality ? 11 : 1);
        if (personality) {
            put(kAbsolute);
            put(image_.word(personality));
            put(kAbsolute);
        }
        put(kAbsolute);
        defineFrame(kStackPointer, 0);
        endRecord(begin);
        return common_[personality] = begin - 4;
    }

    void addRegisters(uint32_t encoding) {
        unsigned slot = 1;
        if ((encoding & kModes) == kWithFrame) {
            defineFrame(kFramePointer, 16);
            savedAt(kLink, slot++);
            savedAt(kFramePointer, slot++);
        } else {
            defineFrame(kStackPointer, (encoding >> 12 & 0xfff) * 16);
        }
        for (const auto &pair : kPairs) {
            if (encoding & pair.bit) {
                savedAt(pair.first, slot++);
                savedAt(pair.first + 1, slot++);
            }
        }
    }

    void defineFrame(unsigned base, unsigned offset) {
        put(kDefineFrame);
        number(base);
        number(offset);
    }

    void savedAt(unsigned which, unsigned slot) {
        if (which < 64) {
            put<uint8_t>(kSavedAt | which);
        } else {
            put(kSavedAtLong);
            number(which);
        }
        number(slot);
    }

    size_t beginRecord() {
        put<uint32_t>(0);
        return bytes_.size();
    }
    void endRecord(size_t begin) {
        while ((bytes_.size() - begin) % 8 != 4) {
            put<uint8_t>(0);
        }
        const uint32_t size = bytes_.size() - begin;
        std::memcpy(&bytes_[begin - 4], &size, sizeof size);
    }

    template <typename Value>
    void put(Value value) {
        const auto *const from = reinterpret_cast<const uint8_t *>(&value);
        bytes_.insert(bytes_.end(), from, from + sizeof value);
    }
    void number(uint64_t value) {
        for (; value >= 0x80; value >>= 7) {
            put<uint8_t>(value | 0x80);
        }
        put<uint8_t>(value);
    }

    const Image &image_;
    std::vector<uint8_t> bytes_;
    std::map<uint32_t, size_t> common_;
};

}  // namespace

void registerUnwinding(const Image &image) {
    const Range info = image.slice.unwindInfo;
    if (info.size == 0) {
        throw Fault("it has no __unwind_info");
    }
    const Index index(
        Bytes({static_cast<const uint8_t *>(image.at(info.offset)), size_t(info.size)}));
    Frames frames(image);
    for (size_t i = 0; i + 1 < index.functions.size(); ++i) {
        const Function &function = index.functions[i];
        const uint32_t mode = function.encoding & kModes;
        if (mode != 0 && mode != kFrameless && mode != kWithFrame) {
            throw Fault("the unwinding of a function is not in __unwind_info");
        }
        if (mode != 0) {
            const auto table = index.tables.find(function.start);
            const bool hasTable = (function.encoding & kHasTable) && table != index.tables.end();
            frames.add(function, index.functions[i + 1].start, hasTable ? table->second : 0,
                       index.personality(function.encoding));
        }
    }
    // Whoever unwinds reads it from here as long as the process lives.
    static std::vector<uint8_t> g_table;
    g_table = frames.finished();
    __register_frame(g_table.data());
}

}  // namespace loader
