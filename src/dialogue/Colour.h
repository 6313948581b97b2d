#pragma once

// The colours and inks of the Write window. Several of them carry state (the background of
// txtResponse says what is on show, and the logic reads it back), so they are kept by name and
// turned into values only at the screen.

#include "core/Rgb.h"

#include <string_view>

namespace veyrant {

enum class Colour {
    Black,
    White,
    ColourReady,  // direction, Inspiration, Suggestion or "Processing . . ." on show
    ColourError,  // a ">>" message about the entry
    ColourAdded,  // the result is in the Dialogue
    ColourOut,    // the result is not in the Dialogue
    ColourNotice, // message regarding the conversation
    EntryYellow,  // the entry box while typing, and the full view
    PanelGrey,    // the small view of the Dialogue
    InkWarn,      // something not added, or not long enough
    InkNear,      // the word limit is near
    InkOver,      // over the word limit
    HoverInk,     // the caption of the button the mouse rests on
    HelpInk,      // a help text in txtNote
};

Rgb ColourValue(Colour colour);
std::string_view ColourName(Colour colour);

} // namespace veyrant
