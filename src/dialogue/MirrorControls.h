#pragma once

// The controls of the Write window as the logic sees them. Captions, colours and flags are the
// window's state: click handlers branch on a caption, and the background of txtResponse says
// what is on show. The Qt window only copies this onto its widgets.

#include "core/Control.h"

#include <array>
#include <string>
#include <string_view>

namespace veyrant {

enum class MirrorControl {
    txtMirror,
    txtResponse,
    txtAnalyze,
    txtSaved,
    txtNote,
    lblRem,
    lblRemS,
    Panel1,
    cmdConverse,
    cmdSuppose,
    cmdNotate,
    cmdKnow,
    cmdRetrieve,
    cmdHelp,
    cmdClear,
    cmdRemove,
    cmdDisplay,
    cmdPrint,
    cmdSave,
    cmdNew,
    Window, // the window's own background
};

inline constexpr int MirrorControlCount = static_cast<int>(MirrorControl::Window) + 1;

std::string_view ControlName(MirrorControl control);

struct MirrorControls {
    std::array<Control, MirrorControlCount> Items{};
    std::string Title;
    MirrorControl Focus = MirrorControl::txtMirror;

    Control& operator[](MirrorControl control) { return Items[static_cast<int>(control)]; }
    const Control& operator[](MirrorControl control) const {
        return Items[static_cast<int>(control)];
    }
};

} // namespace veyrant
