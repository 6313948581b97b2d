#include "dialogue/Mirror.h"
#include "dialogue/MirrorWorld.h"

namespace veyrant {

// The Utilities and Library Options windows need the Write window out of the way, and every way
// out of them ends the program, so a running Dialogue goes into the work buffers first; when
// they cannot be written the window stays, with the Dialogue on it.
void Mirror::OpenWindowBehindWrite(WindowId window, const std::string& windowName) {
    if (state_.ReadLibrary != LibraryId::None) {
        Message("Veyrant Sagrel Help", "You must first close the Read window before you "
                                       "right-click to open the " +
                                           windowName + " window.");
        return;
    }
    if (!KeepBeforeLeaving()) {
        return;
    }
    world_.ClosingState = ClosingStates::UtilitiesUp;
    C(MirrorControl::txtMirror).Enabled = false;
    Paint();
    world_.Windows.HideWindow(WindowId::Mirror);
    world_.Windows.ShowWindow(window);
}

} // namespace veyrant
