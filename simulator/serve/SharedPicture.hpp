// The memory in which a phone's process leaves the changed part of its picture for the server,
// which sends it as it stands.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace serve {

class SharedPicture {
  public:
    /// Of a header, so many bytes, and a whole screen, the largest.
    static constexpr size_t kHeader = 16;
    static constexpr size_t kSize = kHeader + size_t{640} * 1136 * 4;

    /// Makes the memory. Throws Failure.
    SharedPicture();
    /// That of a file which another process has made; takes the file over.
    explicit SharedPicture(int file);
    ~SharedPicture();
    SharedPicture(const SharedPicture &) = delete;
    SharedPicture &operator=(const SharedPicture &) = delete;

    int file() const { return file_; }
    std::span<unsigned char> bytes() const { return {bytes_, kSize}; }

  private:
    int file_;
    unsigned char *bytes_ = nullptr;
};

}  // namespace serve
