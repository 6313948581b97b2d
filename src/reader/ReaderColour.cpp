#include "reader/ReaderColour.h"

namespace veyrant {

Rgb ColourValue(ReaderColour colour) {
    switch (colour) {
    case ReaderColour::Black:
        return {0, 0, 0};
    case ReaderColour::White:
        return {255, 255, 255};
    case ReaderColour::IndexText:
        return {224, 224, 224};
    case ReaderColour::ReadingText:
        return {255, 255, 224};
    case ReaderColour::ListInUse:
        return {0, 255, 255};
    case ReaderColour::ListEmpty:
        return {192, 192, 192};
    case ReaderColour::HoverInk:
        return {0, 0, 192};
    case ReaderColour::HelpInk:
        return {0, 0, 128};
    case ReaderColour::WindowGrey:
        return {190, 190, 196};
    case ReaderColour::PanelGrey:
        return {172, 172, 172};
    }
    return {};
}

std::string_view ColourName(ReaderColour colour) {
    switch (colour) {
    case ReaderColour::Black:
        return "Black";
    case ReaderColour::White:
        return "White";
    case ReaderColour::IndexText:
        return "IndexText";
    case ReaderColour::ReadingText:
        return "ReadingText";
    case ReaderColour::ListInUse:
        return "ListInUse";
    case ReaderColour::ListEmpty:
        return "ListEmpty";
    case ReaderColour::HoverInk:
        return "HoverInk";
    case ReaderColour::HelpInk:
        return "HelpInk";
    case ReaderColour::WindowGrey:
        return "WindowGrey";
    case ReaderColour::PanelGrey:
        return "PanelGrey";
    }
    return "?";
}

} // namespace veyrant
