// The Finished Dialogue's print and file buttons.

#include "core/Text.h"
#include "dialogue/Mirror.h"
#include "printing/ExportText.h"
#include "printing/PrintDialogue.h"
#include "printing/PrintTexts.h"
#include "storage/DialogueFile.h"

namespace veyrant {

void Mirror::PrintFinishedDialogue() {
    // Disabled while the print dialog is up, so that a second click cannot start another.
    C(MirrorControl::cmdPrint).Enabled = false;
    world_.Windows.SetBusyPointer(true);
    Yield();
    PrintDialogue(world_.Windows, world_.Clock.Now(), state_.InspirationText,
                  WithoutLead(state_.DialogueText), std::string(PrintTexts::WriteWindowTitle));
    world_.Windows.SetBusyPointer(false);
    C(MirrorControl::cmdPrint).Enabled = true;
}

void Mirror::FileFinishedDialogue() {
    ExportToEditor(world_.Windows, world_.Clock.Now(), C(MirrorControl::txtSaved).Text);
}

} // namespace veyrant
