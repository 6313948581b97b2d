#pragma once

// One control of a window as its logic sees it, for a window's own set of named colours. Text
// is Windows-1252; caret and selection count characters from 0, as the program's SelStart does;
// geometry is in twips, already scaled.

#include <string>

namespace veyrant {

template <typename Palette>
struct ControlState {
    std::string Text;
    long Caret = 0;
    long SelectionLength = 0;
    bool Visible = true;
    bool Enabled = true;
    bool PressedIn = false;
    bool Underlined = false;
    Palette Ink = Palette::Black;
    Palette Background = Palette::White;
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    double FontSize = 0; // points
    bool FontBold = false;
};

// The flags of a Dump() line: disabled, pressed in, an ink other than black, the background where
// it says what is on show, and the focus.
template <typename Palette>
std::string DumpFlags(const ControlState<Palette>& control, bool showBackground, bool focused) {
    std::string flags;
    if (!control.Enabled) {
        flags += " disabled";
    }
    if (control.PressedIn) {
        flags += " pressed";
    }
    if (control.Ink != Palette::Black) {
        flags += " ink=" + std::string(ColourName(control.Ink));
    }
    if (showBackground) {
        flags += " back=" + std::string(ColourName(control.Background));
    }
    if (focused) {
        flags += " focus";
    }
    return flags;
}

} // namespace veyrant
