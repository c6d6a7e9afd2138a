// Every scene on every device, with and without the add-on, as pictures and one page.
#pragma once

#include <filesystem>

#include "stage/Session.hpp"

namespace stage {

/// Draws the gallery into `folder`, which is made if need be: index.html and a folder of pictures.
/// World and data folder are those of `settings`. After an error the folder is as it was before.
/// Returns the number of pictures. Throws Failure.
int makeGallery(const std::filesystem::path &folder, const Settings &settings);

}  // namespace stage
