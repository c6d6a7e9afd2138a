// The loop of a phone's process: a turn, what came of it, the next.
#include "serve/Phone.hpp"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <sstream>

#include <sys/prctl.h>

#include "inspect/Views.hpp"
#include "inspect/Watch.hpp"
#include "serve/Channel.hpp"
#include "serve/Frame.hpp"
#include "serve/NamedTouch.hpp"
#include "serve/Orders.hpp"
#include "serve/Reports.hpp"
#include "stage/Errors.hpp"
#include "stage/Session.hpp"
#include "stage/Watching.hpp"
#include "uikit/Motion.hpp"

namespace serve {
namespace {

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
          side_(opening.withAddOn ? Side::With : Side::Without),
          session_(settingsOf(opening, warnings_)),
          frame_(stage::modelNamed(opening.ios, opening.screen).screenSize(),
                 static_cast<unsigned char>(side_)) {
        inspect::watchAddOnClasses();
    }

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
            if (turn.happenings) {
                tellHappenings(turn.lines[i]);
            }
        }
        if (!turn.happenings) {
            inspect::takeHappenings();  // nobody wants to know
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
        SimView *const window = session_.window().window();
        const stage::Step step = stage::readStep(placedByName(line, window));
        if (step.is("png")) {  // no request names a file
            throw stage::Failure("png: not from here; the page saves its picture itself");
        }
        std::ostringstream printed;  // what it says is told by other means
        session_.perform(step, printed);
        session_.window().layout();  // as before a picture, which there may or may not be
    }

    /// What the step has set going, and what went on since the one before.
    void tellHappenings(const std::string &line) {
        const auto happenings = inspect::takeHappenings();
        if (!happenings.empty()) {
            server_.send(kind::kTold,
                         report::happened(side_, line, inspect::happeningsJson(happenings)));
        }
    }

    void tellViews() {
        std::string views = inspect::viewsJson(session_.window().window());
        if (views != views_) {
            server_.send(kind::kTold, report::views(side_, views));
            views_ = std::move(views);
        }
    }

    PhoneEnd &server_;
    SharedPicture &memory_;
    Side side_;
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
    inspect::watch();
    try {
        for (const std::string &line : opening.turn.lines) {
            stage::readStep(withoutName(line));  // a list has steps alone
        }
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
