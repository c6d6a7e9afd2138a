// Sessions and command lines that keep their data in a folder of their own.
#pragma once

#include <functional>
#include <sstream>

#include <gmock/gmock.h>

#include "companion/TemporaryFolder.hpp"
#include "stage/Errors.hpp"
#include "stage/Run.hpp"
#include "stage/Session.hpp"

namespace test {

class StageRun : public testing::Test {
  protected:
    /// Simulated seconds pass at once, and texts are measured by rule.
    stage::Settings settings(std::string_view ios, std::string_view screen,
                             bool withAddOn = true) const {
        stage::Settings settings;
        settings.model = stage::modelNamed(ios, screen);
        settings.withAddOn = withAddOn;
        settings.data = folder_ / "data";
        settings.fixedMeasurer = true;
        settings.pace = 0.002;
        return settings;
    }

    /// What the steps print.
    static std::string perform(stage::Session &session, const std::vector<std::string> &steps) {
        std::ostringstream out;
        for (const std::string &step : steps) {
            session.perform(stage::readStep(step), out);
        }
        return out.str();
    }

    /// Why it fails, or "done".
    static std::string refusal(const std::function<void()> &act) {
        try {
            act();
        } catch (const stage::Failure &failure) {
            return failure.what();
        }
        return "done";
    }

    /// Each step is done, or refused with a message that contains what stands beside it.
    static void expectEach(stage::Session &session,
                           std::initializer_list<std::pair<std::string, const char *>> steps) {
        for (const auto &row : steps) {
            EXPECT_THAT(refusal([&] { perform(session, {row.first}); }),
                        testing::HasSubstr(row.second));
        }
    }

    struct Outcome {
        int code;
        std::string out;
        std::string err;
    };

    Outcome run(std::vector<std::string> words) const {
        words.insert(words.begin() + 1, {"--data", (folder_ / "data").string()});
        std::ostringstream out;
        std::ostringstream err;
        const int code = stage::run(words, out, err);
        return {code, out.str(), err.str()};
    }

    TemporaryFolder folder_;
};

}  // namespace test
