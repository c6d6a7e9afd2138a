// The gallery's one HTML page, screen by screen: no scripts, nothing from elsewhere, pictures by
// relative names.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "stage/Model.hpp"
#include "stage/Scene.hpp"

namespace stage {

/// One device's view of one scene.
struct Exhibit {
    Model model;
    std::string scene;           // its name
    std::string pictureWithout;  // file names relative to the page
    std::string pictureWith;
    std::string captionWithout;  // what the screen says under the number, UTF-8
    std::string captionWith;
};

/// The page for `exhibits`; a reader picks the device, the first one is shown at first. Scenes
/// without an exhibit are left out. Titles and notes are those of the sample world, which the page
/// says when it shows another.
std::string galleryPage(std::span<const SceneGroup> groups, std::span<const Model> models,
                        std::span<const Exhibit> exhibits, bool isSample);

/// The text with the characters that HTML reserves written as references.
std::string escapedHtml(std::string_view text);

}  // namespace stage
