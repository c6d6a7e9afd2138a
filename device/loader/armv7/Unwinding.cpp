// Exceptions on their way through the image. Its functions register what they catch in lists at run
// time, and have no tables; this process unwinds by tables. So the whole image gets one entry,
// whose personality routine does with each frame what its list says, and restores its registers by
// reading its prologue.
#include <algorithm>
#include <bit>
#include <cstring>

#include <dlfcn.h>
#include <sys/mman.h>
#include <unwind.h>

#include "Image.hpp"

extern "C" _Unwind_Reason_Code loaderThrough(_Unwind_State state, _Unwind_Exception *exception,
                                             _Unwind_Context *unwinding);

namespace loader {
namespace {

constexpr uint32_t kFramePointer = 7, kStackPointer = 13, kLink = 14, kCounter = 15;
constexpr uint32_t kNoSite = ~0U;

/// What a function that catches keeps in its frame, and links to while it runs.
struct Try {
    Try *outer;
    uint32_t site;  // where it is, from 1 on; when landing, which pad to go to
    uint32_t data[4];
    void *personality;
    const uint8_t *table;
    uint32_t framePointer, pad, stackPointer;
};
thread_local Try *g_innermost;

/// The image's entry in the tables of this process, all in distances. Written behind the image,
/// since they have 31 bits.
struct Table {
    uint32_t start, entry;
    uint32_t personality, data;
    uint32_t code[2];
};
Table *g_table;

uint32_t distance(const void *to, const uint32_t &from) {
    return (reinterpret_cast<uint32_t>(to) - reinterpret_cast<uint32_t>(&from)) & 0x7fffffff;
}

enum class Found { Nothing, Cleanup, Handler };

struct Landing {
    Found what = Found::Nothing;
    uint32_t pad = 0, selector = 0;
};

/// What a chain of actions asks for. The image has no handlers but those that take everything.
Landing landingBy(Bytes actions, uint32_t pad, size_t action) {
    Landing landing = {Found::Cleanup, pad, 0};
    for (size_t at = action; at > 0;) {
        Cursor cursor(actions.from(at - 1));
        const int64_t type = cursor.sleb();
        const size_t place = at - 1 + cursor.position();
        const int64_t next = cursor.sleb();
        if (type < 0) {
            stop("an exception meets a list of those that may pass");
        }
        if (type > 0) {
            return {Found::Handler, pad, static_cast<uint32_t>(type)};
        }
        at = next ? place + next + 1 : 0;
    }
    return landing;
}

Landing landingOf(const Try &frame) {
    constexpr uint8_t kNone = 0xff;
    if (!frame.table || frame.site == kNoSite) {
        return {};
    }
    if (frame.site == 0) {
        stop("an exception comes up where the compiler allows none");
    }
    const Image &image = *loader::image();
    const Bytes table({frame.table, static_cast<const uint8_t *>(image.at(image.size))});
    Cursor cursor(table);
    if (cursor.byte() != kNone) {
        stop("a table of landing pads has a base");
    }
    if (cursor.byte() != kNone) {
        cursor.uleb();
    }
    cursor.byte();  // how its addresses are written, of which there are none
    const size_t length = cursor.uleb();
    const size_t end = cursor.position() + length;
    for (uint32_t site = 1; cursor.position() < end; ++site) {
        const uint32_t pad = cursor.uleb();
        const size_t action = cursor.uleb();
        if (site == frame.site) {
            return landingBy(table.from(end), pad, action);
        }
    }
    return {};
}

/// Restores what a function saved, by its prologue: pushes around the setting of the frame pointer.
/// A push may name registers just to make room for variables; what counts is what some pop of the
/// function names, and of two pushes the first. Registers for reals hold nothing of this process's.
class Prologue {
  public:
    Prologue(const Image &image, uint32_t counter) {
        const uint64_t address = counter - reinterpret_cast<uint32_t>(image.base);
        const auto &starts = image.functions;
        const auto next = std::ranges::upper_bound(starts, address);
        if (next == starts.begin()) {
            stop("an exception comes from outside every function");
        }
        begin_ = static_cast<const uint32_t *>(image.at(*(next - 1)));
        end_ = static_cast<const uint32_t *>(image.at(next == starts.end() ? image.size : *next));
    }

