// A visitor's phones, one or two, which do the same at the same time: one alone, one with the
// add-on.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "serve/PhoneProcess.hpp"
#include "serve/Requests.hpp"

namespace serve {

class Phones {
  public:
    /// Nothing of it may destroy the object.
    struct Listener {
        std::function<void()> done;                       // all, with the opening or with a turn
        std::function<void(const std::string &)> told;    // a report for the page
        std::function<void(const std::string &)> failed;  // to open; what a phone says to that
        std::function<void(Side, const std::vector<std::string> &)> died;  // with its log's end
    };

    /// Starts them in subfolders of `folder`. Of `opening` data and add-on are each phone's own.
    /// Throws Failure.
    Phones(const std::filesystem::path &program, const std::filesystem::path &folder,
           const std::vector<Side> &sides, const Opening &opening, Listener listener);

    /// The listener hears nothing more.
    void fallSilent() { silent_ = true; }
    bool isBusy() const;
    /// Has them do it; `turnOf` gives each its own. To be called when they are not busy.
    void take(const std::function<Turn(Side)> &turnOf);

    /// Those that live.
    std::vector<Side> sides() const;
    // What came of the last turn.
    /// The lines that no phone could do, and why not.
    std::vector<Refusal> refusals() const;
    std::vector<std::string> warnings() const;
    /// Something moves by itself, or a finger is down.
    bool isLively() const;
    /// What changed of the picture, as the page gets it; empty when nothing did.
    std::span<const unsigned char> picture(Side side) const;
    /// How many pictures there have been, this one included.
    std::uint32_t pictures(Side side) const { return phones_.at(side).outcome.pictures; }

  private:
    struct Phone {
        std::unique_ptr<PhoneProcess> process;
        Outcome outcome{};
        bool lives = true;
    };

    void say(const auto &listener, const auto &...what);
    void isDone(Side side, const Outcome &outcome);
    void hasDied(Side side, const std::vector<std::string> &log);

    Listener listener_;
    bool silent_ = false;
    std::map<Side, Phone> phones_;
};

}  // namespace serve
