#include "Slice.hpp"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <set>

#include "MachO.hpp"

namespace loader {
namespace {

using namespace macho;

constexpr auto kNotForUs = "iOS 7 or this loader cannot have it, so keep it out of the library";

std::vector<uint8_t> wholeFile(const char *path) {
    std::ifstream stream(path, std::ios::binary | std::ios::ate);
    if (!stream) {
        throw Fault(std::strerror(errno));
    }
    std::vector<uint8_t> bytes(stream.tellg());
    stream.seekg(0);
    stream.read(reinterpret_cast<char *>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

Bytes sliceOf(Bytes file) {
    const auto big = [&](size_t offset) { return __builtin_bswap32(file.at<uint32_t>(offset)); };
    if (file.size() < sizeof(Header) || big(0) != kFatMagic) {
        return file;
    }
    for (size_t i = 0; i < big(4); ++i) {
        const size_t entry = 8 + i * sizeof(FatEntry);
        if (big(entry) == kProcessor) {
            return file.part(big(entry + offsetof(FatEntry, offset)),
                             big(entry + offsetof(FatEntry, size)));
        }
    }
    throw Fault(std::string("it has no slice for ") + kSliceName, "build it with SLICES naming it");
}

std::string fixedName(const char (&name)[16]) { return {name, strnlen(name, sizeof name)}; }

/// Fills in a slice command by command.
class Reader {
  public:
    explicit Reader(Slice &slice) : slice_(slice), bytes_(slice.file) {}

    void read() {
        if (bytes_.size() < kHeaderSize || bytes_.at<uint32_t>(0) != kMagic) {
            throw Fault(std::string("it is no Mach-O file for ") + kSliceName);
        }
        const auto header = bytes_.at<Header>(0);
        slice_.isProgram = header.type == kProgram;
        if (header.processor != kProcessor || (header.type != kDylib && !slice_.isProgram)) {
            throw Fault(std::string("it is no library for ") + kSliceName);
        }
        size_t at = kHeaderSize;
        for (uint32_t i = 0; i < header.commands; ++i) {
            const auto command = bytes_.at<Command>(at);
            readCommand(command.kind, bytes_.part(at, std::max<size_t>(command.size, 8)));
            at += std::max<size_t>(command.size, 8);
        }
        if (slice_.segments.empty() || slice_.segments.front().address != 0) {
            throw Fault("its first segment does not begin at 0");
        }
        if (!hasInfo_ || (slice_.initRoutine == 0 && !slice_.isProgram)) {
            throw Fault(hasInfo_ ? "it names no init routine" : "it has no LC_DYLD_INFO");
        }
    }

  private:
    void readCommand(uint32_t kind, Bytes command) {
        switch (kind) {
        case kSegment:
            readSegment(command);
            break;
        case kLibrary:
            slice_.libraries.push_back(command.textAt(command.at<LibraryCommand>(0).name));
            break;
        case kDyldInfo:
        case kDyldInfoOnly:
            readInfo(command.at<InfoCommand>(0));
            break;
        case kRoutines:
            slice_.initRoutine = command.at<RoutinesCommand>(0).initRoutine;
            break;
        case kFunctionStarts: {
            const auto data = command.at<DataCommand>(0);
            slice_.functionStarts = {data.offset, data.size};
            break;
        }
        case kMain:  // its place is that of its export
            break;
        case kWeakLibrary:
            throw Fault("it loads a library weakly", kNotForUs);
        case kChainedFixups:
            throw Fault("it has chained fixups", kNotForUs);
        default:
            if (kind & kNewerLoader) {
                throw Fault("it has a load command that the loader does not know", kNotForUs);
            }
        }
    }

    void readInfo(const InfoCommand &info) {
        if (info.weakBindsSize) {
            throw Fault("it has weak symbols", kNotForUs);
        }
        slice_.rebases = {info.rebases, info.rebasesSize};
        slice_.binds = {info.binds, info.bindsSize};
        slice_.lazyBinds = {info.lazyBinds, info.lazyBindsSize};
        slice_.exports = {info.exports, info.exportsSize};
        hasInfo_ = true;
    }

    void readSegment(Bytes command) {
        auto segment = command.at<SegmentCommand>(0);
        if (segment.protection == 0) {  // a program's guard against null pointers
            slice_.preferredBase = segment.size;
            slice_.segments.emplace_back();
            return;
        }
        segment.address -= slice_.preferredBase;
        constexpr Word kMost = 1 << 24;  // which no add-on needs
        if (segment.address > kMost || segment.size > kMost || segment.fileSize > segment.size) {
            throw Fault("its segment " + fixedName(segment.name) + " lies beyond any memory");
        }
        bytes_.part(segment.offset, segment.fileSize);
        slice_.segments.push_back({segment.address, segment.size, segment.offset, segment.fileSize,
                                   segment.protection & 7});
        for (uint32_t i = 0; i < segment.sections; ++i) {
            readSection(command.at<Section>(sizeof segment + i * sizeof(Section)));
        }
    }

    void readSection(const Section &section) {
        const std::string name = fixedName(section.name);
        const uint8_t type = section.flags & 0xff;
        if (type >= kThreadLocalFirst && type <= kThreadLocalLast) {
            throw Fault("it has thread-local variables in " + name, kNotForUs);
        }
        static const std::set<std::string> kNever = {"__objc_classlist", "__objc_nlclslist",
                                                     "__objc_catlist", "__eh_frame"};
        const bool runs =
            type == kInitialisers || type == kTerminators || type == kInitialiserOffsets;
        if (runs || (kNever.contains(name) && section.size)) {
            throw Fault("it has a section " + name, kNotForUs);
        }
        if (name == "__stub_helper") {
            slice_.stubHelper = {section.address - slice_.preferredBase, section.size};
        } else if (name == "__unwind_info") {
            slice_.unwindInfo = {section.address - slice_.preferredBase, section.size};
        }
    }

    Slice &slice_;
    Bytes bytes_;
    bool hasInfo_ = false;
};

void readExports(Bytes trie, size_t node, const std::string &name,
                 std::map<std::string, uint64_t> &found) {
    constexpr size_t kLongest = 1000;
    Cursor cursor(trie.from(node));
    const uint64_t size = cursor.uleb();
    if (size) {
        if (cursor.uleb() != 0) {
            throw Fault("its export " + name + " is of a kind that the loader does not know");
        }
        found[name] = cursor.uleb();
    }
    Cursor children(trie.from(node + 1 + size));
    for (unsigned left = children.byte(); left > 0; --left) {
        const std::string longer = name + children.text();
        if (longer.size() == name.size() || longer.size() > kLongest) {
            throw Fault("its list of exports has no end");
        }
        readExports(trie, children.uleb(), longer, found);
    }
}

}  // namespace

Slice Slice::read(const char *path) {
    const std::vector<uint8_t> whole = wholeFile(path);
    const Bytes own = sliceOf(Bytes(whole));
    Slice slice;
    slice.file.assign(own.data(), own.data() + own.size());
    Reader(slice).read();
    return slice;
}

uint64_t Slice::memorySize() const {
    uint64_t end = 0;
    for (const Segment &segment : segments) {
        end = std::max(end, segment.address + segment.size);
    }
    return end;
}

std::vector<uint64_t> Slice::functions() const {
    std::vector<uint64_t> starts;
    Cursor cursor(content(functionStarts));
    uint64_t address = 0;
    while (!cursor.isAtEnd()) {
        const uint64_t step = cursor.uleb();
        if (step == 0) {
            break;
        }
        starts.push_back(address += step);
    }
    return starts;
}

std::map<std::string, uint64_t> Slice::exportedSymbols() const {
    std::map<std::string, uint64_t> found;
    readExports(content(exports), 0, "", found);
    return found;
}

}  // namespace loader
