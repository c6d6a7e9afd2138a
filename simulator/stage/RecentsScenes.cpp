// The gallery's scenes of the recents list and of a call's detail. Rows are those of the sample
// world, counted from 1.
#include <string_view>

#include "stage/Scene.hpp"

namespace stage {
namespace {

using namespace std::chrono_literals;
using Kind = Step::Kind;

constexpr Opening kRecents{ScreenKind::Recents, {}};

/// What iOS 8 does not have.
Scene before8(std::string_view name, std::string_view title, std::string_view note, Steps steps) {
    constexpr bool kOnlyBefore8 = true;
    return {name, title, note, std::move(steps), kRecents, kOnlyBefore8};
}

Step row(Kind kind, int number) { return {kind, {}, number}; }

Step named(Kind kind, std::string name) { return {kind, std::move(name)}; }

Steps swiped(int number) {
    return {row(Kind::ScrollToRow, number), row(Kind::Swipe, number), {Kind::Release}};
}

Steps swipedTo(int number, double points) {
    return {{Kind::Swipe, {}, number, {}, points}, {Kind::Release}};
}

Steps opened(int number) { return {row(Kind::ScrollToRow, number), row(Kind::Open, number)}; }

Steps held(int number, const char *button) {
    Steps steps = opened(number);
    steps.push_back(named(Kind::HoldButton, button));
    return steps;
}

/// Between them they show every row on the smallest screen.
std::vector<Scene> lists() {
    const auto upTo = [](int number) { return Steps{row(Kind::ScrollToRow, number)}; };
    return {
        {"recents-top", "The list", "Who the numbers are, below each of them.", {}, kRecents},
        {"recents-upper", "A little down",
         "Businesses, an own mark, a number from abroad; a contact with several numbers has the "
         "one in question.",
         upTo(14), kRecents},
        {"recents-middle", "Further down",
         "A number whose region is unknown; a hidden number and an e-mail address have nothing.",
         upTo(21), kRecents},
        {"recents-lower", "Calls of a week ago", "Long texts end in dots before the date.",
         upTo(28), kRecents},
        {"recents-later", "Around the turn of the month",
         "A contact with one number stays as it is.", upTo(35), kRecents},
        {"recents-older", "Older ones", "A number that is none, and labels that have no room.",
         upTo(42), kRecents},
        {"recents-end", "The end of the list",
         "Where the telephone itself knows a region, the line takes its place; last, a call "
         "without a date.",
         upTo(45), kRecents},
        {"recents-edit",
         "Edit mode",
         "The telephone's own signs for deleting; nothing is added.",
         {named(Kind::Edit, "on"), {Kind::Wait, {}, 1, 1s}},
         kRecents},
    };
}

std::vector<Scene> swipes() {
    return {
        before8("recents-swipe-both", "A marked number is swiped", "Correct, mark and delete.",
                swiped(1)),
        before8("recents-swipe-correct", "A number that one user marked",
                "Found like this, it can be corrected, but not marked.", swiped(2)),
        before8("recents-swipe-mark", "A number with the user's own mark", "It can be marked anew.",
                swiped(9)),
        before8("recents-swipe-neither", "A plain label", "Delete alone.", swiped(12)),
        before8("recents-swipe-contact", "A contact", "Delete alone.", swiped(3)),
        before8("recents-swipe-several", "A contact with several numbers", "Delete alone.",
                swiped(11)),
        before8("recents-swipe-address", "An e-mail address", "Delete alone.", swiped(20)),
        before8("recents-swipe-hidden", "A caller who hides", "Delete alone.", swiped(16)),
        before8("recents-swipe-held", "A swipe of 80 points", "More than half the menu: it opens.",
                swipedTo(1, 80)),
        before8("recents-swipe-short", "A swipe of 71 points",
                "Less than half the menu: it closes.", swipedTo(1, 71)),
    };
}

struct Detail {
    std::string_view name, title, note;
    int row;
};

constexpr Detail kDetails[] = {
    {"detail-marked-most", "The largest count that is shown", "5000 users marked it.", 5},
    {"detail-cloud-fresh", "A fresh answer of the cloud", "Its label and count.", 6},
    {"detail-cloud-stored", "A stored answer of the cloud", "Its label and count.", 26},
    {"detail-cloud-other", "Another answer of the cloud", "Its label and count.", 39},
    {"detail-cloud-uncounted", "A label of the cloud that nobody counted",
     "The label; correct and search.", 27},
    {"detail-cloud-unsourced", "A label of the cloud without a source",
     "Taken for a business: correct and search.", 33},
    {"detail-web-search", "A result of a web search", "Its name; correct and search.", 14},
    {"detail-single-mark", "A number that one user marked", "The label; correct and search.", 2},
    {"detail-own-mark", "A number with the user's own mark", "Whose mark it is; mark and search.",
     9},
    {"detail-own-mark-long", "A longer mark of the user's own",
     "The label ends in dots before the bar.", 41},
    {"detail-marked-long", "A marked number with a long label",
     "23 characters are too many: the label ends in dots before the bar.", 40},
    {"detail-brand", "A business", "Its name; correct and search.", 7},
    {"detail-brand-all", "A business that called as well", "All three buttons.", 15},
    {"detail-brand-long", "A business with a long name", "One line has room for it.", 25},
    {"detail-partner", "A partner business", "Its name; correct and search.", 8},
    {"detail-partner-branch", "A branch of a partner", "The branch's own name.", 38},
    {"detail-review", "An entry of a review service", "The name; mark and search.", 23},
    {"detail-abroad", "A number from abroad", "Its country and a warning; mark and search.", 10},
    {"detail-abroad-search", "Another one", "Search alone.", 32},
    {"detail-label", "A plain label", "The region; search alone.", 12},
    {"detail-label-second", "Another plain label", "The region; mark and search.", 31},
    {"detail-label-uncounted", "A label whose count is not shown", "The label; mark and search.",
     28},
    {"detail-unknown", "An unknown number", "The region; mark and search.", 17},
    {"detail-nothing", "A number of no known region", "Nothing to say: the header is shorter.", 18},
    {"detail-tagline", "A number whose region the telephone knows",
     "Its own line, then the region.", 42},
    {"detail-tagline-marked", "The same with a mark", "The mark takes the place of both.", 43},
    {"detail-tagline-nothing", "The same without a region",
     "The telephone's line has no second part and says so; the buttons reach into it.", 44},
    {"detail-tagline-abroad", "The same from abroad", "Both and the warning.", 29},
    {"detail-undated", "A call without a date", "The number's label; search alone.", 45},
};

std::vector<Scene> details() {
    constexpr std::string_view kNobody =
        "No number, so nothing is said; before iOS 8 the room for it stays empty.";
    std::vector<Scene> scenes = {
        {"detail-marked", "A marked number",
         "Its label and count, and all three buttons; from iOS 8 on the telephone's own detail.",
         opened(1), kRecents},
    };
    for (const Detail &detail : kDetails) {
        scenes.push_back(before8(detail.name, detail.title, detail.note, opened(detail.row)));
    }
    for (const Detail &own : {
             Detail{"detail-contact", "A contact", "The telephone's own detail.", 3},
             Detail{"detail-hidden", "A caller who hides", kNobody, 16},
             Detail{"detail-address", "An e-mail address", kNobody, 20},
         }) {
        scenes.push_back({own.name, own.title, own.note, opened(own.row), kRecents});
    }
    return scenes;
}

/// Each button in each of the places that it can have in the row.
std::vector<Scene> heldButtons() {
    return {
        before8("detail-press-correct", "A finger on correct", "The left button of three.",
                held(1, "correct")),
        before8("detail-press-mark", "A finger on mark", "The middle button.", held(1, "mark")),
        before8("detail-press-search", "A finger on search", "The right button of three.",
                held(1, "search")),
        before8("detail-press-correct-two", "A finger on correct beside one other",
                "The left button of two.", held(2, "correct")),
        before8("detail-press-mark-two", "A finger on mark beside one other",
                "The left button of two.", held(17, "mark")),
        before8("detail-press-search-two", "A finger on search beside one other",
                "The right button of two.", held(2, "search")),
        before8("detail-press-search-alone", "A finger on search alone", "The only button.",
                held(12, "search")),
    };
}

}  // namespace

SceneGroup recentsScenes() {
    SceneGroup group{"recents", "The recents list", {}};
    for (auto part : {lists, swipes, details, heldButtons}) {
        for (Scene &scene : part()) {
            group.scenes.push_back(std::move(scene));
        }
    }
    return group;
}

}  // namespace stage
