// Folders are found from the place of libMobilePhone.so itself, so the build may be moved.
#include "phone/Resources.hpp"

#include <dlfcn.h>

namespace phone {

std::filesystem::path installFolder() {
    static const std::filesystem::path folder = [] {
        Dl_info info{};
        dladdr(reinterpret_cast<const void *>(&installFolder), &info);
        return std::filesystem::weakly_canonical(info.dli_fname).parent_path().parent_path();
    }();
    return folder;
}

std::filesystem::path pictureFolder() { return installFolder() / "share" / "phone"; }

}  // namespace phone
