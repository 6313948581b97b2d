#include "dialogue/Mirror.h"
#include "shell/Application.h"

namespace veyrant {

// The Library Options window needs the Write window out of the way, and every way out of it ends
// the program, so a running Dialogue goes into the work buffers first.
void Mirror::OpenLibraryOptions() {
    if (state_.ReadLibrary != 0) {
        Message("Veyrant Sagrel Help", "You must first close the Read window before you "
                                       "right-click to open the Library Options window.");
        return;
    }
    app_.ClosingState = ClosingStates::UtilitiesUp;
    C(MirrorControl::txtMirror).Enabled = false;
    if (state_.ActiveMethod != 0 && !state_.DialogueText.empty()) {
        buffers_.WriteWorkBuffers(Record());
    }
    Paint();
    app_.Windows.HideWindow(WindowId::Mirror);
    app_.Windows.ShowWindow(WindowId::Options);
}

} // namespace veyrant
