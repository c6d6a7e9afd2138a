// A folder of a test's own, and sessions and command lines that keep their data there.
#pragma once

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <unistd.h>

#include "stage/Run.hpp"
#include "stage/Session.hpp"

namespace test {

class StageRun : public testing::Test {
  public:
    StageRun() {
        std::filesystem::remove_all(folder_);
        std::filesystem::create_directories(folder_);
    }
    ~StageRun() override { std::filesystem::remove_all(folder_); }

  protected:
    /// Simulated seconds pass at once, and texts are measured by rule.
    stage::Settings settings(std::string_view ios, std::string_view screen) const {
        stage::Settings settings;
        settings.model = stage::modelNamed(ios, screen);
        settings.data = folder_ / "data";
        settings.fixedMeasurer = true;
        settings.pace = 0.002;
        return settings;
    }

    struct Outcome {
        int code;
        std::string out;
        std::string err;
    };

    Outcome run(std::vector<std::string> words) const {
        words.insert(words.end(), {"--data", (folder_ / "data").string()});
        std::ostringstream out;
        std::ostringstream err;
        const int code = stage::run(words, out, err);
        return {code, out.str(), err.str()};
    }

    // Cases run as processes of their own, several at a time.
    std::filesystem::path folder_ =
        std::filesystem::path(testing::TempDir()) / ("zqdial-stage-" + std::to_string(getpid()));
};

}  // namespace test
