#pragma once

// The user's choices that have no place in the positional Tolmira.ini, whose layout other readers
// rely on. They are kept by key in a file of our own; the reader and writer live in
// PreferencesFile.

#include <string>
#include <utility>
#include <vector>

namespace veyrant {

struct Preferences {
    // Misspelt words are underlined in the boxes the user writes in.
    bool SpellingMarks = true;
    // Keys this build does not know, written back as they stand so that a newer build's choices
    // survive a run of this one.
    std::vector<std::pair<std::string, std::string>> OtherValues;
};

} // namespace veyrant
