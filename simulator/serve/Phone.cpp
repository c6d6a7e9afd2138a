// The loop of a phone's process: a turn, what came of it, the next.
#include "serve/Phone.hpp"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <sstream>

#include <nlohmann/json.hpp>
#include <sys/prctl.h>

#include "serve/Channel.hpp"
#include "serve/Frame.hpp"
#include "serve/Orders.hpp"
#include "stage/Errors.hpp"
#include "stage/Session.hpp"
#include "stage/Watching.hpp"
#include "uikit/Motion.hpp"

namespace serve {
namespace {

using nlohmann::json;

/// The server decides when a phone ends; a phone without a server ends at once.
void bindToServer() {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    for (const int signal : {SIGINT, SIGHUP, SIGPIPE}) {
        std::signal(signal, SIG_IGN);
    }
}

stage::Settings settingsOf(const Opening &opening, std::vector<std::string> &warnings) {
    stage::Settings settings;
    settings.model = stage::modelNamed(opening.ios, opening.screen);
    settings.withAddOn = opening.withAddOn;
    settings.world = opening.world;
    settings.calls = opening.calls;
    settings.data = opening.data;
    settings.warn = [&warnings](const std::string &line) { warnings.push_back(line); };
    settings.withProgress = false;
    return settings;
}

class Phone {
  public:
    Phone(const Opening &opening, PhoneEnd &server, SharedPicture &memory)
        : server_(server),
          memory_(memory),
          side_(opening.withAddOn ? "with" : "without"),
          session_(settingsOf(opening, warnings_)),
          frame_(stage::modelNamed(opening.ios, opening.screen).screenSize(),
                 opening.withAddOn ? 1 : 0) {}

    void take(const Turn &turn) {
        Outcome outcome;
        outcome.warnings = std::exchange(warnings_, {});
        for (size_t i = 0; i < turn.lines.size(); ++i) {
            try {
                perform(turn.lines[i]);
            } catch (const stage::Failure &failure) {
                outcome.refusals.push_back({i, failure.what()});
            } catch (const stage::UsageError &error) {
                outcome.refusals.push_back({i, error.what()});
            }
        }
        if (turn.views) {
            tellViews();
        }
        if (turn.draw) {
            session_.window().draw(frame_.canvas());
            outcome.picture = frame_.write(memory_.bytes());
            outcome.pictures = frame_.number();
        }
        outcome.isLively = sim::Motion::shared().isMoving() || session_.window().hand().isDown();
        server_.send(kind::kDone, text(outcome));
    }

  private:
    void perform(const std::string &line) {
        const stage::Step step = stage::readStep(line);
        if (step.is("png")) {  // no request names a file
            throw stage::Failure("png: not from here; the page saves its picture itself");
        }
        std::ostringstream printed;  // what it says is told by other means
        session_.perform(step, printed);
        session_.window().layout();  // as before a picture, which there may or may not be
    }

    void tellViews() {
        std::string tree = session_.tree();
        if (tree != views_) {
            views_ = std::move(tree);
            server_.send(kind::kTold, json{{"tell", "views"},
                                           {"side", side_},
                                           {"root",
                                            {{"id", 1},
                                             {"class", "UIWindow"},
                                             {"frame", {0, 0, 320, 568}},
                                             {"place", {0, 0, 320, 568}},
                                             {"text", views_},
                                             {"owner", "phone"},
                                             {"children", json::array()}}}}
                                          .dump(-1, ' ', false, json::error_handler_t::replace));
        }
    }

    PhoneEnd &server_;
    SharedPicture &memory_;
    std::string side_;
    std::vector<std::string> warnings_;
    stage::Session session_;
    stage::Watching watching_{session_};
    Frame frame_;
    std::string views_;  // as told last
};

void serveServer() {
    PhoneEnd server(kPhoneSocket);
    SharedPicture memory(kPhonePicture);
    const auto first = server.receive();
    if (!first) {
        return;
    }
    const Opening opening = readOpening(first->text);
    std::optional<Phone> phone;
    try {
        std::ranges::for_each(opening.turn.lines, &stage::readStep);  // a list has steps alone
        phone.emplace(opening, server, memory);
    } catch (const std::exception &error) {
        server.send(kind::kFailed, error.what());
        return;
    }
    phone->take(opening.turn);
    while (const auto message = server.receive()) {
        phone->take(readTurn(message->text));
    }
}

}  // namespace

int runPhone() {
    bindToServer();
    try {
        serveServer();
        return EXIT_SUCCESS;
    } catch (const std::exception &error) {
        std::cerr << error.what() << '\n';
    } catch (...) {
        std::cerr << "an Objective-C exception ended the phone\n";
    }
    return EXIT_FAILURE;
}

}  // namespace serve
