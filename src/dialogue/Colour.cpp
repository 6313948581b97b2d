#include "dialogue/Colour.h"

namespace veyrant {

Rgb ColourValue(Colour colour) {
    switch (colour) {
    case Colour::Black:
        return {0, 0, 0};
    case Colour::White:
        return {255, 255, 255};
    case Colour::ColourReady:
        return {192, 192, 255};
    case Colour::ColourError:
        return {255, 192, 192};
    case Colour::ColourAdded:
        return {192, 255, 255};
    case Colour::ColourOut:
        return {255, 192, 255};
    case Colour::ColourNotice:
        return {0, 255, 255};
    case Colour::EntryYellow:
        return {255, 255, 224};
    case Colour::PanelGrey:
        return {224, 224, 224};
    case Colour::InkWarn:
        return {128, 0, 128};
    case Colour::InkNear:
        return {128, 64, 0};
    case Colour::InkOver:
        return {128, 0, 0};
    case Colour::HoverInk:
        return {0, 0, 192};
    case Colour::HelpInk:
        return {0, 0, 128};
    }
    return {};
}

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
    case Colour::PanelGrey:
        return "Grey";
    case Colour::InkWarn:
        return "Warn";
    case Colour::InkNear:
        return "Near";
    case Colour::InkOver:
        return "Over";
    case Colour::HoverInk:
        return "Hover";
    case Colour::HelpInk:
        return "Help";
    }
    return "?";
}

} // namespace veyrant
