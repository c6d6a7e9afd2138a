// Files of other types than a page consists of are passed over.
#include "serve/Page.hpp"

#include <fstream>
#include <iterator>

#include "stage/Errors.hpp"

namespace serve {
namespace {

namespace fs = std::filesystem;

const char *typeOf(const fs::path &file) {
    static const std::map<std::string, const char *> types = {
        {".html", "text/html; charset=utf-8"},
        {".css", "text/css; charset=utf-8"},
        {".js", "text/javascript; charset=utf-8"},
        {".svg", "image/svg+xml"},
    };
    const auto type = types.find(file.extension().string());
    return type == types.end() ? nullptr : type->second;
}

std::string bytesOf(const fs::path &file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace

Page::Page(const fs::path &folder) {
    std::error_code error;
    for (const fs::directory_entry &entry : fs::directory_iterator(folder, error)) {
        if (const char *const type = typeOf(entry.path())) {
            files_["/" + entry.path().filename().string()] = {bytesOf(entry.path()), type};
        }
    }
    const auto index = files_.find("/index.html");
    if (index == files_.end()) {
        throw stage::Failure(folder.string() +
                             ": the page is not there; build it with 'make phone'");
    }
    files_["/"] = index->second;
}

const Page::File *Page::file(const std::string &path) const {
    const auto found = files_.find(path);
    return found == files_.end() ? nullptr : &found->second;
}

}  // namespace serve
