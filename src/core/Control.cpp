#include "core/Control.h"

namespace veyrant {

std::string DumpFlags(const Control& control, bool showBackground, bool focused) {
    std::string flags;
    if (!control.Enabled) {
        flags += " disabled";
    }
    if (control.PressedIn) {
        flags += " pressed";
    }
    if (control.Ink != Colour::Black) {
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
