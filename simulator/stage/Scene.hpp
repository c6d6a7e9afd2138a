// The moments that the gallery shows, each a title and the steps that lead to it in the sample
// world.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "stage/Screen.hpp"
#include "stage/Step.hpp"

namespace stage {

struct Scene {
    std::string_view name;   // of its files: "dialer-brand"
    std::string_view title;  // for the page
    std::string_view note;   // what to look at
    Steps steps;
    Opening opening{};
    bool onlyBefore8 = false;  // what is to be seen does not exist from iOS 8 on
};

/// The scenes of one screen, in the order of the page.
struct SceneGroup {
    std::string_view name;   // "dialer"
    std::string_view title;  // for the page
    std::vector<Scene> scenes;
};

SceneGroup dialerScenes();
SceneGroup inCallScenes();
SceneGroup recentsScenes();

}  // namespace stage
