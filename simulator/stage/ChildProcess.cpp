// fork, a pipe for the answer, and the exit code for how it went.
#include "stage/ChildProcess.hpp"

#include <cerrno>
#include <cstring>
#include <exception>

#include <sys/wait.h>
#include <unistd.h>

#include "stage/Errors.hpp"

namespace stage {
namespace {

constexpr int kThrew = 1;

void writeAll(int file, const std::string &text) {
    for (size_t done = 0; done < text.size();) {
        const ssize_t written = write(file, text.data() + done, text.size() - done);
        if (written < 0 && errno != EINTR) {
            return;  // nobody reads any more
        }
        done += written > 0 ? static_cast<size_t>(written) : 0;
    }
}

std::string readAll(int file) {
    std::string text;
    char part[4096];
    for (ssize_t count = 1; count != 0;) {
        count = read(file, part, sizeof part);
        if (count > 0) {
            text.append(part, static_cast<size_t>(count));
        } else if (count < 0 && errno != EINTR) {
            break;
        }
    }
    return text;
}

[[noreturn]] void runChild(const std::function<std::string()> &work, int out) {
    int code = 0;
    try {
        writeAll(out, work());
    } catch (const std::exception &error) {
        writeAll(out, error.what());
        code = kThrew;
    }
    // Not exit(): what the parent has buffered or registered is the parent's to finish.
    _exit(code);
}

}  // namespace

ChildProcess::ChildProcess(const std::function<std::string()> &work) {
    int ends[2];
    if (pipe(ends) != 0) {
        throw Failure(std::string("no pipe for a child process: ") + std::strerror(errno));
    }
    child_ = fork();
    if (child_ < 0) {
        const std::string reason = std::strerror(errno);
        close(ends[0]);
        close(ends[1]);
        throw Failure("no child process: " + reason);
    }
    if (child_ == 0) {
        close(ends[0]);
        runChild(work, ends[1]);
    }
    close(ends[1]);
    output_ = ends[0];
}

ChildProcess::~ChildProcess() {
    if (child_ != 0) {
        readAll(output_);  // a child that nobody reads would not end
        wait();
    }
}

int ChildProcess::wait() {
    close(output_);
    int status = 0;
    while (waitpid(child_, &status, 0) < 0 && errno == EINTR) {
    }
    child_ = 0;
    return status;
}

std::string ChildProcess::answer() {
    std::string text = readAll(output_);
    const int status = wait();
    if (WIFSIGNALED(status)) {
        throw Failure("a child process was ended by signal " + std::to_string(WTERMSIG(status)));
    }
    if (WEXITSTATUS(status) != 0) {
        throw Failure(text);
    }
    return text;
}

}  // namespace stage
