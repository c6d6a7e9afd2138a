// The gallery's scenes of the keypad. Numbers are those of the sample world.
#include "stage/Scene.hpp"

namespace stage {
namespace {

Step type(std::string text) { return {Step::Kind::Type, std::move(text)}; }

}  // namespace

SceneGroup dialerScenes() {
    return {"dialer",
            "The keypad",
            {
                {"dialer-empty", "Nothing typed", "The keypad as it opens.", {}},
                {"dialer-two-digits",
                 "Two digits",
                 "Too short to be looked up: the telephone's own line stays.",
                 {type("13")}},
                {"dialer-prefix",
                 "A number half typed",
                 "Seven digits of a mobile number are enough for its region.",
                 {type("1380000")}},
                {"dialer-region",
                 "An unknown mobile number",
                 "Nobody marked it: region and operator.",
                 {type("13800000000")}},
                {"dialer-landline",
                 "An unknown landline number",
                 "The region alone.",
                 {type("02000000000")}},
                {"dialer-marked",
                 "A number that many users marked",
                 "The label that they gave it.",
                 {type("17700000061")}},
                {"dialer-own-mark",
                 "A number with the user's own mark",
                 "The user's label.",
                 {type("13100000051")}},
                {"dialer-brand", "A business", "The name it is known under.", {type("4002001818")}},
                {"dialer-partner", "A partner business", "Its label.", {type("02101065012")}},
                {"dialer-review",
                 "An entry of a review service",
                 "The name alone.",
                 {type("02801880045")}},
                {"dialer-long",
                 "A label wider than its place",
                 "The text is cut off at 165 points; the row stays centred.",
                 {type("075501238001")}},
                {"dialer-foreign", "A number from abroad", "Its country.", {type("+442079460123")}},
                {"dialer-contact",
                 "A contact's number",
                 "The telephone shows the name; the add-on keeps quiet.",
                 {type("13800130011")}},
                {"dialer-unknown",
                 "Nothing is known",
                 "The telephone's own line stays.",
                 {type("66668888")}},
                {"dialer-deleted",
                 "Deleted back to two digits",
                 "The telephone's own line comes back.",
                 {type("17700000061"), {Step::Kind::Delete, {}, 9}}},
                {"dialer-touched",
                 "A finger on the line",
                 "The add-to-contacts text darkens.",
                 {type("17700000061"), {Step::Kind::Hold}}},
            }};
}

}  // namespace stage
