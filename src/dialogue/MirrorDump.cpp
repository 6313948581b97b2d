// The visible state as text: one line per control that shows, with its caption or text, its
// flags and its colours by name. Tests compare these lines; people read them when diagnosing.

#include "core/DumpText.h"
#include "dialogue/Mirror.h"

namespace veyrant {

std::string Mirror::Dump() const {
    std::string dump = "Title: " + DumpLine(controls_.Title) + "\n";
    for (int index = 0; index < MirrorControlCount; ++index) {
        const auto id = static_cast<MirrorControl>(index);
        const auto& control = controls_[id];
        if (!control.Visible || id == MirrorControl::Window || id == MirrorControl::Panel1) {
            continue;
        }
        dump += std::string(ControlName(id)) + ": \"" + DumpLine(control.Text) + "\"";
        dump += DumpFlags(control,
                          id == MirrorControl::txtResponse || id == MirrorControl::txtMirror ||
                              id == MirrorControl::txtSaved,
                          id == controls_.Focus);
        dump += "\n";
    }
    return dump;
}

} // namespace veyrant
