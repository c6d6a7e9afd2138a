// The gallery's page: files that lie in simulator/stage/gallery, with the scenes as data in them.
// Nothing comes from elsewhere, pictures by relative names.
#pragma once

#include <array>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "stage/Model.hpp"
#include "stage/Scene.hpp"
#include "stage/Settings.hpp"

namespace stage {

/// A scene as it was drawn.
struct Look {
    std::string picture{};  // its file's name relative to the page
    std::string says{};     // what the screen says of the number in question, UTF-8
    std::string print{};    // the same for pictures that look the same
};

/// One device's view of one scene.
struct Exhibit {
    Model model;
    std::string scene{};  // its name
    Look without{};
    Look with{};
};

/// The page's files, the one to be opened last.
inline constexpr std::array<std::string_view, 3> kPageFiles = {"gallery.css", "gallery.js",
                                                               "index.html"};

/// Whether what is shown is the sample world, which titles and notes tell of.
bool isSample(const Settings &settings);

/// What the page shows of `exhibits`, as JSON: every scene on every device with the commands that
/// draw it, from a world and calls as in `settings`. Scenes without an exhibit are left out.
std::string galleryData(std::span<const SceneGroup> groups, std::span<const Model> models,
                        std::span<const Exhibit> exhibits, const Settings &settings);

/// Writes the page's files into a folder. Throws Failure.
void writeGalleryPage(const std::filesystem::path &folder, const std::string &data);

}  // namespace stage
