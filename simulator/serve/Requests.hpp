// What the page asks, read and checked as far as that goes without a phone.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

namespace serve {

/// With the add-on or without it; its number in a picture's header as well.
enum class Side : unsigned char { Without, With };
inline constexpr Side kSides[] = {Side::Without, Side::With};
const char *nameOf(Side side);

namespace ask {

struct Open {
    std::string ios;
    std::string screen;
    std::vector<Side> sides;
    std::vector<std::string> steps;
};
struct Step {
    std::string line;
};
struct Speed {
    double speed;
};
struct Watch {
    Side side;
    bool views;
    bool happenings;
};
struct File {
    std::string name;
    std::string text;
};
struct Drew {
    Side side;
    std::uint32_t picture;  // by its number
};
struct Look {};

}  // namespace ask

using Ask =
    std::variant<ask::Open, ask::Step, ask::Speed, ask::Watch, ask::File, ask::Drew, ask::Look>;

/// Bounds, in bytes and lines.
inline constexpr size_t kLongestFile = size_t{32} << 20U;
inline constexpr size_t kLongestList = size_t{4} << 20U;
inline constexpr size_t kLongestMessage = size_t{64} << 10U;
inline constexpr size_t kMostSteps = 20000;

/// The message is none; one line that says why.
struct BadMessage : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Throws BadMessage.
Ask readAsk(std::string_view message);

}  // namespace serve
