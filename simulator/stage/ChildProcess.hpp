// Work in a process of its own. Hooks and the device model belong to the process for good, so each
// device that the gallery shows gets one.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

namespace stage {

class ChildProcess {
  public:
    /// What is to be done; the function that it is given takes text for the parent.
    using Work = std::function<void(const std::function<void(const std::string &)> &say)>;

    /// Starts `work` in a child process. To be called before this process has used anything that a
    /// fork would tear apart. Throws Failure when there can be no child.
    explicit ChildProcess(const Work &work);
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;
    /// Ends the work if it is not over.
    ~ChildProcess();

    /// A file that can be read as soon as read() has something to do.
    int output() const { return output_; }
    /// Takes what has been said since; returns false when there is no more to come.
    bool read();
    /// All that was read.
    const std::string &said() const { return said_; }
    /// Throws Failure with the child's message when it threw, or when it died. To be called once,
    /// when there is no more to come.
    void finish();

  private:
    int wait();

    int child_ = 0;   // 0: waited for
    int output_ = 0;  // to be read
    std::string said_;
};

/// Does each work in a process of its own, `atOnce` of them at a time, and returns what each said;
/// `heard` gets it in parts while they are at it. Throws Failure when one fails, and Interrupted;
/// the others are ended then.
std::vector<std::string> runEach(std::span<const ChildProcess::Work> works, size_t atOnce,
                                 const std::function<void(const std::string &)> &heard);

}  // namespace stage
