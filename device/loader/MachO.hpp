// The structures and numbers of Mach-O files that the loader reads.
#pragma once

#include <cstdint>

namespace loader::macho {

using Word = uintptr_t;
inline constexpr bool kIs64 = sizeof(Word) == 8;

inline constexpr uint32_t kFatMagic = 0xcafebabe, kProgram = 2, kDylib = 6;
inline constexpr uint32_t kMagic = kIs64 ? 0xfeedfacf : 0xfeedface;
inline constexpr uint32_t kProcessor = kIs64 ? 0x0100000c : 12;
inline constexpr auto kSliceName = kIs64 ? "arm64" : "armv7";

enum CommandKind : uint32_t {
    kSegment32 = 0x1,
    kSymbols = 0x2,
    kLibrary = 0xc,
    kRoutines32 = 0x11,
    kSegment64 = 0x19,
    kRoutines64 = 0x1a,
    kDyldInfo = 0x22,
    kFunctionStarts = 0x26,
    kNewerLoader = 0x80000000,  // set in whatever a loader must know
    kWeakLibrary = 0x80000018,
    kMain = 0x80000028,
    kDyldInfoOnly = kDyldInfo | kNewerLoader,
    kChainedFixups = 0x80000034,
};
inline constexpr uint32_t kSegment = kIs64 ? kSegment64 : kSegment32;
inline constexpr uint32_t kRoutines = kIs64 ? kRoutines64 : kRoutines32;

enum SectionType : uint8_t {
    kInitialisers = 0x09,
    kTerminators = 0x0a,
    kThreadLocalFirst = 0x11,
    kThreadLocalLast = 0x15,
    kInitialiserOffsets = 0x16,
};

struct FatEntry {
    uint32_t processor, subtype, offset, size, alignment;
};

struct Header {
    uint32_t magic, processor, subtype, type, commands, commandsSize, flags;
};
inline constexpr size_t kHeaderSize = sizeof(Header) + (kIs64 ? 4 : 0);

struct Command {
    uint32_t kind, size;
};

struct SegmentCommand {
    Command command;
    char name[16];
    Word address, size, offset, fileSize;
    int32_t maximalProtection, protection;
    uint32_t sections, flags;
};

struct Section {
    char name[16], segment[16];
    Word address, size;
    uint32_t offset, alignment, relocations, relocationCount, flags, reserved[kIs64 ? 3 : 2];
};

struct LibraryCommand {
    Command command;
    uint32_t name, timestamp, version, compatibleVersion;
};

struct InfoCommand {
    Command command;
    uint32_t rebases, rebasesSize, binds, bindsSize, weakBinds, weakBindsSize, lazyBinds,
        lazyBindsSize, exports, exportsSize;
};

struct RoutinesCommand {
    Command command;
    Word initRoutine;
};

struct DataCommand {
    Command command;
    uint32_t offset, size;
};

}  // namespace loader::macho
