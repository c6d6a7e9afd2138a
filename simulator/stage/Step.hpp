// What a person does at the simulated telephone, and what is wanted to be seen of it, in order.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace stage {

struct Step {
    enum class Kind {
        // The keypad.
        Type,         // press the keys of `text` (a character without a key is put in as if pasted)
        Delete,       // press the delete key `count` times
        Touch,        // tap the add-to-contacts line
        Hold,         // put a finger on it
        Cancel,       // lift the finger elsewhere, so that the touch is cancelled
        SaveContact,  // save a new person called `text` in the sheet that the tap opened

        // The in-call screen.
        Outgoing,  // dial the number `text`
        Incoming,  // the number `text` calls; an empty one is a caller's who hides
        Answer,    // the ringing call is answered, or else the one being dialled
        Second,    // the number `text` calls too and is answered
        Swap,      // hold the call that is talked on, talk on the held one
        Merge,     // join both
        End,       // end call number `count`, counted from 1
        Layout,    // have the display laid out again

        // The recents list and a call's detail.
        Scroll,       // until the list begins `points` below its top
        ScrollToRow,  // until row number `count`, counted from 1, is seen
        Swipe,        // drag row `count` to the left by `points`; without them, wholly open
        Release,      // lift the finger
        Edit,         // edit mode `text`: "on" or "off"
        Open,         // show the detail of row `count`
        Back,         // from the detail to the list
        Press,        // press the button `text`: "correct", "mark" or "search"
        HoldButton,   // put a finger on it
        Tab,          // show tab `text`: "away" (the keypad), "favourites", or "back" to the list
        Reload,       // the companion tells that its data has changed

        // Any screen.
        Wait,     // let `time` pass
        Picture,  // write the screen to the PNG file `text`
        Tree,     // print the screen's view tree
    };
    Kind kind;
    std::string text{};
    int count = 1;
    std::chrono::milliseconds time{};  // of the simulation
    std::optional<double> points{};

    bool operator==(const Step &) const = default;
};

using Steps = std::vector<Step>;

}  // namespace stage
