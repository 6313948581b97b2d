#include "dialogue/MirrorControls.h"

namespace veyrant {

std::string_view ControlName(MirrorControl control) {
    static constexpr std::array<std::string_view, MirrorControlCount> Names{
        "txtMirror", "txtResponse", "txtAnalyze", "txtSaved",  "txtNote", "lblRem",      "lblRemS",
        "Panel1",    "cmdConverse", "cmdSuppose", "cmdNotate", "cmdKnow", "cmdRetrieve", "cmdHelp",
        "cmdClear",  "cmdRemove",   "cmdDisplay", "cmdPrint",  "cmdSave", "cmdNew",      "Window"};
    return Names[static_cast<int>(control)];
}

} // namespace veyrant
