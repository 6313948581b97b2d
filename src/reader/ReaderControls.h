#pragma once

// The controls of the Read window as the logic sees them. A caption is a button's job (cmdSelect
// reads "< Index 1 >", "< Index 2 >", "< Index >" or "Cancel") and the background of txtSpin
// says what is on show: both are read back by the handlers. The Qt window only copies this onto
// its widgets.

#include "core/Control.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace veyrant {

enum class ReaderControl {
    List1,
    txtSpin,
    txtCursor,
    txtNote,
    txtSearch,
    Panel1,
    cmdNext,
    cmdPrior,
    cmdSelect,
    cmdWindow,
    cmdExitM,
    cmdSearch,
    cmdFile,
    cmdPrint,
    cmdDelete,
    Window, // the window's own background
};

inline constexpr int ReaderControlCount = static_cast<int>(ReaderControl::Window) + 1;

std::string_view ControlName(ReaderControl control);
bool IsReaderButton(ReaderControl control);

// List1's rows, counted from 0, with the selected row and the first row in view.
struct ReaderList {
    std::vector<std::string> Rows;
    int Selected = -1;
    int TopRow = 0;
};

struct ReaderControls {
    std::array<Control, ReaderControlCount> Items{};
    ReaderList List;
    std::string Title;
    ReaderControl Focus = ReaderControl::txtCursor;

    Control& operator[](ReaderControl control) { return Items[static_cast<int>(control)]; }
    const Control& operator[](ReaderControl control) const {
        return Items[static_cast<int>(control)];
    }
};

} // namespace veyrant
