// Foundation hands every message, ready to be printed, to a function of ours.
#include "stage/SystemLog.hpp"

#include <fstream>

#include "objc/Wire.hpp"
#include "stage/Errors.hpp"
#include "uikit/Foundation.hpp"

extern "C" void (*_NSLog_printf_handler)(id message);

namespace stage {
namespace {

std::ofstream &logFile() {
    static std::ofstream stream;
    return stream;
}

void write(id message) { logFile() << sim::utf8(NSString(message)) << std::flush; }

}  // namespace

void sendLogTo(const std::filesystem::path &file) {
    logFile() = std::ofstream(file, std::ios::binary);
    if (!logFile()) {
        throw Failure(file.string() +
                      ": the system log cannot be written; name another data "
                      "folder with --data");
    }
    _NSLog_printf_handler = &write;
}

}  // namespace stage
