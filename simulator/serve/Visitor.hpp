// One browser's page: its socket, its phones, and what has been done to them.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <libsoup/soup.h>

#include "serve/Clock.hpp"
#include "serve/Phones.hpp"
#include "serve/Requests.hpp"
#include "serve/StepList.hpp"

namespace serve {

/// What all visitors have in common.
struct House {
    std::filesystem::path program{};                             // that runs as a phone's process
    std::filesystem::path world{};                               // empty: the sample
    std::filesystem::path calls{};                               // empty: the world's
    std::chrono::milliseconds sleep = std::chrono::minutes(10);  // when nobody looks for so long
};

class Visitor {
  public:
    /// Keeps what it needs in `folder`, which it makes. `gone` is called when the page has left,
    /// and may not destroy the object.
    Visitor(const House &house, std::filesystem::path folder, SoupWebsocketConnection *socket,
            std::function<void()> gone);
    ~Visitor();
    Visitor(const Visitor &) = delete;
    Visitor &operator=(const Visitor &) = delete;

  private:
    /// The files that phones read, as far as the page has brought any.
    struct Files {
        std::filesystem::path world;
        std::filesystem::path calls;
    };
    /// Phones that are being opened, and what becomes true with them.
    struct Coming {
        std::unique_ptr<Phones> phones;
        ask::Open open;
        Files files;
        std::string file;  // the one that is new, by its name on the page; empty: none is
        std::filesystem::path kept{};  // where it is kept
    };
    /// What the page wants to know of a side, and how far it is with its pictures.
    struct View {
        bool views = true;
        bool happenings = false;
        std::uint32_t sent = 0;   // number of the last picture
        std::uint32_t drawn = 0;  // and of the last one that the page has drawn
        bool isOwed = false;      // a picture that was held back

        bool keepsUp() const;
    };

    void hear(GBytes *message);
    void take(const ask::Open &open);
    void take(const ask::Step &step);
    void take(const ask::Speed &speed);
    void take(const ask::Watch &watch);
    void take(const ask::File &file);
    void take(const ask::Drew &drew);
    void take(const ask::Look &) {}

    void open(Coming coming);
    void couldNotOpen(const std::string &why);
    void moveIn();
    void mourn(Side side, const std::vector<std::string> &log);

    void letTimePass();
    void beginTurn();
    Turn turnOf(Side side, bool views);
    void endTurn();
    void tellWhatWasDone();
    void sendPictures();
    void payPictures();
    void tick();
    void tickWhenNeeded();
    void fallAsleep();
    void bury(std::unique_ptr<Phones> phones);

    void tell(const std::string &report);

    using Time = std::chrono::steady_clock;

    const House &house_;
    std::filesystem::path folder_;
    Object<SoupWebsocketConnection> socket_;
    std::function<void()> gone_;
    int folders_ = 0;  // that were made

    ask::Open open_;  // what the phones have been opened with, and the steps since
    Files files_;
    std::unique_ptr<Phones> phones_;
    std::unique_ptr<Coming> coming_;
    std::optional<ask::File> file_;  // to be taken when the turn is over
    std::vector<std::unique_ptr<Phones>> buried_;
    Source burial_;

    StepList list_;                  // all that the phones have done
    StepList untold_;                // what of it the page has not been told
    StepList next_;                  // to be done in the next turn
    std::vector<std::string> turn_;  // what is being done
    bool nextIsAsked_ = false;       // by the page, and not only by the time
    bool turnIsAsked_ = false;
    bool tooMuch_ = false;  // was asked, and the page has been told
    std::map<Side, View> views_;
    bool viewsAreDue_ = false;
    Clock clock_;
    Time::time_point lastLook_ = Time::now();
    Time::time_point lastViews_{};
    Time::time_point lastTold_{};
    Source tick_;
    std::chrono::milliseconds tickTime_{};
};

}  // namespace serve
