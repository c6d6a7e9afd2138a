// The user's Ctrl-C, or the system's wish that the process ends, held back so that nothing
// unfinished is left behind.
#pragma once

namespace stage {

/// While one lives, the signals that end a process are noted only.
class Interruption {
  public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption &) = delete;
    Interruption &operator=(const Interruption &) = delete;

    static bool came();
    /// The signals end this process, as usual.
    static void leaveToTheSystem();
};

}  // namespace stage
