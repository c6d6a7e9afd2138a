// Work in a process of its own. Hooks and the device model belong to the process for good, so each
// device that the gallery shows gets one.
#pragma once

#include <functional>
#include <string>

namespace stage {

/// Runs `work` in a child process and answers the text that it returned. Throws Failure with the
/// child's message when it threw, or when it died. To be called before this process has used
/// anything that a fork would tear apart.
std::string inChildProcess(const std::function<std::string()> &work);

}  // namespace stage
