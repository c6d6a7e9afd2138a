// A companion library whose every answer a test sets and whose every question it can read back.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace test {

/// One local identity query as the companion received it.
struct IdentityQuery {
    std::string pureNumber;
    bool ignoreDiagnose, onlyLocal, hasDelegate;
    double retryPeriod;
    int displayType;
    bool operator==(const IdentityQuery &) const = default;
};

/// The process's one stub. Numbers are keyed by their digits; what has no entry has no answer
/// (nil).
struct StubCompanion {
    double iosVersion = 7.1;
    bool isFourInch = true;
    bool showNumberArea = true;
    bool raises = false;  // every lookup raises instead of answering
    std::map<std::string, std::string> labels, areas, descriptions;
    std::vector<std::string> contacts;

    std::vector<IdentityQuery> queries;
    int parsedNumbers = 0;
    int imagesAskedFor = 0;
    std::function<void()> onInitializePreferences;

    static StubCompanion &current();
    /// Registers the companion's classes; once a process.
    static void registerClasses();
};

}  // namespace test
