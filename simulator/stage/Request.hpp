// What the user asked for, read from the command line and checked as far as that goes without
// running anything.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "stage/Commands.hpp"
#include "stage/Model.hpp"
#include "stage/Screen.hpp"
#include "stage/Step.hpp"

namespace stage {

struct Request {
    Task task = Task::Help;
    std::string help;  // the text to print for Task::Help
    Model model;
    bool withAddOn = true;
    std::filesystem::path world;  // empty: the simulator's own
    std::filesystem::path data;   // empty: the build's folder
    std::filesystem::path out;    // of the gallery
    bool verbose = false;
    std::string withoutClass;     // a class of the Phone application to leave out
    std::filesystem::path calls;  // of the recents list; empty: the world's
    double pace = 1;              // real seconds that a simulated second takes
    Opening opening;              // of the screen that the steps are for
    Steps steps;
    std::vector<std::string> numbers;
};

/// Reads the arguments after the program's name. Throws UsageError.
Request readRequest(std::span<const std::string> words);

}  // namespace stage
