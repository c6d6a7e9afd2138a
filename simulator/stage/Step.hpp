// What a person does at the simulated telephone, and what is wanted to be seen of it, in order.
#pragma once

#include <string>
#include <vector>

namespace stage {

struct Step {
    enum class Kind {
        Type,         // press the keys of `text` (a character without a key is put in as if pasted)
        Delete,       // press the delete key `count` times
        Touch,        // tap the add-to-contacts line
        Hold,         // put a finger on it
        Cancel,       // lift the finger elsewhere, so that the touch is cancelled
        SaveContact,  // save a new person called `text` in the sheet that the tap opened
        Picture,      // write the screen to the PNG file `text`
        Tree,         // print the screen's view tree
    };
    Kind kind;
    std::string text{};
    int count = 1;

    bool operator==(const Step &) const = default;
};

using Steps = std::vector<Step>;

}  // namespace stage
