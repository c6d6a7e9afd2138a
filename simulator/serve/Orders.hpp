// What the server asks of a phone's process, and what it gets back.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace serve {

/// Kinds of messages between the two.
namespace kind {
inline constexpr char kOpening = 'o';  // to the phone, once: an Opening
inline constexpr char kTurn = 't';     // to the phone: a Turn
inline constexpr char kDone = 'd';     // from it, after either: an Outcome
inline constexpr char kFailed = 'f';   // from it: it cannot open; what it would say on stderr
inline constexpr char kTold = 'r';     // from it: a report for the page, as it stands
}  // namespace kind

struct Turn {
    std::vector<std::string> lines;  // steps
    bool draw = true;                // hand the picture over if it has changed
    bool views = false;              // tell them if they have changed
    bool happenings = false;         // of these steps
};

/// What a phone starts with.
struct Opening {
    std::string ios;
    std::string screen;
    bool withAddOn = true;
    std::string world{};  // empty: the sample
    std::string calls{};  // empty: the world's
    std::string data{};
    Turn turn{};  // what it does first
};

struct Refusal {
    size_t line = 0;  // of the turn
    std::string why;
};

struct Outcome {
    std::vector<Refusal> refusals;
    size_t picture = 0;                   // bytes of it; 0: there is nothing to send
    std::uint32_t pictures = 0;           // that there have been, this one included
    bool isLively = false;                // something moves by itself, or a finger is down
    std::vector<std::string> warnings{};  // at the opening
};

/// As texts of messages, and back.
std::string text(const Opening &opening);
std::string text(const Turn &turn);
std::string text(const Outcome &outcome);
Opening readOpening(const std::string &text);
Turn readTurn(const std::string &text);
Outcome readOutcome(const std::string &text);

}  // namespace serve
