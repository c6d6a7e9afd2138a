// One flag for all signals: whatever came, the remedy is the same.
#include "stage/Interruption.hpp"

#include <ctime>

namespace stage {
namespace {

constexpr int kEndings[] = {SIGINT, SIGTERM, SIGHUP, SIGPIPE};

volatile std::sig_atomic_t g_came = 0;
volatile std::sig_atomic_t g_second = 0;  // of the system's clock, when it came

void note(int signal) {
    constexpr time_t kPatience = 2;  // seconds; one and the same wish may come as two signals
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    if (g_came == 0) {
        g_came = signal;
        g_second = static_cast<std::sig_atomic_t>(now.tv_sec);
    } else if (now.tv_sec - g_second > kPatience) {
        std::signal(signal, SIG_DFL);
        std::raise(signal);
    }
}

}  // namespace

/// System calls are not taken up again: whoever waits in one is to look at the flag. A signal that
/// the process was started to ignore stays ignored.
Interruption::Interruption() {
    g_came = 0;
    for (const int ending : kEndings) {
        struct sigaction &before = before_[ending];
        sigaction(ending, nullptr, &before);
        if (before.sa_handler != SIG_IGN) {
            struct sigaction action{};
            action.sa_handler = &note;
            sigaction(ending, &action, nullptr);
        }
    }
}

Interruption::~Interruption() {
    for (const auto &[ending, action] : before_) {
        sigaction(ending, &action, nullptr);
    }
    if (g_came != 0) {
        std::raise(g_came);
    }
}

void Interruption::check() {
    if (g_came != 0) {
        throw Interrupted();
    }
}

void Interruption::leaveToTheSystem() {
    g_came = 0;
    for (const int ending : kEndings) {
        struct sigaction action{};
        sigaction(ending, nullptr, &action);
        if (action.sa_handler == &note) {
            std::signal(ending, SIG_DFL);
        }
    }
}

SignalsHeldBack::SignalsHeldBack() {
    sigset_t all{};
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, &before_);
}

SignalsHeldBack::~SignalsHeldBack() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

}  // namespace stage
