// The keypad's steps on the command line.
#include "stage/StepOptions.hpp"

namespace stage {
namespace {

Step type(const GivenOption &given) { return {Step::Kind::Type, given.value}; }

Step erase(const GivenOption &given) { return {Step::Kind::Delete, {}, readNumber(given, 1)}; }

Step touch(const GivenOption &given) {
    return {given.value == "add-contact"        ? Step::Kind::Touch
            : given.value == "add-contact-hold" ? Step::Kind::Hold
                                                : Step::Kind::Cancel};
}

Step saveContact(const GivenOption &given) { return {Step::Kind::SaveContact, given.value}; }

}  // namespace

std::vector<StepOption> dialerSteps() {
    return {
        {{"--type", "TEXT", "press the keys of TEXT; may be repeated, steps run in order"}, &type},
        {{"--delete", "N", "press the delete key N times"}, &erase},
        {{"--touch",
          "WHAT",
          "touch the add-to-contacts line: tap it, hold it, or cancel",
          {"add-contact", "add-contact-hold", "add-contact-cancel"}},
         &touch},
        {{"--save-contact", "NAME", "save the new person after a tap on that line"}, &saveContact},
    };
}

}  // namespace stage
