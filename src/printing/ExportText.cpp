#include "printing/ExportText.h"

#include "core/DateFormat.h"
#include "core/Text.h"
#include "printing/PrintTexts.h"

namespace veyrant {

std::string ExportText(const DateTime& date, std::string_view text) {
    const std::string lineEnd(CrLf);
    return "Veyrant Sagrel" + lineEnd + FormatDate(date, "dddd, h:nn AM/PM, mmmm d, yyyy") +
           lineEnd + lineEnd + lineEnd + std::string(text) + lineEnd + lineEnd + lineEnd +
           std::string(PrintTexts::TitleLine) + lineEnd + "\"" +
           std::string(PrintTexts::ExportedMotto) + "\"" + lineEnd +
           std::string(PrintTexts::MakerLine) + lineEnd;
}

std::string ExportFileName(const DateTime& date) {
    return "Dialogue " + FormatDate(date, "yyyy-mm-dd h.nn AM/PM") + ".txt";
}

MessageBoxRequest SaveFileErrorBox(int errorNumber, std::string_view fileName) {
    MessageBoxRequest box;
    box.Title = "Save File Error";
    box.Text = "Error " + std::to_string(errorNumber) + " encountered attempting to save " +
               std::string(fileName) + ".";
    box.Icon = MessageIcon::Warning;
    return box;
}

void ExportToEditor(WindowLayer& windows, const DateTime& date, std::string_view text) {
    windows.ShowInEditor(ExportText(date, text), ExportFileName(date));
}

} // namespace veyrant
