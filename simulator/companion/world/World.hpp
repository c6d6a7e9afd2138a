// Everything that is known at the start of one run: people, numbers, calls, cloud answers.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "companion/world/Identity.hpp"
#include "companion/world/Records.hpp"

namespace companion {

/// A world file that cannot be used. The message is one line: file, place, what was found and what
/// was expected there.
class WorldError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Told now and then what part of a long piece of work is done, from 0 to 1; may be empty.
using Progress = std::function<void(double)>;

/// For a piece of that work, from one part of the whole to another.
Progress within(const Progress &whole, double from, double to);

struct World {
    bool showNumberArea = true;
    double cloudDelay = 1.0;     ///< seconds from a query to its answer
    double downloadDelay = 1.0;  ///< seconds from a logo request to the file

    std::vector<Contact> contacts;
    std::vector<Identity> identities;
    std::vector<Partner> partners;
    std::vector<BlackListRule> blackList;
    std::vector<Microblog> microblogs;
    std::vector<HistoryEntry> history;
    std::vector<StoredCall> storedCalls;
    std::vector<RecentCall> recents;
    std::vector<CloudAnswer> cloudAnswers;
    std::vector<NumberRegion> regions;
    std::vector<std::string> numbers;  ///< named without anything being said of them
    std::vector<PictureUse> pictures;  ///< all that the above name

    /// Reads a JSON file in the format of docs/world.md. Nothing is read in part: a file with any
    /// mistake throws WorldError.
    static World read(const std::filesystem::path &file, const Progress &progress = {});

    /// Reads a piece of one, in the same format, for a companion that knows `known` already: its
    /// settings hold where the piece has none, and its partners need not be repeated.
    static World readPiece(std::string_view json, const World &known);

    /// Of all the lists above.
    std::size_t entries() const;
};

}  // namespace companion
