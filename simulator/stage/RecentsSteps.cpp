// The recents' steps on the command line.
#include "stage/Errors.hpp"
#include "stage/StepOptions.hpp"

namespace stage {
namespace {

constexpr double kLongestScroll = 10'000'000;  // points
constexpr double kWidestSwipe = 320;

Step scroll(const GivenOption &given) {
    constexpr std::string_view kRow = "row:";
    if (given.value.starts_with(kRow)) {
        const GivenOption row{"--scroll row:N", given.value.substr(kRow.size())};
        return {Step::Kind::ScrollToRow, {}, readNumber(row, 1)};
    }
    const GivenOption points{"--scroll, without row:N,", given.value};
    return {Step::Kind::Scroll, {}, 1, {}, readReal(points, 0, kLongestScroll)};
}

Step swipe(const GivenOption &given) { return {Step::Kind::Swipe, {}, readNumber(given, 1)}; }

void swipeTo(const GivenOption &given, Steps &before) {
    if (before.empty() || before.back().kind != Step::Kind::Swipe || before.back().points) {
        throw UsageError("phone-simulator recents: --to has its place right behind --swipe ROW");
    }
    before.back().points = readReal(given, 0, kWidestSwipe);
}

Step open(const GivenOption &given) { return {Step::Kind::Open, {}, readNumber(given, 1)}; }

template <Step::Kind kind>
Step named(const GivenOption &given) {
    return {kind, given.value};
}

}  // namespace

std::vector<StepOption> recentsSteps() {
    using Kind = Step::Kind;
    const std::vector<std::string_view> buttons = {"correct", "mark", "search"};
    return {
        {{"--scroll", "WHERE", "scroll to WHERE: points from the top, or row:N to see row N"},
         &scroll},
        {{"--swipe", "ROW", "drag row ROW to the left until its menu is open; the first is row 1"},
         &swipe},
        {{"--to", "POINTS", "right behind --swipe: only so far"}, nullptr, &swipeTo},
        {{"--release", "", "lift the finger"}, &plain<Kind::Release>},
        {{"--edit", "HOW", "edit mode of the list", {"on", "off"}}, &named<Kind::Edit>},
        {{"--open", "ROW", "show the detail of row ROW"}, &open},
        {{"--back", "", "return from the detail to the list"}, &plain<Kind::Back>},
        {{"--press", "BUTTON", "press a button of the open menu or the detail", buttons},
         &named<Kind::Press>},
        {{"--hold", "BUTTON", "put a finger on it and leave it there", buttons},
         &named<Kind::HoldButton>},
        {{"--tab", "HOW", "show another tab, or this one again", {"away", "favourites", "back"}},
         &named<Kind::Tab>},
        {{"--reload", "", "the companion tells that its data has changed"}, &plain<Kind::Reload>},
        waitStep(),
    };
}

}  // namespace stage
