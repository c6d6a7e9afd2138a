// Who runs on a thread, and the record of what has run. A frame stands on a thread's stack as long
// as the implementation that it was made for, however that ends.
#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "inspect/Happening.hpp"

namespace inspect {

enum class Runner {
    AddOn,      // a replacement, or a method of the add-on's own classes
    Phone,      // what a replacement took the place of
    Companion,  // a method of the companion's
};

/// A method of the add-on's is recorded always, one of the companion's when the add-on called it,
/// one of the telephone's never.
class Frame {
  public:
    /// `name` has to live for ever.
    Frame(Runner runner, const std::string &name);
    ~Frame();
    Frame(const Frame &) = delete;
    Frame &operator=(const Frame &) = delete;

    bool isRecorded() const { return recorded_; }
    Happening &happening() { return happening_; }

  private:
    friend const std::string *runningAddOnMethod();
    friend void note(Happening happening);
    using Clock = std::chrono::steady_clock;

    Frame *const outer_;
    const Runner runner_;
    const std::string &name_;
    bool recorded_;
    Happening happening_;
    Clock::time_point begun_;
};

/// The add-on's method whose code runs on this thread, be it in a call to the companion; null while
/// the telephone's own code runs.
const std::string *runningAddOnMethod();

/// Records something that is over at once, within what runs on this thread.
void note(Happening happening);

/// What has ended since the last call, on all threads. A record that grows too long ends with a
/// note that says how much is left out.
std::vector<Happening> takeRecord();

}  // namespace inspect
