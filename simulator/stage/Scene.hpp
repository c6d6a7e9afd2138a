// The moments that the gallery shows. They are written in scenes.json, each with the command line
// that leads to it in the sample world.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "stage/Request.hpp"

namespace stage {

struct Scene {
    std::string name;   // of its files: "dialer-brand"
    std::string title;  // for the page
    std::string note;   // what to look at
    std::string command;
    Request request;  // what the command asks for
    std::vector<std::string> systems{kSystemVersions.begin(),
                                     kSystemVersions.end()};  // that have what is to be seen
};

/// The scenes of one screen, in the order of the page.
struct SceneGroup {
    std::string name;   // "dialer"
    std::string title;  // for the page
    std::vector<Scene> scenes;
};

using SceneGroups = std::vector<SceneGroup>;

/// Those of the build, or of another file. Throws Failure that names the file and the mistake.
SceneGroups readScenes(const std::filesystem::path &file);
std::filesystem::path scenesFile();

}  // namespace stage
