#include "printing/SaveTextFile.h"

#include "core/Cp1252.h"
#include "core/ProgramError.h"
#include "core/Text.h"
#include "core/WholeFile.h"
#include "printing/ExportText.h"

namespace veyrant {

std::string TextFileBytes(std::string_view exportText) {
    std::string lines;
    lines.reserve(exportText.size());
    for (std::size_t at = 0; at < exportText.size(); ++at) {
        if (exportText.substr(at, CrLf.size()) == CrLf) {
            ++at;
        }
        lines += exportText[at];
    }
    return Cp1252ToUtf8(lines);
}

bool SaveTextFile(WindowLayer& windows, const DateTime& date, std::string_view text) {
    const auto chosen = windows.AskSaveFileName(ExportFileName(date));
    if (!chosen) {
        return false;
    }
    const std::string shown = PathText(*chosen);
    try {
        WriteUserFile(*chosen, TextFileBytes(ExportText(date, text)));
    } catch (const ProgramError& error) {
        MessageBoxRequest box = SaveFileErrorBox(error.Number(), shown);
        box.Text += std::string(CrLf) + std::string(CrLf) +
                    "Your Dialogue is not lost: it stays on the screen. Choose another place, "
                    "or try again once the cause is put right.";
        windows.ShowMessage(box);
        return false;
    }
    windows.ShowMessage({"Dialogue Saved", "Your Dialogue is saved in the file " + shown + ".",
                         MessageIcon::Information, MessageButtons::Ok, 1});
    return true;
}

} // namespace veyrant
