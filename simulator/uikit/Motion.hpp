// What goes on by itself when a finger has left: content comes to rest, a row folds back. It
// follows the time that it is told; while nobody watches, everything is at its end at once, so that
// what is done step by step comes to the same on every machine.
#pragma once

#include <chrono>
#include <functional>
#include <vector>

namespace sim {

using Milliseconds = std::chrono::duration<double, std::milli>;

class Motion {
  public:
    /// Shows what there is to be seen so long after the beginning; false once that is the end.
    using Frame = std::function<bool(Milliseconds)>;

    /// Later than every end.
    static constexpr Milliseconds kForever = Milliseconds::max();

    /// The one of the process.
    static Motion &shared();

    /// When nobody watches any more, what still moves is brought to its end.
    void setWatched(bool watched);
    bool isWatched() const { return watched_; }

    /// `owner` moves from now on; what it did before is stopped where it is.
    void begin(const void *owner, Frame frame);
    void stop(const void *owner);
    /// So much time passes for what moves now.
    void age(Milliseconds time);
    /// Shows how far all of it has come.
    void show();
    bool isMoving() const { return !moving_.empty(); }

  private:
    struct Moving {
        const void *owner;
        int serial;
        Milliseconds age;
        Frame frame;
    };

    std::vector<Moving> moving_;
    int lastSerial_ = 0;
    bool watched_ = false;
};

}  // namespace sim
