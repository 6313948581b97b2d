#pragma once

// The colours the windows' logic sets on its controls. Several carry state (the background of
// the Write window's response box and of the Read window's text box say what is on show, and the
// logic reads them back), so they are kept by name and turned into values only at the screen.
// Each name stands for one value, and a name says what the colour is for where it has one use.

#include <string_view>

namespace veyrant {

enum class Colour {
    Black,
    White,
    // The Write window.
    ColourReady,  // direction, Inspiration, Suggestion or "Processing . . ." on show
    ColourError,  // a ">>" message about the entry
    ColourAdded,  // the result is in the Dialogue
    ColourOut,    // the result is not in the Dialogue
    ColourNotice, // message regarding the conversation
    EntryYellow,  // the entry box while typing, and the full view
    DialogueGrey, // the small view of the Dialogue
    InkWarn,      // something not added, or not long enough
    InkNear,      // the word limit is near
    InkOver,      // over the word limit
    // The Read window.
    IndexText,   // instructions or a Section's text in txtSpin; the list in use otherwise
    ReadingText, // a Topic or a Dialogue in txtSpin
    ListInUse,   // the list is the thing to use
    ListEmpty,   // the Dialogue Library is empty; also txtSearch while search is off
    WindowGrey,  // the window, txtNote and the buttons; the banner's light shade
    PanelGrey,   // Panel1; the banner's dark shade
    // Both windows.
    HoverInk, // the caption of the button the pointer rests on
    HelpInk,  // a help text in txtNote
};

// The name a Dump() line gives the colour.
std::string_view ColourName(Colour colour);

} // namespace veyrant
