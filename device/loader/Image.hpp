// A library of Apple's format in this process's memory, as the device's loader would leave it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "Slice.hpp"

namespace loader {

struct Image {
    std::string path;
    Slice slice;
    uint8_t *base = nullptr;
    size_t size = 0;
    std::vector<uint64_t> functions;
    std::map<std::string, uint64_t> exports;

    bool holds(const void *address) const { return address >= base && address < base + size; }
    void *at(uint64_t address) const { return base + address; }
    Word &word(uint64_t address) const { return *reinterpret_cast<Word *>(base + address); }
};

/// Behind the image's last page, memory for what has to lie near it.
inline constexpr size_t kRoomBehind = 4096;

/// Maps the library and has its init routine called; raises Fault. A process holds one at most.
void loadImage(const char *path);
/// The library in this process, or null.
const Image *image();

// Each processor's own.

/// Lets this process's exceptions pass through the image and be caught there.
void registerUnwinding(const Image &image);

/// Calls a function with five arguments, registers full of marks, on a stack no better aligned
/// than it may expect. Returns whether it kept the registers that are its caller's.
extern "C" bool loaderCallInit(void *function, const void *const *arguments);

}  // namespace loader