    void restore(uint32_t stackAtEntry, _Unwind_Context *unwinding) const {
        constexpr int kLongest = 12;
        uint32_t open = popped() & 0x5ff0, below = stackAtEntry;
        bool hasFrame = false;
        for (const uint32_t *at = begin_; at < std::min(end_, begin_ + kLongest); ++at) {
            if ((*at & 0xffff0000) == 0xe92d0000) {  // push
                for (int number = 15; number >= 0; --number) {
                    const uint32_t bit = 1U << number;
                    below -= *at & bit ? 4 : 0;
                    if (*at & open & bit) {
                        _Unwind_SetGR(unwinding, number, *std::bit_cast<uint32_t *>(below));
                    }
                }
                open &= ~*at;
            } else if ((*at & 0xffffff00) == 0xe28d7000 || *at == 0xe1a0700d) {
                hasFrame = true;  // add r7, sp, #n or mov r7, sp
            } else if (hasFrame) {
                return;
            }
        }
        if (!hasFrame) {
            stop("an exception passes a function without a frame pointer");
        }
    }

  private:
    uint32_t popped() const {
        uint32_t registers = 0;
        for (const uint32_t *at = begin_; at < end_; ++at) {
            registers |= (*at & 0x0fff0000) == 0x08bd0000 ? *at & 0xffff : 0;
        }
        registers |= registers & 1U << kCounter ? 1U << kLink : 0;
        return registers ? registers : 0xffff;  // it never returns
    }

    const uint32_t *begin_, *end_;
};

}  // namespace

void registerUnwinding(const Image &image) {
    g_table = static_cast<Table *>(image.at(image.size));
    constexpr uint32_t kJump = 0xe51ff004;  // to the address behind
    *g_table = {distance(image.base, g_table->start),
                distance(&g_table->personality, g_table->entry),
                distance(g_table->code, g_table->personality),
                0,
                {kJump, reinterpret_cast<uint32_t>(&loaderThrough)}};
    mprotect(g_table, kRoomBehind, PROT_READ | PROT_WRITE | PROT_EXEC);
    __builtin___clear_cache(reinterpret_cast<char *>(g_table),
                            reinterpret_cast<char *>(g_table + 1));
}

}  // namespace loader

using loader::g_innermost;
using loader::Try;

extern "C" {
void loaderEnterTry(Try *frame) {
    frame->outer = g_innermost;
    g_innermost = frame;
}

void loaderLeaveTry(Try *frame) {
    if (frame != g_innermost) {
        loader::stop("a function takes back what it catches, but is not the last to have said so");
    }
    g_innermost = frame->outer;
}

/// Its address marks a Try; the image never calls it.
void loaderPersonality() { loader::stop("the library calls the personality routine"); }

/// Asked by the unwinder for the table of the code at an address; takes the system's place.
void *__gnu_Unwind_Find_exidx(void *counter, int *count) {
    if (loader::g_table && loader::image()->holds(counter)) {
        *count = 1;
        return loader::g_table;
    }
    using Find = void *(*)(void *, int *);
    static const auto next = reinterpret_cast<Find>(dlsym(RTLD_NEXT, "__gnu_Unwind_Find_exidx"));
    return next(counter, count);
}
}

_Unwind_Reason_Code loaderThrough(_Unwind_State state, _Unwind_Exception *exception,
                                  _Unwind_Context *unwinding) {
    using namespace loader;
    const uint32_t counter = _Unwind_GetGR(unwinding, kCounter) & ~1U;
    const uint32_t framePointer = _Unwind_GetGR(unwinding, kFramePointer);
    const int action = state & _US_ACTION_MASK;
    Try *frame = g_innermost;
    while (frame && frame->framePointer != framePointer) {
        frame = frame->outer;
    }
    if (frame && action != _US_UNWIND_FRAME_RESUME && !(state & _US_FORCE_UNWIND)) {
        const Landing landing = landingOf(*frame);
        if (action == _US_VIRTUAL_UNWIND_FRAME && landing.what == Found::Handler) {
            exception->barrier_cache.sp = _Unwind_GetGR(unwinding, kStackPointer);
            return _URC_HANDLER_FOUND;
        }
        if (action == _US_UNWIND_FRAME_STARTING && landing.what != Found::Nothing) {
            g_innermost = frame;
            frame->site = landing.pad;
            frame->data[0] = reinterpret_cast<uint32_t>(exception);
            frame->data[1] = landing.selector;
            _Unwind_SetGR(unwinding, kFramePointer, frame->framePointer);
            _Unwind_SetGR(unwinding, kStackPointer, frame->stackPointer);
            _Unwind_SetGR(unwinding, kCounter, frame->pad);
            return _URC_INSTALL_CONTEXT;
        }
    }
    if (frame && action != _US_VIRTUAL_UNWIND_FRAME) {
        g_innermost = frame->outer;
    }
    constexpr uint32_t kFrameAndLink = 8;
    Prologue(*image(), counter).restore(framePointer + kFrameAndLink, unwinding);
    _Unwind_SetGR(unwinding, kStackPointer, framePointer + kFrameAndLink);
    _Unwind_SetGR(unwinding, kCounter, _Unwind_GetGR(unwinding, kLink));
    return _URC_CONTINUE_UNWIND;
}
