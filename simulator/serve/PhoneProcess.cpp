// Starting the program anew keeps a phone clear of all that the server has open.
#include "serve/PhoneProcess.hpp"

#include <cerrno>
#include <cstring>
#include <deque>
#include <fstream>

#include <sys/socket.h>
#include <unistd.h>

#include "serve/Phone.hpp"
#include "stage/Errors.hpp"

namespace serve {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto kErrors = "stderr";
constexpr auto kData = "data";
constexpr std::chrono::milliseconds kPatience = 30s;  // with one turn

void appendLastLines(std::vector<std::string> &lines, const fs::path &file) {
    constexpr size_t kMost = 20;
    std::deque<std::string> last;
    std::ifstream stream(file);
    for (std::string line; std::getline(stream, line);) {
        last.push_back(line);
        if (last.size() > kMost) {
            last.pop_front();
        }
    }
    lines.insert(lines.end(), last.begin(), last.end());
}

}  // namespace

PhoneProcess::PhoneProcess(const fs::path &program, fs::path folder, Opening opening,
                           Listener listener)
    : folder_(std::move(folder)), listener_(std::move(listener)) {
    fs::create_directories(folder_);
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
        throw stage::Failure(std::string("no socket for a phone: ") + std::strerror(errno));
    }
    channel_ = std::make_unique<ServerEnd>(
        ends[0], [this](const Message &message) { hear(message); }, [this] { end(); });
    const Object<GSubprocessLauncher> launcher(
        g_subprocess_launcher_new(G_SUBPROCESS_FLAGS_STDOUT_SILENCE));
    g_subprocess_launcher_set_stderr_file_path(launcher.get(), (folder_ / kErrors).c_str());
    g_subprocess_launcher_take_fd(launcher.get(), ends[1], kPhoneSocket);
    g_subprocess_launcher_take_fd(launcher.get(), dup(memory_.file()), kPhonePicture);
    GError *error = nullptr;
    const std::string word(kPhoneWord);
    process_.reset(g_subprocess_launcher_spawn(launcher.get(), &error, program.c_str(),
                                               word.c_str(), nullptr));
    if (!process_) {
        const std::string reason = error->message;
        g_error_free(error);
        throw stage::Failure("a phone's process cannot be started: " + reason);
    }
    opening.data = folder_ / kData;
    channel_->send(kind::kOpening, text(opening));
    patience_ = Source::every(kPatience, [this] { end(); });
}

PhoneProcess::~PhoneProcess() {
    channel_.reset();
    if (process_) {
        g_subprocess_force_exit(process_.get());
        g_subprocess_wait(process_.get(), nullptr, nullptr);
    }
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

void PhoneProcess::take(const Turn &turn) {
    busy_ = true;
    channel_->send(kind::kTurn, text(turn));
    patience_ = Source::every(kPatience, [this] { end(); });
}

void PhoneProcess::hear(const Message &message) {
    switch (message.kind) {
    case kind::kDone:
        busy_ = false;
        patience_.stop();
        listener_.done(readOutcome(message.text));
        break;
    case kind::kTold:
        listener_.told(message.text);
        break;
    case kind::kFailed:
        listener_.failed(message.text);
        break;
    default:
        break;
    }
}

void PhoneProcess::end() {
    patience_.stop();
    g_subprocess_force_exit(process_.get());
    g_subprocess_wait(process_.get(), nullptr, nullptr);
    listener_.died(log());
}

std::vector<std::string> PhoneProcess::log() const {
    std::vector<std::string> lines;
    appendLastLines(lines, folder_ / kData / "system.log");
    appendLastLines(lines, folder_ / kErrors);
    if (g_subprocess_get_if_signaled(process_.get()) != 0) {
        lines.push_back("ended by signal " +
                        std::to_string(g_subprocess_get_term_sig(process_.get())));
    }
    return lines;
}

}  // namespace serve
