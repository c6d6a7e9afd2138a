// The main loop, and what goes with its end.
#include "serve/Serve.hpp"

#include <csignal>
#include <vector>

#include <glib.h>

#include "phone/Resources.hpp"
#include "serve/Server.hpp"
#include "stage/Errors.hpp"
#include "stage/OwnFolder.hpp"

namespace serve {
namespace {

namespace fs = std::filesystem;

bool isIgnored(int signal) {
    struct sigaction action{};
    sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_IGN;
}

fs::path wherever(const fs::path &file) { return file.empty() ? file : fs::absolute(file); }

void serve(const stage::Request &request, std::ostream &out) {
    for (const fs::path &file : {request.settings.world, request.settings.calls}) {
        if (!file.empty() && !fs::exists(file)) {
            throw stage::Failure(file.string() + ": there is no such file");
        }
    }
    const auto folder = stage::OwnFolder::passing(fs::temp_directory_path() / "phone-simulator",
                                                  "name another with TMPDIR");
    const Server server(
        {"/proc/self/exe", wherever(request.settings.world), wherever(request.settings.calls)},
        phone::installFolder() / "share" / "page", folder.path(),
        static_cast<unsigned>(request.port));
    const std::unique_ptr<GMainLoop, void (*)(GMainLoop *)> loop(g_main_loop_new(nullptr, FALSE),
                                                                 &g_main_loop_unref);
    std::vector<Source> endings;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        if (!isIgnored(signal)) {
            endings.push_back(Source::onSignal(signal, [&] { g_main_loop_quit(loop.get()); }));
        }
    }
    out << "http://127.0.0.1:" << server.port() << "/\n" << std::flush;
    g_main_loop_run(loop.get());
}

}  // namespace

stage::Command command() {
    return {"serve",
            "Show the telephone in a browser, until Ctrl-C.",
            &serve,
            {"port", "world", "calls"}};
}

}  // namespace serve
