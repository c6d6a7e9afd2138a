// The classes of this host are those that the add-on expects of a phone.
#include "phonecheck/Comparison.hpp"

#import "Checks.h"

static void comparePlatform() {
    struct : members::Report {
        void contradiction(const char *line) override {
            judge(false, "the class in tests/outside as src/members lists it", line, Place::current());
        }
    } report;
    const auto system = isRun(k70) ? members::kIos70 : isRun(k71) ? members::kIos71 : members::kIos80;
    expectTrue(members::compareApple(system, report).confirmed > 150);
}
// Before the add-on is loaded, which gives classes methods that they only inherited.
static const Group g_platform("platform", kPhone, [] {}, comparePlatform);
