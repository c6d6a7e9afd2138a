// The ledger lists nothing that the add-on does not use, and the simulated companion is as it says.
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "members/Ledger.hpp"
#include "phonecheck/Comparison.hpp"
#include "stage/Session.hpp"

namespace {

struct Failures final : members::Report {
    void contradiction(const char *line) override {
        ADD_FAILURE() << line
                      << "; mend the class in simulator/companion or its line in src/members";
    }
};

TEST(Ledger, ListsTheCompanionAsItIsSimulated) {
    const stage::Session session({.withAddOn = false});
    Failures failures;
    EXPECT_GT(members::compareCompanion(failures).confirmed, 80);
}

TEST(Ledger, ListsOnlyWhatTheAddOnUses) {
    std::ifstream file(ZQDIAL_LIBRARY, std::ios::binary);
    const std::string library{std::istreambuf_iterator<char>(file), {}};
    ASSERT_FALSE(library.empty());
    const auto expectUsed = [&](const auto &members) {
        for (const members::Member &member : members) {
            const std::string name(member.selector());
            EXPECT_NE(library.find(name + '\0'), std::string::npos)
                << member.className << " " << name << ": nothing uses it, take it off src/members";
        }
    };
    expectUsed(members::kAppleMembers);
    expectUsed(members::kCompanionMembers);
    expectUsed(members::kOwnMembers);
}

}  // namespace
