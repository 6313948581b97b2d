#pragma once

// The colours of the Read window. The text box's background says what is on show (an index or
// a Topic to read) and the logic reads it back, so colours are kept by name and turned into
// values only at the screen.

#include "core/Rgb.h"

#include <string_view>

namespace veyrant {

enum class ReaderColour {
    Black,
    White,
    IndexText,   // instructions or a Section's text in txtSpin; the list in use otherwise
    ReadingText, // a Topic or a Dialogue in txtSpin
    ListInUse,   // the list is the thing to use
    ListEmpty,   // the Dialogue Library is empty; also txtSearch while search is off
    HoverInk,    // the caption of the button the pointer rests on
    HelpInk,     // a hover text in txtNote
    WindowGrey,  // the window, txtNote and the buttons
    PanelGrey,   // Panel1
};

Rgb ColourValue(ReaderColour colour);
std::string_view ColourName(ReaderColour colour);

} // namespace veyrant
