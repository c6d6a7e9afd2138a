// A phone as the server has it: a process of its own, since hooks and the device belong to a
// process for good, and since it may die.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gio/gio.h>

#include "serve/Channel.hpp"
#include "serve/Orders.hpp"
#include "serve/SharedPicture.hpp"

namespace serve {

class PhoneProcess {
  public:
    /// Nothing of it may destroy the object.
    struct Listener {
        std::function<void(const Outcome &)> done;        // of the opening or the turn
        std::function<void(const std::string &)> told;    // a report for the page
        std::function<void(const std::string &)> failed;  // to open; why
        /// It has ended by itself; the last lines of its log.
        std::function<void(const std::vector<std::string> &)> died;
    };

    /// Starts `program` as a phone's process, which keeps its data in `folder`. Throws Failure.
    PhoneProcess(const std::filesystem::path &program, std::filesystem::path folder,
                 Opening opening, Listener listener);
    /// Ends it and removes its folder.
    ~PhoneProcess();
    PhoneProcess(const PhoneProcess &) = delete;
    PhoneProcess &operator=(const PhoneProcess &) = delete;

    /// Whether the opening or a turn is under way.
    bool isBusy() const { return busy_; }
    /// To be called when it is not busy.
    void take(const Turn &turn);
    /// Header and pixels as the last outcome told; for the time until the next turn.
    std::span<const unsigned char> picture(size_t size) const {
        return memory_.bytes().first(size);
    }

  private:
    void hear(const Message &message);
    void end();
    std::vector<std::string> log() const;

    std::filesystem::path folder_;
    Listener listener_;
    SharedPicture memory_;
    Object<GSubprocess> process_;
    std::unique_ptr<ServerEnd> channel_;
    Source patience_;
    bool busy_ = true;
};

}  // namespace serve
