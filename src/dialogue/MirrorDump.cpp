// The visible state as text: one line per control that shows, with its caption or text, its
// flags and its colours by name. Tests compare these lines; people read them when diagnosing.

#include "core/Cp1252.h"
#include "dialogue/Mirror.h"

namespace veyrant {

namespace {

// Line ends and tabs made visible, so that one control stays on one line.
std::string Printable(const std::string& text) {
    std::string shown;
    for (char c : text) {
        if (c == '\r') {
            continue;
        }
        if (c == '\n') {
            shown += " | ";
        } else if (c == '\t') {
            shown += "\\t";
        } else {
            shown += c;
        }
    }
    return Cp1252ToUtf8(shown);
}

} // namespace

std::string Mirror::Dump() const {
    std::string dump = "Title: " + Printable(controls_.Title) + "\n";
    for (int index = 0; index < MirrorControlCount; ++index) {
        const auto id = static_cast<MirrorControl>(index);
        const auto& control = controls_[id];
        if (!control.Visible || id == MirrorControl::Window || id == MirrorControl::Panel1) {
            continue;
        }
        dump += std::string(ControlName(id)) + ": \"" + Printable(control.Text) + "\"";
        if (!control.Enabled) {
            dump += " disabled";
        }
        if (control.PressedIn) {
            dump += " pressed";
        }
        if (control.Ink != Colour::Black) {
            dump += " ink=" + std::string(ColourName(control.Ink));
        }
        if (id == MirrorControl::txtResponse || id == MirrorControl::txtMirror ||
            id == MirrorControl::txtSaved) {
            dump += " back=" + std::string(ColourName(control.Background));
        }
        if (id == controls_.Focus) {
            dump += " focus";
        }
        dump += "\n";
    }
    return dump;
}

} // namespace veyrant
