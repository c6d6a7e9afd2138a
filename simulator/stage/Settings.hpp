// What a session plays, and with what.
#pragma once

#include <filesystem>
#include <string>

#include "stage/Errors.hpp"
#include "stage/Model.hpp"

namespace stage {

struct Settings {
    Model model{};
    bool withAddOn = true;
    std::filesystem::path world{};  // empty: the sample world
    std::filesystem::path data{};   // empty: a folder that goes with the session
    bool fixedMeasurer = false;     // text measured by a rule instead of by fonts, for tests
    std::string withoutClass{};     // a class of the Phone application that is to be missing
    bool verbose = false;           // skipped hooks and the system log go to stderr
    std::filesystem::path calls{};  // of the recents list; empty: the world's
    std::string bundleIdentifier = "com.apple.mobilephone";
    double pace = 1;  // real seconds that a simulated second takes
    Warn warn{};      // told what of the user's files is passed over, and that much was read
    bool withProgress = true;  // of reading them, on a terminal
};

}  // namespace stage
