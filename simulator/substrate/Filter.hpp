// The filter file beside an add-on: { Filter = { Bundles = ( "com.example.app" ); }; }
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace substrate {

/// The bundle identifiers that an add-on wants to be loaded into.
class Filter {
  public:
    /// Reads a property list in any of its forms. Throws LoadError naming the file.
    static Filter read(const std::filesystem::path &file);

    bool admits(const std::string &bundleIdentifier) const;

  private:
    std::vector<std::string> bundles_;
};

}  // namespace substrate
