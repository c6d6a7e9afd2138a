// A page's side of the socket: what a browser would send and see, without a browser.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include <libsoup/soup.h>
#include <nlohmann/json.hpp>

#include "serve/Glib.hpp"

namespace test {

/// Lets the main loop run until it is so; false when it is not after a minute.
bool waitUntil(const std::function<bool()> &isSo);

/// The status of a request, 101 for a socket's; empty header values are not sent.
struct Knock {
    std::string path = "/";
    std::string host{};
    std::string origin{};
    std::string method = "GET";
};
unsigned statusOf(unsigned port, const Knock &knock);

class Visit {
  public:
    using Json = nlohmann::json;
    using Pixels = std::vector<std::uint32_t>;

    explicit Visit(unsigned port);
    ~Visit();
    Visit(const Visit &) = delete;
    Visit &operator=(const Visit &) = delete;

    void say(const std::string &message);
    void ask(const Json &message) { say(message.dump()); }
    void step(const std::string &line) { ask({{"ask", "step"}, {"line", line}}); }
    void open(const std::string &ios, const std::vector<std::string> &sides,
              const std::vector<std::string> &steps = {});

    /// The next report of the kind, those before it dropped; null when none comes.
    Json told(const std::string &kind);
    /// Whether the step comes to be done; its line was used once only.
    bool hasDone(const std::string &line) const;
    /// Waits until nothing has been told or shown for a while.
    void settle();
    bool isOver() const;

    /// All that "did" has told since the last opening, and what it was opened with.
    const std::vector<std::string> &steps() const { return steps_; }
    /// As the pictures so far make it up.
    const Pixels &screen(const std::string &side) { return screens_[side].pixels; }
    std::uint32_t pictures(const std::string &side) { return screens_[side].number; }
    size_t bytes() const { return bytes_; }

  private:
    struct Screen {
        Pixels pixels;
        std::uint32_t number = 0;
    };

    void hear(int type, GBytes *message);
    void note(const Json &report);
    void show(const unsigned char *picture);

    serve::Object<SoupSession> session_;
    serve::Object<SoupWebsocketConnection> socket_;
    std::deque<Json> reports_;
    std::vector<std::string> steps_;
    std::vector<std::string> asked_;  // to be opened with
    std::map<std::string, Screen> screens_;
    size_t width_ = 0;
    size_t height_ = 0;
    size_t bytes_ = 0;
    size_t heard_ = 0;
};

}  // namespace test
