// What a Mach-O file says of its slice for the processor that this is compiled for.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "Bytes.hpp"

namespace loader {

/// A word of the slice's memory.
using Word = uintptr_t;

struct Segment {
    uint64_t address, size, offset, fileSize;
    int protection;
};

struct Range {
    uint64_t offset = 0, size = 0;
};

struct Slice {
    std::vector<uint8_t> file;
    std::vector<Segment> segments;
    std::vector<std::string> libraries;  // by ordinal, from 1 on
    Range rebases, binds, lazyBinds, exports, functionStarts;
    /// Where the file would have its first byte in memory. All addresses here count from there.
    uint64_t preferredBase = 0;
    uint64_t initRoutine = 0;
    bool isProgram = false;        // to be called by its main, and with imports of its own
    Range stubHelper, unwindInfo;  // in memory

    /// Reads and checks a thin or fat file; raises Fault for what the loader would have to guess.
    static Slice read(const char *path);

    Bytes content(Range range) const { return Bytes(file).part(range.offset, range.size); }
    uint64_t memorySize() const;
    /// Where every function begins, ascending.
    std::vector<uint64_t> functions() const;
    std::map<std::string, uint64_t> exportedSymbols() const;
};

}  // namespace loader
