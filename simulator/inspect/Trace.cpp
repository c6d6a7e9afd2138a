// A thread's frames are its own; what is finished goes where all threads put it.
#include "inspect/Trace.hpp"

#include <atomic>
#include <mutex>
#include <utility>

#include <unistd.h>

namespace inspect {
namespace {

constexpr std::size_t kMost = 4000;

struct Record {
    std::mutex mutex;
    std::vector<Happening> finished;
    std::atomic<std::size_t> begun = 0;
};

/// Kept for good: threads may still run while the process ends.
Record &record() {
    static auto *const record = new Record;
    return *record;
}

/// Whether there is room for one more.
bool begin() { return record().begun.fetch_add(1, std::memory_order_relaxed) < kMost; }

thread_local Frame *g_top = nullptr;

/// Threads are counted as they first run something that is recorded.
std::string threadName() {
    static std::atomic<int> g_others = 1;
    thread_local const int g_number = gettid() == getpid() ? 1 : ++g_others;
    return g_number == 1 ? "main" : "thread " + std::to_string(g_number);
}

}  // namespace

Frame::Frame(Runner runner, const std::string &name)
    : outer_(std::exchange(g_top, this)),
      runner_(runner),
      name_(name),
      recorded_((runner == Runner::AddOn || (runner == Runner::Companion && outer_ != nullptr &&
                                             outer_->runner_ == Runner::AddOn)) &&
                begin()),
      begun_(Clock::now()) {
    if (recorded_) {
        happening_.kind =
            runner == Runner::AddOn ? Happening::Kind::Method : Happening::Kind::Asked;
        happening_.what = name;
        happening_.thread = threadName();
    }
}

Frame::~Frame() {
    g_top = outer_;
    if (recorded_) {
        happening_.micros =
            std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - begun_).count();
        note(std::move(happening_));
    }
}

const std::string *runningAddOnMethod() {
    const Frame *frame = g_top;
    while (frame != nullptr && frame->runner_ == Runner::Companion) {
        frame = frame->outer_;
    }
    return frame != nullptr && frame->runner_ == Runner::AddOn ? &frame->name_ : nullptr;
}

void note(Happening happening) {
    const bool isOver =
        happening.kind != Happening::Kind::Method && happening.kind != Happening::Kind::Asked;
    if (isOver && !begin()) {
        return;
    }
    Frame *frame = g_top;
    while (frame != nullptr && !frame->recorded_) {
        frame = frame->outer_;
    }
    if (frame != nullptr) {
        frame->happening_.inside.push_back(std::move(happening));
        return;
    }
    const std::scoped_lock lock(record().mutex);
    record().finished.push_back(std::move(happening));
}

std::vector<Happening> takeRecord() {
    Record &all = record();
    std::vector<Happening> taken;
    {
        const std::scoped_lock lock(all.mutex);
        taken.swap(all.finished);
    }
    const std::size_t begun = all.begun.exchange(0);
    if (begun > kMost) {
        taken.push_back({.what = std::to_string(begun - kMost) + " more are not recorded"});
    }
    return taken;
}

}  // namespace inspect
