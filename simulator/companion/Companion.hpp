// The companion as its host sees it: opened with a world before the first question, asked
// afterwards what happened. Everything else goes through the companion's classes.
#pragma once

#include <cstdint>
#include <deque>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "companion/SimulatedTime.hpp"
#include "companion/store/Store.hpp"

namespace companion {

struct Settings {
    std::filesystem::path worldFile{};    ///< empty: the sample world
    std::filesystem::path dataDir{};      ///< empty: nothing is kept, no logo can be downloaded
    std::filesystem::path resourceDir{};  ///< empty: the pictures beside this library
    Progress progress{};                  ///< told of the opening
};

/// One question for a number's identity, as it was asked.
struct Question {
    std::string number;
    bool ignoreDiagnose = false;
    bool onlyLocal = false;
    bool hasDelegate = false;
    double retryPeriod = 0;
    std::int32_t displayType = 0;
};

/// One logo that was asked for.
struct Download {
    std::string icon;
    std::string destination;
    bool finished = false;  ///< the file is in place and the message was posted
};

/// What the companion was asked since it was opened: the latest of each, oldest first.
struct Journal {
    std::deque<Question> questions{};
    std::deque<Download> downloads{};
    std::deque<std::string> messages{};  ///< names of the messages posted
    std::deque<std::string> openedUrls{};
    int preferenceInitializations = 0;
};

/// Starts a run; returns how many entries its world has. Throws WorldError or StoreError, each with
/// a message of one line; the companion is then as it was before. A companion that is never opened
/// knows no world and keeps nothing.
std::size_t open(const Settings &settings);

/// Changes what is known in the run by a piece of a world (see docs/world.md): whatever it says of
/// the numbers that it names takes the place of all that was known of them, stored cloud answers
/// and downloaded logos included. Throws WorldError or StoreError, as above; nothing is changed
/// then. Nobody is told.
void learn(std::string_view json);

/// The run's world as it was opened; what was asked in the run is forgotten.
void startOver();

/// The store of the run.
Store &store();

/// Where the number in a text comes from: what the world says of it, or else what areaName() does.
std::string regionOf(std::string_view text);

/// What was asked in the run; may be cleared.
Journal &journal();

/// Hears what the journal gets of messages and addresses, as it gets it; null, as at first, for
/// nobody.
enum class Told { Message, Address };
using Listener = void (*)(Told told, const std::string &what);
void setListener(Listener listener);
/// Writes it into the journal.
void tell(Told told, const std::string &what);

/// How many cloud answers and downloads are still to come.
int &awaited();

/// The folder of the companion's pictures.
const std::filesystem::path &resourceDir();

/// Where a picture lies that the world names: beside the world's file, or else in the folder above,
/// whether it is there or not.
std::filesystem::path pictureFile(const std::string &name);

/// The pictures that the world names and that are in neither place or are none, a line for each.
std::vector<std::string> missingPictures();

/// Where a partner's logo is kept; empty without a data folder.
std::filesystem::path logoFile(std::int32_t partnerId);

/// The world that is used when none is named.
std::filesystem::path sampleWorldFile();

/// Adds to a list of the journal, which keeps no more than the latest entries.
template <class Entry>
Entry &note(std::deque<Entry> &list, Entry entry) {
    constexpr std::size_t kKept = 10000;
    if (list.size() == kKept) {
        list.pop_front();
    }
    return list.emplace_back(std::move(entry));
}

}  // namespace companion
