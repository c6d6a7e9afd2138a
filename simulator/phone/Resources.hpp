// Where the Phone application's own pictures lie.
#pragma once

#include <filesystem>

namespace phone {

/// The folder that holds lib/, share/ and bin/: two above this library's file.
std::filesystem::path installFolder();

/// The folder of the Phone application's pictures.
std::filesystem::path pictureFolder();

}  // namespace phone
