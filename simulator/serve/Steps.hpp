// Steps in their text form, done by a session that is watched.
#pragma once

#include <string>
#include <string_view>

#include "stage/Session.hpp"
#include "stage/Watching.hpp"

namespace serve {

/// Throws UsageError when the line is no step, Failure when it is not possible now.
void perform(stage::Session &session, stage::Watching &watching, const std::string &line);

}  // namespace serve
