// What the user asked for, read from the command line and checked as far as that goes without
// running anything.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "stage/Screen.hpp"
#include "stage/Settings.hpp"
#include "stage/Step.hpp"

namespace stage {

struct Command;

/// Where the phone is served unless another port is named.
inline constexpr int kServedPort = 8138;

struct Request {
    const Command *command = nullptr;  // null: `text` is to be printed, and that is all
    std::string text{};
    Settings settings{};
    Opening opening{};            // of the screen that the steps begin with
    Steps steps{};                // in their order
    std::filesystem::path out{};  // of the gallery, or of what the monkey finds
    int seed = 1;                 // of the monkey
    int events = 10000;
    int port = kServedPort;  // of the server; 0: any that is free
    std::vector<std::string> words{};
};

/// Reads the arguments after the program's name. Throws UsageError.
Request readRequest(std::span<const std::string> words);

}  // namespace stage
