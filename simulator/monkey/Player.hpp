// Does at a telephone what it is told and looks, as a person would, whether anything is wrong.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "inspect/Views.hpp"
#include "monkey/RandomSteps.hpp"
#include "stage/Session.hpp"

namespace monkey {

/// What is done next at a telephone with that screen; nothing at the end.
using Next = std::function<Lines(const inspect::View &screen)>;

class Player {
  public:
    /// What it says of the lines that it does, one at a time, so that they are known also when the
    /// process dies of one: each after kDone before it is done, and kImpossible when it turned out
    /// to be impossible.
    using Say = std::function<void(const std::string &)>;
    static constexpr char kDone = '>';
    static constexpr char kImpossible = '-';

    explicit Player(const stage::Settings &settings);

    /// Plays on a fresh telephone. Returns what is wrong, in one line; empty when nothing is.
    std::string play(const Next &next, const Say &say);

  private:
    std::string playOn(const Next &next, const Say &say);
    void perform(const std::string &line, const Say &say);
    inspect::View screen();
    std::string fault(const inspect::View &screen);

    stage::Session session_;
    bool isConfused_ = false;  // what the in-call screen shows may be about another call
};

}  // namespace monkey
