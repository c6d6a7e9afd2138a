// The user's terminal, and what texts take of it.
#pragma once

#include <cstddef>
#include <string>

namespace stage {

/// The terminal cells of a UTF-8 text: two for most East Asian characters and pictures, none for
/// what joins the character before.
size_t terminalCells(const std::string &text);

/// Of the terminal that stderr writes to, as it is now: the user may change it. 80 when it does not
/// tell.
size_t terminalColumns();

}  // namespace stage
