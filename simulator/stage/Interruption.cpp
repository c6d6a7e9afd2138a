// One flag for all signals: whatever came, the remedy is the same.
#include "stage/Interruption.hpp"

#include <csignal>

namespace stage {
namespace {

constexpr int kEndings[] = {SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t g_came = 0;

void note(int /*signal*/) { g_came = 1; }

/// System calls are not taken up again: whoever waits in one is to look at the flag. A signal that
/// the process was started to ignore stays ignored.
void handleBy(void (*handler)(int)) {
    struct sigaction action{};
    action.sa_handler = handler;
    for (const int ending : kEndings) {
        struct sigaction before{};
        sigaction(ending, nullptr, &before);
        if (before.sa_handler != SIG_IGN) {
            sigaction(ending, &action, nullptr);
        }
    }
}

}  // namespace

Interruption::Interruption() {
    g_came = 0;
    handleBy(&note);
}

Interruption::~Interruption() { leaveToTheSystem(); }

bool Interruption::came() { return g_came != 0; }

void Interruption::leaveToTheSystem() { handleBy(SIG_DFL); }

}  // namespace stage
