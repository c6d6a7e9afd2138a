// What the companion knows at random: numbers of every kind, calls, contacts, cloud answers.
#pragma once

#include <string>
#include <vector>

#include "monkey/Random.hpp"

namespace monkey {

struct RandomWorld {
    std::string json;                  ///< a world file
    std::vector<std::string> numbers;  ///< those that it knows something of, and some others
};

RandomWorld randomWorld(Random &random);

/// A piece of a world file that says something else of one of the numbers, or nothing.
std::string randomKnowledge(Random &random, const std::vector<std::string> &numbers);

}  // namespace monkey
