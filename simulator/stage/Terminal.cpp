// GLib knows the characters, the system the terminal.
#include "stage/Terminal.hpp"

#include <glib.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace stage {

size_t terminalCells(const std::string &text) {
    size_t cells = 0;
    for (const char *at = text.c_str(); *at != '\0'; at = g_utf8_next_char(at)) {
        const gunichar character = g_utf8_get_char(at);
        const size_t width = g_unichar_iswide(character) != 0 ? 2 : 1;
        cells += g_unichar_iszerowidth(character) != 0 ? 0 : width;
    }
    return cells;
}

size_t terminalColumns() {
    constexpr size_t kUsual = 80;
    winsize size{};
    const bool known = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : kUsual;
}

}  // namespace stage
