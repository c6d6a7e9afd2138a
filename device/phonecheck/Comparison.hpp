// Holding the classes of a running process against the ledger. For whoever stands in for the
// platform, and for a phone; the add-on itself has no part of it.
#pragma once

#include "members/Member.hpp"

namespace members {

struct Verdicts {
    int confirmed = 0, contradicted = 0;
};

/// Gets one line, without its end, for each entry that the process contradicts.
class Report {
  public:
    virtual void contradiction(const char *line) = 0;

  protected:
    ~Report() = default;
};

/// Compares every entry of these systems about Apple's classes, or the companion's. An entry of a
/// class that the process lacks is counted with its class.
Verdicts compareApple(Systems systems, Report &report);
Verdicts compareCompanion(Report &report);

}  // namespace members
