// The page's files, read once: what a browser may ask for is what is in this table.
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace serve {

class Page {
  public:
    struct File {
        std::string bytes;
        const char *type = "";
    };

    /// Reads the files of a folder, not of its subfolders. Throws Failure when there is no page.
    explicit Page(const std::filesystem::path &folder);

    /// By the path of a request, "/" being the page itself; null when there is none.
    const File *file(const std::string &path) const;

  private:
    std::map<std::string, File> files_;
};

}  // namespace serve
