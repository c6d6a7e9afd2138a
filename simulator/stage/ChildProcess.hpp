// Work in a process of its own. Hooks and the device model belong to the process for good, so each
// device that the gallery shows gets one.
#pragma once

#include <functional>
#include <string>

namespace stage {

class ChildProcess {
  public:
    /// Starts `work` in a child process. To be called before this process has used anything that a
    /// fork would tear apart. Throws Failure when there can be no child.
    explicit ChildProcess(const std::function<std::string()> &work);
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;
    /// Waits for the end of the work, whatever becomes of its answer.
    ~ChildProcess();

    /// Waits for the text that the work returned. Throws Failure with the child's message when it
    /// threw, or when it died. To be called once.
    std::string answer();

  private:
    int wait();

    int child_ = 0;   // 0: waited for
    int output_ = 0;  // to be read
};

}  // namespace stage
