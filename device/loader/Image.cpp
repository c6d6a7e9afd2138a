#include "Image.hpp"

#include <algorithm>
#include <cstring>
#include <memory>

#include <sys/mman.h>
#include <unistd.h>

#include "Fixups.hpp"
#include "Imports.hpp"

namespace loader {
namespace {

std::unique_ptr<Image> g_image;

constexpr size_t wholePages(size_t size) { return (size + kRoomBehind - 1) & ~(kRoomBehind - 1); }

void map(Image &image) {
    image.size = wholePages(image.slice.memorySize());
    void *const pages = mmap(nullptr, image.size + kRoomBehind, PROT_READ | PROT_WRITE,
                             MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (pages == MAP_FAILED) {
        throw Fault("there is no memory for it", "free some");
    }
    image.base = static_cast<uint8_t *>(pages);
    for (const Segment &segment : image.slice.segments) {
        std::memcpy(image.at(segment.address), image.slice.file.data() + segment.offset,
                    segment.fileSize);
    }
}

void protect(const Image &image) {
    for (const Segment &segment : image.slice.segments) {
        mprotect(image.at(segment.address), wholePages(segment.size), segment.protection);
    }
    char *const base = reinterpret_cast<char *>(image.base);
    __builtin___clear_cache(base, base + image.size);
}

void *addressFor(const Bind &bind) {
    return static_cast<uint8_t *>(findImport(bind.library, bind.symbol)) + bind.addend;
}

bool leadsToStubHelper(const Image &image, Word word) {
    const Word address = word - reinterpret_cast<Word>(image.base);
    const Range helper = image.slice.stubHelper;
    return address >= helper.offset && address - helper.offset < helper.size;
}

void fix(const Image &image) {
    eachRebase(image.slice, [&](uint64_t address) {
        image.word(address) += reinterpret_cast<Word>(image.base) - image.slice.preferredBase;
    });
    eachBind(image.slice, [&](const Bind &bind) {
        image.word(bind.address) = reinterpret_cast<Word>(addressFor(bind));
    });
    // These are left to the stub helper until they are called, but a missing one shows now.
    eachLazyBind(image.slice, [&](const Bind &bind) {
        addressFor(bind);
        if (!leadsToStubHelper(image, image.word(bind.address))) {
            throw Fault("its lazy pointer of " + bind.symbol +
                        " does not lead to the stub helper once it is slid");
        }
    });
}

void callInitRoutine(const Image &image) {
    static const char *const kArguments[] = {"MobilePhone", nullptr};
    static const char *const kNothing[] = {nullptr};
    const void *const passed[] = {reinterpret_cast<void *>(1), kArguments, environ, kNothing,
                                  nullptr};
    if (!loaderCallInit(image.at(image.slice.initRoutine), passed)) {
        stop("the init routine does not keep the registers that are its caller's");
    }
}

}  // namespace

const Image *image() { return g_image.get(); }

void loadImage(const char *path) {
    if (g_image) {
        if (g_image->path != path) {
            throw Fault("this process holds another library", "load one alone");
        }
        return;
    }
    auto loaded = std::make_unique<Image>();
    loaded->path = path;
    loaded->slice = Slice::read(path);
    loaded->functions = loaded->slice.functions();
    loaded->exports = loaded->slice.exportedSymbols();
    map(*loaded);
    useImportsOf(loaded->slice.isProgram ? Kind::Program : Kind::Library);
    fix(*loaded);
    protect(*loaded);
    g_image = std::move(loaded);
    if (!isLeftOut("unwinding")) {
        registerUnwinding(*g_image);
    }
    if (!g_image->slice.isProgram) {
        callInitRoutine(*g_image);
    }
}

/// What a stub helper asks for at an import's first call, by way of dyld_stub_binder: the function,
/// which its lazy pointer holds from then on. `place` is a variable of the image's.
extern "C" void *loaderBindLazily(const void *place, Word offset) {
    try {
        const Image *const image = loader::image();
        if (!image || !image->holds(place)) {
            throw Fault("a stub helper hands over what is no variable of the library's");
        }
        const Bind bind = lazyBindAt(image->slice, offset);
        void *const function = addressFor(bind);
        Word &pointer = image->word(bind.address);
        // Another thread may have been faster.
        if (!leadsToStubHelper(*image, pointer) && pointer != reinterpret_cast<Word>(function)) {
            throw Fault("a lazy pointer changed before it was bound");
        }
        pointer = reinterpret_cast<Word>(function);
        return function;
    } catch (const Fault &fault) {
        stop(fault.what());
    }
}

}  // namespace loader
