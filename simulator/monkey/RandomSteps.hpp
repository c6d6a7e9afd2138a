// What somebody might do next at a telephone whose screen he sees.
#pragma once

#include <string>
#include <vector>

#include "inspect/Views.hpp"
#include "monkey/Random.hpp"

namespace monkey {

using Lines = std::vector<std::string>;  // of steps

/// The lines of the next thing that is done: a tap on something that is seen, a drag, a number
/// typed, a call, time that passes, news of the companion's. Not all of them are possible on every
/// screen.
Lines randomLines(Random &random, const inspect::View &screen,
                  const std::vector<std::string> &numbers);

}  // namespace monkey
