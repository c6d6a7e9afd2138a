// Options that are no steps.
#include <algorithm>

#include "stage/Commands.hpp"

namespace stage {
namespace {

template <std::filesystem::path Settings::*path>
void takePath(Request &request, const Given &given) {
    request.settings.*path = given.value;
}

std::string oneOf(const auto &values) {
    std::string all;
    for (const std::string_view value : values) {
        all += (all.empty() ? "" : "|") + std::string(value);
    }
    return all;
}

std::vector<OptionKind> makeOptions() {
    return {
        {"ios", oneOf(kSystemVersions), "system version of the telephone",
         [](Request &request, const Given &given) {
             request.settings.model.ios = *std::ranges::find(kSystemVersions, given.value);
         }},
        {"screen", oneOf(kScreens), "inches of its screen",
         [](Request &request, const Given &given) {
             request.settings.model.screen = *std::ranges::find(kScreens, given.value);
         }},
        {"display", "view|field", "what shows the call; without it, the system's own choice",
         [](Request &request, const Given &given) {
             request.opening.display =
                 given.value == "view" ? phone::Display::View : phone::Display::Field;
         }},
        {"without-addon", "", "the Phone application alone",
         [](Request &request, const Given &) { request.settings.withAddOn = false; }},
        {"without-class", "NAME", "a Phone application that lacks the class NAME",
         [](Request &request, const Given &given) { request.settings.withoutClass = given.value; }},
        {"pace", "SECONDS", "real seconds that a second of --wait takes; 1",
         [](Request &request, const Given &given) {
             constexpr double kFastest = 0.001;
             constexpr double kSlowest = 10;
             request.settings.pace = realNumber(given, kFastest, kSlowest);
         }},
        {"out", "FOLDER", "where to put what is made: a gallery, or a fault's steps",
         [](Request &request, const Given &given) { request.out = given.value; }},
        {"world", "FILE", "what the companion knows; without it, the sample world",
         &takePath<&Settings::world>},
        {"calls", "FILE", "a call history of your own; without it, the world's recents",
         &takePath<&Settings::calls>},
        {"data", "FOLDER", "where the companion keeps its store", &takePath<&Settings::data>},
        {"seed", "N", "which random steps; 1",
         [](Request &request, const Given &given) { request.seed = wholeNumber(given); }},
        {"events", "N", "how many of them; 10000",
         [](Request &request, const Given &given) { request.events = wholeNumber(given); }},
        {"port", "N", "of 127.0.0.1 to listen on; 8138, and 0 takes any that is free",
         [](Request &request, const Given &given) { request.port = portNumber(given); }},
        {"verbose", "", "print the system log, missing methods included, on stderr",
         [](Request &request, const Given &) { request.settings.verbose = true; }},
    };
}

}  // namespace

const std::vector<OptionKind> &optionKinds() {
    static const std::vector<OptionKind> all = makeOptions();
    return all;
}

}  // namespace stage
