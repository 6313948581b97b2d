// The visible state as text: the caption, then one line per control that shows, with its
// caption or text, its flags and its colours by name. Tests compare these lines.

#include "core/DumpText.h"
#include "reader/Reader.h"

#include <algorithm>

namespace veyrant {

std::string Reader::Dump() const {
    std::string dump = "Title: " + DumpLine(controls_.Title) + "\n";
    for (int index = 0; index < ReaderControlCount; ++index) {
        const auto id = static_cast<ReaderControl>(index);
        const auto& control = controls_[id];
        if (!control.Visible || id == ReaderControl::Window || id == ReaderControl::Panel1) {
            continue;
        }
        dump += std::string(ControlName(id));
        if (id == ReaderControl::List1) {
            const auto& list = controls_.List;
            dump += ": " + std::to_string(list.Rows.size()) + " rows, selected " +
                    std::to_string(list.Selected) + ", top " + std::to_string(list.TopRow) +
                    (control.Height < 3000 * world_.Scale.ScaleFactor ? ", split" : ", expanded");
        } else if (id == ReaderControl::txtSpin) {
            dump += ": " +
                    std::string(control.Top < 3000 * world_.Scale.ScaleFactor ? "high" : "low") +
                    " \"" + DumpLine(control.Text.substr(0, 60)) + "\"";
        } else {
            dump += ": \"" + DumpLine(control.Text) + "\"";
        }
        dump += DumpFlags(control, id == ReaderControl::List1 || id == ReaderControl::txtSpin,
                          id == controls_.Focus);
        dump += "\n";
    }
    // A hit of the search is the text selected in txtSpin.
    const auto& spin = controls_[ReaderControl::txtSpin];
    if (spin.Visible && spin.SelectionLength > 0) {
        dump += "Selection: " + std::to_string(spin.Caret) + "+" +
                std::to_string(spin.SelectionLength) + " \"" +
                DumpLine(spin.Text.substr(
                    static_cast<std::size_t>(std::min<long>(spin.Caret, spin.Text.size())),
                    static_cast<std::size_t>(spin.SelectionLength))) +
                "\"\n";
    }
    return dump;
}

} // namespace veyrant
