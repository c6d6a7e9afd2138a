// The user's Ctrl-C, or the system's wish that the process ends, held back so that nothing
// unfinished is left behind.
#pragma once

#include <csignal>
#include <map>

namespace stage {

/// While one lives, the signals that end a process are noted only. One that came ends the process
/// when the object goes, and one that comes seconds after another ends it at once.
class Interruption {
  public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption &) = delete;
    Interruption &operator=(const Interruption &) = delete;

    /// Throws Interrupted when a signal came. To be called now and then by whatever takes long.
    static void check();
    /// The signals end this process, a child of the one that has the object, as usual.
    static void leaveToTheSystem();

  private:
    std::map<int, struct sigaction> before_;
};

/// Nobody but run() is to catch it.
struct Interrupted {};

/// While one lives, no signal that ends a process reaches this one.
class SignalsHeldBack {
  public:
    SignalsHeldBack();
    ~SignalsHeldBack();
    SignalsHeldBack(const SignalsHeldBack &) = delete;
    SignalsHeldBack &operator=(const SignalsHeldBack &) = delete;

  private:
    sigset_t before_{};
};

}  // namespace stage
