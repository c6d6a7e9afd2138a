// fork, a pipe for the text, and the exit code for how it went.
#include "stage/ChildProcess.hpp"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <exception>
#include <iterator>
#include <map>
#include <optional>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include "stage/Errors.hpp"
#include "stage/Interruption.hpp"

namespace stage {
namespace {

constexpr int kThrew = 1;
constexpr char kError = '\0';  // before the message of what was thrown

void writeAll(int file, const std::string &text) {
    for (size_t done = 0; done < text.size();) {
        const ssize_t written = write(file, text.data() + done, text.size() - done);
        if (written < 0 && errno != EINTR) {
            _exit(kThrew);  // nobody reads any more
        }
        done += written > 0 ? static_cast<size_t>(written) : 0;
    }
}

[[noreturn]] void runChild(const ChildProcess::Work &work, int out) {
    int code = 0;
    try {
        work([out](const std::string &text) { writeAll(out, text); });
    } catch (const std::exception &error) {
        writeAll(out, kError + std::string(error.what()));
        code = kThrew;
    }
    // Not exit(): what the parent has buffered or registered is the parent's to finish.
    _exit(code);
}

}  // namespace

ChildProcess::ChildProcess(const Work &work) {
    int ends[2];
    if (pipe(ends) != 0) {
        throw Failure(std::string("no pipe for a child process: ") + std::strerror(errno));
    }
    std::optional<SignalsHeldBack> heldBack(std::in_place);  // none is to get lost in between
    child_ = fork();
    if (child_ < 0) {
        const std::string reason = std::strerror(errno);
        close(ends[0]);
        close(ends[1]);
        throw Failure("no child process: " + reason);
    }
    if (child_ == 0) {
        close(ends[0]);
        Interruption::leaveToTheSystem();
        heldBack.reset();
        runChild(work, ends[1]);
    }
    close(ends[1]);
    output_ = ends[0];
}

ChildProcess::~ChildProcess() {
    if (child_ != 0) {
        kill(child_, SIGTERM);
        wait();
    }
}

bool ChildProcess::read() {
    char part[4096];
    const ssize_t count = ::read(output_, part, sizeof part);
    if (count > 0) {
        said_.append(part, static_cast<size_t>(count));
    }
    return count > 0 || (count < 0 && errno == EINTR);
}

int ChildProcess::wait() {
    close(output_);
    int status = 0;
    while (waitpid(child_, &status, 0) < 0 && errno == EINTR) {
    }
    child_ = 0;
    return status;
}

void ChildProcess::finish() {
    const int status = wait();
    if (WIFSIGNALED(status)) {
        throw Failure("a child process was ended by signal " + std::to_string(WTERMSIG(status)));
    }
    if (WEXITSTATUS(status) != 0) {
        throw Failure(said_.substr(said_.rfind(kError) + 1));
    }
}

std::vector<std::string> runEach(std::span<const ChildProcess::Work> works, size_t atOnce,
                                 const std::function<void(const std::string &)> &heard) {
    std::vector<std::string> said(works.size());
    std::map<size_t, ChildProcess> running;
    for (size_t next = 0; next < works.size() || !running.empty();) {
        for (; next < works.size() && running.size() < atOnce; ++next) {
            running.try_emplace(next, works[next]);
        }
        std::vector<pollfd> outputs;
        std::ranges::transform(running, std::back_inserter(outputs), [](const auto &entry) {
            return pollfd{entry.second.output(), POLLIN, 0};
        });
        poll(outputs.data(), outputs.size(), -1);
        Interruption::check();
        auto output = outputs.cbegin();
        for (auto entry = running.begin(); entry != running.end(); ++output) {
            auto &[index, child] = *entry;
            if (output->revents == 0 || child.read()) {
                heard(child.said().substr(said[index].size()));
                said[index] = child.said();
                ++entry;
            } else {
                child.finish();
                entry = running.erase(entry);
            }
        }
    }
    return said;
}

}  // namespace stage
