// Ten mistakes are enough to begin with.
#include "stage/UserFile.hpp"

#include <cerrno>
#include <system_error>

#include "stage/Errors.hpp"

namespace stage {
namespace {

constexpr size_t kShownMistakes = 10;

}  // namespace

std::ifstream openUserFile(const std::filesystem::path &file, const std::string &remedy) {
    std::ifstream in(file, std::ios::binary);
    if (!in || std::filesystem::is_directory(file)) {
        const int reason = in ? EISDIR : errno;
        throw Failure(file.string() + ": cannot be read: " +
                      std::generic_category().message(reason) + "; " + remedy);
    }
    return in;
}

void Mistakes::add(size_t line, const std::string &what) {
    if (++count_ <= kShownMistakes) {
        list_ += "\n" + file_ + ":" + std::to_string(line) + ": " + what;
    }
}

void Mistakes::throwIfAny() const {
    if (count_ > 0) {
        const std::string all = count_ == 1 ? "a mistake" : std::to_string(count_) + " mistakes";
        const std::string shown = count_ == 1                ? "this:"
                                  : count_ <= kShownMistakes ? "these:"
                                                             : "the rest as well as these:";
        throw Failure(file_ + ": " + all + ", so that nothing of it is used; mend " + shown +
                      list_);
    }
}

}  // namespace stage
