#include "ui/Palette.h"

namespace veyrant {

QColor ColourValue(Colour colour) {
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
    case Colour::ListInUse:
        return {0, 255, 255};
    case Colour::EntryYellow:
    case Colour::ReadingText:
        return {255, 255, 224};
    case Colour::DialogueGrey:
    case Colour::IndexText:
        return {224, 224, 224};
    case Colour::InkWarn:
        return {128, 0, 128};
    case Colour::InkNear:
        return {128, 64, 0};
    case Colour::InkOver:
        return {128, 0, 0};
    case Colour::ListEmpty:
        return {192, 192, 192};
    case Colour::WindowGrey:
        return {190, 190, 196};
    case Colour::PanelGrey:
        return {172, 172, 172};
    case Colour::HoverInk:
        return {0, 0, 192};
    case Colour::HelpInk:
        return {0, 0, 128};
    }
    return {};
}

QString Css(Colour colour) {
    const QColor value = ColourValue(colour);
    return QStringLiteral("rgb(%1, %2, %3)").arg(value.red()).arg(value.green()).arg(value.blue());
}

} // namespace veyrant
