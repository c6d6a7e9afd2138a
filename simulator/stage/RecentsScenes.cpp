// The gallery's scenes of the recents list and of a call's detail. Rows are those of the sample
// world.
#include "stage/Scene.hpp"

namespace stage {
namespace {

using namespace std::chrono_literals;
using Kind = Step::Kind;

constexpr Opening kRecents{ScreenKind::Recents, {}};
constexpr bool kOnlyBefore8 = true;

Step row(Kind kind, int number) { return {kind, {}, number}; }

Step named(Kind kind, std::string name) { return {kind, std::move(name)}; }

Steps swiped(int number) {
    return {row(Kind::ScrollToRow, number), row(Kind::Swipe, number), {Kind::Release}};
}

Steps swipedTo(int number, double points) {
    return {{Kind::Swipe, {}, number, {}, points}, {Kind::Release}};
}

Steps opened(int number) { return {row(Kind::ScrollToRow, number), row(Kind::Open, number)}; }

Steps then(Steps steps, std::initializer_list<Step> more) {
    steps.insert(steps.end(), more);
    return steps;
}

std::vector<Scene> lists() {
    const Step edit = named(Kind::Edit, "on");
    const Step second{Kind::Wait, {}, 1, 1s};
    return {
        {"recents-top", "The list", "Who the numbers are, below each of them.", {}, kRecents},
        {"recents-middle",
         "Further down",
         "A contact with several numbers has the one in question; a hidden number and an e-mail "
         "address have nothing.",
         {row(Kind::ScrollToRow, 21)},
         kRecents},
        {"recents-later",
         "Businesses and numbers from abroad",
         "Long texts end in dots before the date.",
         {row(Kind::ScrollToRow, 31)},
         kRecents},
        {"recents-end",
         "The end of the list",
         "A number that is none; last, a call without a date.",
         {row(Kind::ScrollToRow, 38)},
         kRecents},
        {"recents-edit",
         "Edit mode",
         "The telephone's own signs for deleting; nothing is added.",
         {edit, second},
         kRecents},
    };
}

std::vector<Scene> swipes() {
    return {
        {"recents-swipe-both", "A marked number is swiped", "Correct, mark and delete.", swiped(1),
         kRecents, kOnlyBefore8},
        {"recents-swipe-correct", "A number that one user marked",
         "Found like this, it can be corrected, but not marked.", swiped(2), kRecents,
         kOnlyBefore8},
        {"recents-swipe-mark", "A number with the user's own mark", "It can be marked anew.",
         swiped(9), kRecents, kOnlyBefore8},
        {"recents-swipe-neither", "A plain label", "Delete alone.", swiped(12), kRecents,
         kOnlyBefore8},
        {"recents-swipe-contact", "A contact", "Delete alone.", swiped(3), kRecents, kOnlyBefore8},
        {"recents-swipe-held", "A swipe of 80 points", "It stays where the finger left it.",
         swipedTo(1, 80), kRecents, kOnlyBefore8},
        {"recents-swipe-short", "A swipe of 71 points", "Less than half the menu: it closes.",
         swipedTo(1, 71), kRecents, kOnlyBefore8},
    };
}

std::vector<Scene> details() {
    return {
        {"detail-marked", "A marked number", "Its label and count, and all three buttons.",
         opened(1), kRecents},
        {"detail-single-mark", "A number that one user marked", "The label; correct and search.",
         opened(2), kRecents},
        {"detail-brand", "A business", "Its name; correct and search.", opened(7), kRecents},
        {"detail-brand-all", "A business that called as well", "All three buttons.", opened(15),
         kRecents},
        {"detail-own-mark", "A number with the user's own mark", "Whose mark it is.", opened(9),
         kRecents},
        {"detail-abroad", "A number from abroad", "Its country and a warning.", opened(10),
         kRecents},
        {"detail-abroad-search", "Another one", "Search alone.", opened(32), kRecents},
        {"detail-label", "A plain label", "The region; search alone.", opened(12), kRecents},
        {"detail-unknown", "An unknown number", "The region; mark and search.", opened(17),
         kRecents},
        {"detail-nothing", "A number of no known region", "Nothing to say: the header is shorter.",
         opened(18), kRecents},
        {"detail-long", "A business with a long name", "One line has room for it.", opened(25),
         kRecents},
        {"detail-review", "An entry of a review service", "The name.", opened(23), kRecents},
        {"detail-contact", "A contact", "The telephone's own detail.", opened(3), kRecents},
        {"detail-hidden", "A caller who hides", "No number: the telephone's own detail.",
         opened(16), kRecents},
    };
}

std::vector<Scene> pressedButtons() {
    std::vector<Scene> scenes;
    const auto hold = [&](std::string_view name, std::string_view title, const char *button) {
        scenes.push_back({name, title, "The button as it is held.",
                          then(opened(1), {named(Kind::HoldButton, button)}), kRecents,
                          kOnlyBefore8});
    };
    hold("detail-press-correct", "A finger on correct", "correct");
    hold("detail-press-mark", "A finger on mark", "mark");
    hold("detail-press-search", "A finger on search", "search");
    return scenes;
}

}  // namespace

SceneGroup recentsScenes() {
    SceneGroup group{"recents", "The recents list", {}};
    for (auto part : {lists, swipes, details, pressedButtons}) {
        for (Scene &scene : part()) {
            group.scenes.push_back(std::move(scene));
        }
    }
    return group;
}

}  // namespace stage
