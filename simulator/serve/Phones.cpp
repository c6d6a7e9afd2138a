// What one phone cannot do, such as pressing a button of the add-on's, the other may; it counts as
// done then.
#include "serve/Phones.hpp"

#include <algorithm>

namespace serve {

Phones::Phones(const std::filesystem::path &program, const std::filesystem::path &folder,
               const std::vector<Side> &sides, const Opening &opening, Listener listener)
    : listener_(std::move(listener)) {
    for (const Side side : sides) {
        Opening own = opening;
        own.withAddOn = side == Side::With;
        phones_[side].process = std::make_unique<PhoneProcess>(
            program, folder / nameOf(side), std::move(own),
            PhoneProcess::Listener{
                [this, side](const Outcome &outcome) { isDone(side, outcome); },
                [this](const std::string &report) { say(listener_.told, report); },
                [this](const std::string &why) { say(listener_.failed, why); },
                [this, side](const std::vector<std::string> &log) { hasDied(side, log); }});
    }
}

void Phones::say(const auto &listener, const auto &...what) {
    if (!silent_) {
        listener(what...);
    }
}

bool Phones::isBusy() const {
    return std::ranges::any_of(phones_, [](const auto &entry) {
        return entry.second.lives && entry.second.process->isBusy();
    });
}

void Phones::take(const std::function<Turn(Side)> &turnOf) {
    for (auto &[side, phone] : phones_) {
        phone.outcome = {};
        if (phone.lives) {
            phone.process->take(turnOf(side));
        }
    }
}

void Phones::isDone(Side side, const Outcome &outcome) {
    phones_[side].outcome = outcome;
    if (!isBusy()) {
        say(listener_.done);
    }
}

void Phones::hasDied(Side side, const std::vector<std::string> &log) {
    const bool wasWaitedFor = isBusy();
    phones_[side].lives = false;
    phones_[side].outcome = {};
    say(listener_.died, side, log);
    if (wasWaitedFor && !isBusy() && !sides().empty()) {
        say(listener_.done);
    }
}

std::vector<Side> Phones::sides() const {
    std::vector<Side> sides;
    for (const auto &[side, phone] : phones_) {
        if (phone.lives) {
            sides.push_back(side);
        }
    }
    return sides;
}

std::vector<Refusal> Phones::refusals() const {
    const std::vector<Side> living = sides();
    if (living.empty()) {
        return {};
    }
    std::vector<Refusal> common = phones_.at(living.front()).outcome.refusals;
    for (const Side side : living) {
        std::erase_if(common, [&](const Refusal &refusal) {
            return std::ranges::count(phones_.at(side).outcome.refusals, refusal.line,
                                      &Refusal::line) == 0;
        });
    }
    return common;
}

std::vector<std::string> Phones::warnings() const {
    return phones_.empty() ? std::vector<std::string>() : phones_.begin()->second.outcome.warnings;
}

bool Phones::isLively() const {
    return std::ranges::any_of(phones_,
                               [](const auto &entry) { return entry.second.outcome.isLively; });
}

std::span<const unsigned char> Phones::picture(Side side) const {
    const auto phone = phones_.find(side);
    return phone == phones_.end() || !phone->second.lives
               ? std::span<const unsigned char>()
               : phone->second.process->picture(phone->second.outcome.picture);
}

}  // namespace serve
