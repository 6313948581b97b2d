#pragma once

// One control of a window as its logic sees it. Text is Windows-1252; caret and selection count
// characters from 0, as the program's SelStart does; geometry is in twips, already scaled.

#include "core/Colour.h"

#include <string>

namespace veyrant {

struct Control {
    std::string Text;
    long Caret = 0;
    long SelectionLength = 0;
    bool Visible = true;
    bool Enabled = true;
    bool PressedIn = false;
    bool Underlined = false;
    Colour Ink = Colour::Black;
    Colour Background = Colour::White;
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    double FontSize = 0; // points
    bool FontBold = false;
};

// The flags of a Dump() line: disabled, pressed in, an ink other than black, the background where
// it says what is on show, and the focus.
std::string DumpFlags(const Control& control, bool showBackground, bool focused);

} // namespace veyrant
