// Every scene on every device, with and without the add-on, as pictures and one page.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "stage/Scene.hpp"
#include "stage/Session.hpp"

namespace stage {

struct Gallery {
    size_t pictures;
    std::vector<std::string> leftOut;  // scenes for which there is nothing to open or touch
};

/// Draws the scenes on every device into `folder`, which is made if need be: index.html and a
/// folder of pictures. World, calls and data folder are those of `settings`. After an error the
/// folder is as it was before. Throws Failure.
Gallery makeGallery(const std::filesystem::path &folder, const Settings &settings,
                    const SceneGroups &groups);

}  // namespace stage
