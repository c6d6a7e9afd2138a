// What the monkey calls wrong, and how it makes a list of steps short.
#include <algorithm>

#include <gmock/gmock.h>

#include "monkey/Checks.hpp"
#include "monkey/Shortest.hpp"

namespace {

using inspect::View;
using monkey::faultOn;
using monkey::Situation;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

View view(const char *className, CGRect place, const char *text = nullptr) {
    View made;
    made.className = className;
    made.frame = made.place = place;
    made.seen = true;
    if (text != nullptr) {
        made.text = text;
    }
    return made;
}

CGRect rect(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    return {{x, y}, {width, height}};
}

View screenWith(View child) {
    View screen = view("UIWindow", rect(0, 0, 320, 568));
    screen.children = {std::move(child)};
    return screen;
}

TEST(Monkey, SeesARowsLines) {
    const View name = view("UILabel", rect(34, 105, 200, 22), "林小满");
    const View line = view("UILabel", rect(34, 128, 200, 15), "手机");
    View hidden = line;
    hidden.hidden = true;
    const struct {
        std::vector<View> parts;
        const char *fault;
    } cases[] = {{{name, line}, ""},
                 {{name, line, hidden}, ""},
                 {{name, line, line}, "a row shows 2 lines"},
                 {{name, hidden}, "a row shows 0 lines"}};
    for (const auto &[parts, fault] : cases) {
        View row = view("PHRecentsCell", rect(0, 100, 320, 48));
        row.children = parts;
        const std::string found = faultOn(screenWith(row), {});
        EXPECT_EQ(found.substr(0, std::string(fault).size()), fault) << found;
        EXPECT_EQ(found.empty(), std::string(fault).empty()) << found;
    }
}

TEST(Monkey, SeesTheAddOnWhereItHasNothingToSay) {
    View ours = view("UILabel", rect(20, 80, 200, 20), "上海 移动");
    ours.ofAddOn = true;
    constexpr Situation kSilent[] = {
        {.isKeypad = true, .typed = 2}, {.calls = 2}, {.isFavourites = true}};
    for (const Situation &situation : kSilent) {
        EXPECT_THAT(faultOn(screenWith(ours), situation), HasSubstr("nothing to say"));
    }
    constexpr Situation kTalkative[] = {{.isKeypad = true, .typed = 3}, {.calls = 1}, {}};
    for (const Situation &situation : kTalkative) {
        EXPECT_EQ(faultOn(screenWith(ours), situation), "");
    }
}

TEST(Monkey, SeesWhatWasPushedOut) {
    View parent = view("UIView", rect(0, 20, 320, 96));
    View label = view("TPLCDTextView", rect(215, 44, 280, 20), "来电");
    parent.children = {label};
    EXPECT_EQ(faultOn(screenWith(parent), {}), "") << "the telephone's own doing";
    parent.children.front().touched = "-[InCallLCDView layoutSubviews]";
    EXPECT_THAT(faultOn(screenWith(parent), {}), HasSubstr("outside of its parent"));
}

TEST(Monkey, MakesAListShort) {
    std::vector<int> all(300);
    std::ranges::generate(all, [next = 0]() mutable { return next++; });
    int trials = 0;
    const auto fails = [&](const std::vector<int> &some) {
        ++trials;
        return std::ranges::count(some, 7) > 0 && std::ranges::count(some, 250) > 0;
    };
    EXPECT_THAT(monkey::shortest(all, fails, 1000), ElementsAre(7, 250));
    EXPECT_LT(trials, 100);
    EXPECT_THAT(monkey::shortest(all, fails, 0), SizeIs(300));
}

}  // namespace
