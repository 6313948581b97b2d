#include "printing/PrintDialogue.h"

namespace veyrant {

MessageBoxRequest PrintErrorBox() {
    MessageBoxRequest box;
    box.Title = "Print Error";
    box.Text =
        "The system has detected a printing error.\r\n\r\nIf your printer normally functions "
        "properly with a word processer, you may have assigned 'Print' to a non-printing "
        "device (such as a Fax/Modem, Print-to-File, etc.). Check the printer setup.";
    box.Icon = MessageIcon::Warning;
    return box;
}

void PrintDialogue(WindowLayer& windows, const DateTime& shownDate, const std::string& inspiration,
                   const std::string& dialogue, const std::string& title) {
    if (windows.PrintDialogue({inspiration, dialogue, title, shownDate}) != PrintOutcome::Failed) {
        return;
    }
    windows.ShowMessage(PrintErrorBox());
}

} // namespace veyrant
