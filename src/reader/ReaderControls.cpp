#include "reader/ReaderControls.h"

namespace veyrant {

std::string_view ControlName(ReaderControl control) {
    static constexpr std::array<std::string_view, ReaderControlCount> Names{
        "List1",   "txtSpin",  "txtCursor", "txtNote",   "txtSearch", "Panel1",
        "cmdNext", "cmdPrior", "cmdSelect", "cmdWindow", "cmdExitM",  "cmdSearch",
        "cmdFile", "cmdPrint", "cmdDelete", "Window"};
    return Names[static_cast<int>(control)];
}

bool IsReaderButton(ReaderControl control) {
    return control >= ReaderControl::cmdNext && control <= ReaderControl::cmdDelete;
}

} // namespace veyrant
