// A file without a name, mapped on both sides.
#include "serve/SharedPicture.hpp"

#include <cerrno>
#include <cstring>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

#include "stage/Errors.hpp"

namespace serve {
namespace {

int newFile() {
    const int file = memfd_create("picture", MFD_CLOEXEC);
    if (file >= 0 && ftruncate(file, SharedPicture::kSize) == 0) {
        return file;
    }
    throw stage::Failure(std::string("no memory for a phone's picture: ") + std::strerror(errno));
}

}  // namespace

SharedPicture::SharedPicture() : SharedPicture(newFile()) {}

SharedPicture::SharedPicture(int file) : file_(file) {
    void *const mapped = mmap(nullptr, kSize, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (mapped == MAP_FAILED) {
        close(file);
        throw stage::Failure(std::string("no memory for a phone's picture: ") +
                             std::strerror(errno));
    }
    bytes_ = static_cast<unsigned char *>(mapped);
}

SharedPicture::~SharedPicture() {
    munmap(bytes_, kSize);
    close(file_);
}

}  // namespace serve
