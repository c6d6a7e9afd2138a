// The gallery's scenes of the in-call screen. Numbers are those of the sample world.
#include "stage/Scene.hpp"

namespace stage {
namespace {

using namespace std::chrono_literals;

// The sample world's cloud and downloads take a second and a half at the most.
constexpr auto kLongEnough = 3s;

constexpr Opening kUsual{ScreenKind::InCall, {}};
constexpr Opening kView{ScreenKind::InCall, phone::Display::View};
constexpr Opening kField{ScreenKind::InCall, phone::Display::Field};

Step outgoing(std::string number) { return {Step::Kind::Outgoing, std::move(number)}; }

Step incoming(std::string number) { return {Step::Kind::Incoming, std::move(number)}; }

Step second(std::string number) { return {Step::Kind::Second, std::move(number)}; }

Step wait(std::chrono::milliseconds time) { return {Step::Kind::Wait, {}, 1, time}; }

Step plain(Step::Kind kind) { return {kind}; }

std::vector<Scene> callers() {
    return {
        {"incall-region",
         "An unknown mobile number calls",
         "Nobody marked it: region and operator.",
         {incoming("13800000000")},
         kUsual},
        {"incall-hidden",
         "A caller who hides",
         "No number, nothing to say.",
         {incoming("")},
         kUsual},
        {"incall-marked",
         "A number that many users marked",
         "The label and how many gave it; the part behind the bar is fainter.",
         {incoming("17700000061")},
         kUsual},
        {"incall-single-mark",
         "A number that one user marked",
         "The label alone.",
         {incoming("18900000062")},
         kUsual},
        {"incall-own-mark",
         "A number with the user's own mark",
         "The user's label.",
         {incoming("13100000051")},
         kUsual},
        {"incall-foreign",
         "A number from abroad",
         "Its country and a warning.",
         {incoming("+14155550132")},
         kUsual},
        {"incall-foreign-long",
         "A country with a longer name",
         "Beside the warning there is room for four characters of it.",
         {incoming("+622105500147")},
         kUsual},
        {"incall-brand",
         "A business calls",
         "Its name and its logo.",
         {incoming("4002001818")},
         kUsual},
        {"incall-review",
         "An entry of a review service",
         "The name alone.",
         {incoming("02801880045")},
         kUsual},
    };
}

std::vector<Scene> laterKnowledge() {
    return {
        {"incall-partner",
         "A partner business is dialled",
         "Its logo is still being fetched; a plain one stands in.",
         {outgoing("02101065012")},
         kUsual},
        {"incall-partner-logo",
         "Its logo has arrived",
         "The next layout shows it.",
         {outgoing("02101065012"), plain(Step::Kind::Layout), wait(kLongEnough),
          plain(Step::Kind::Layout)},
         kUsual},
        {"incall-cloud-before",
         "An unmarked number is dialled",
         "The region, while the cloud is being asked.",
         {outgoing("13000000101")},
         kUsual},
        {"incall-cloud-after",
         "The cloud has answered",
         "The next layout shows its label and count.",
         {outgoing("13000000101"), plain(Step::Kind::Layout), wait(kLongEnough),
          plain(Step::Kind::Layout)},
         kUsual},
    };
}

std::vector<Scene> contacts() {
    return {
        {"incall-contact-plain",
         "A contact without a picture",
         "On 7.1 the region stands before the number's label.",
         {incoming("075501238800")},
         kUsual},
        {"incall-contact-timer",
         "The contact is talked to",
         "The region before the running time.",
         {incoming("075501238800"), plain(Step::Kind::Answer), wait(7s)},
         kUsual},
        {"incall-contact-avatar",
         "A contact with a microblog, in a field",
         "The telephone has no picture: 7.0 shows the microblog's, 7.1 the region alone.",
         {incoming("15000000031")},
         kField},
        {"incall-contact-picture",
         "A contact with a picture",
         "The telephone's own small picture.",
         {incoming("13800130011")},
         kUsual},
        {"incall-contact-wallpaper",
         "A contact with a large picture",
         "It fills the screen.",
         {incoming("18958100072")},
         kUsual},
    };
}

std::vector<Scene> severalCalls() {
    const Steps two = {incoming("17700000061"), plain(Step::Kind::Answer), wait(7s),
                       second("13800130011")};
    const auto then = [&](std::initializer_list<Step> more) {
        Steps steps = two;
        steps.insert(steps.end(), more);
        return steps;
    };
    return {
        {"incall-two", "Two calls", "Everything that the add-on shows is gone while there are two.",
         two, kUsual},
        {"incall-two-contact",
         "A contact and another call",
         "What was put before the contact's label is taken out again.",
         {incoming("075501238800"), plain(Step::Kind::Layout), plain(Step::Kind::Answer), wait(7s),
          second("17700000061")},
         kUsual},
        {"incall-swapped", "The other call", "The first one is talked on again.",
         then({plain(Step::Kind::Swap)}), kUsual},
        {"incall-merged", "A conference", "Both calls in one.", then({plain(Step::Kind::Merge)}),
         kUsual},
        {"incall-one-left", "One of two has ended", "The call that is left is described again.",
         then({{Step::Kind::End, {}, 2}, wait(1s)}), kUsual},
        {"incall-ended",
         "The call has ended",
         "The screen just before it closes.",
         {incoming("17700000061"), plain(Step::Kind::Answer), wait(7s), {Step::Kind::End, {}, 1}},
         kUsual},
    };
}

std::vector<Scene> otherDisplays() {
    return {
        {"incall-field-marked",
         "A marked number in a field",
         "The display that 7.1 uses, on 7.0 as well.",
         {incoming("17700000061")},
         kField},
        {"incall-view-brand",
         "A business in a view",
         "The display that 7.0 uses, on later systems as well.",
         {incoming("4002001818")},
         kView},
        {"incall-view-contact",
         "A contact in a view",
         "The display that 7.0 uses, on later systems as well.",
         {incoming("075501238800")},
         kView},
    };
}

}  // namespace

SceneGroup inCallScenes() {
    SceneGroup group{"incall", "The in-call screen", {}};
    for (auto part : {callers, laterKnowledge, contacts, severalCalls, otherDisplays}) {
        for (Scene &scene : part()) {
            group.scenes.push_back(std::move(scene));
        }
    }
    return group;
}

}  // namespace stage
