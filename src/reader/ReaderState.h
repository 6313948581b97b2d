#pragma once

// The state of one opening of the Read window, named as the program names it. It is made afresh
// at each load; what outlives the window is in ReaderValues.

#include "core/Colour.h"
#include "core/DateTime.h"
#include "reader/ReaderControls.h"
#include "shell/LibraryId.h"

#include <cstdint>
#include <string>
#include <vector>

namespace veyrant {

// What the index list of a fixed library shows: its sections, or every row of it.
enum class IndexView {
    Sections,
    EveryRow,
};

struct ReaderState {
    std::int16_t ListPos = -1;
    bool SearchActive = false;
    bool DialogueIndexShown = false;
    IndexView IndexMode = IndexView::Sections;
    LibraryId ReopenLibrary = LibraryId::None; // whose list a reset of the index reopens
    std::string DisplayText;
    std::string DialogueBody;
    std::string InspirationBody;
    DateTime DialogueDate{};
    std::int16_t DialogueAge = 0;
    std::string NoteText;
    Colour NoteColor = Colour::Black;
    std::string KeyHint;
    // The listed text of each saved Dialogue, 1 to LibraryCount, cut to the list's width.
    std::vector<std::string> LibraryListText;
    // List position from 1 to the Dialogue's index in the Library's tables, latest first.
    std::vector<int> LibraryListOrder;

    bool SpinRightClick = false;

    // The search. SearchText is always what stands in txtSearch, blanks included.
    std::string SearchText;
    long HitCount = 0;
    // From 1, the last hit's place in DisplayText; 0 before the first hit of a row.
    long HitPos = 0;
    // The row, or list position from 0, at which the walk stands.
    std::int16_t SearchRow = 0;
    // The list position loaded for the walk, plus one, so steps inside one Dialogue read nothing.
    std::int16_t SearchLoaded = 0;
    // The last hit's selection in txtSpin, from 0, restored after a layout change.
    long HitStart = 0;
    long HitLength = 0;
};

} // namespace veyrant
