#include "core/Colour.h"

namespace veyrant {

std::string_view ColourName(Colour colour) {
    switch (colour) {
    case Colour::Black:
        return "Black";
    case Colour::White:
        return "White";
    case Colour::ColourReady:
        return "Ready";
    case Colour::ColourError:
        return "Error";
    case Colour::ColourAdded:
        return "Added";
    case Colour::ColourOut:
        return "Out";
    case Colour::ColourNotice:
        return "Notice";
    case Colour::EntryYellow:
        return "Yellow";
    case Colour::DialogueGrey:
        return "DialogueGrey";
    case Colour::InkWarn:
        return "Warn";
    case Colour::InkNear:
        return "Near";
    case Colour::InkOver:
        return "Over";
    case Colour::IndexText:
        return "IndexText";
    case Colour::ReadingText:
        return "ReadingText";
    case Colour::ListInUse:
        return "ListInUse";
    case Colour::ListEmpty:
        return "ListEmpty";
    case Colour::WindowGrey:
        return "WindowGrey";
    case Colour::PanelGrey:
        return "PanelGrey";
    case Colour::HoverInk:
        return "HoverInk";
    case Colour::HelpInk:
        return "HelpInk";
    }
    return "?";
}

} // namespace veyrant
