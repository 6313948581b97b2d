#include "app/ExportLibrary.h"

#include "core/Cp1252.h"
#include "core/DateFormat.h"
#include "core/Text.h"

#include <algorithm>
#include <utility>

namespace veyrant {

std::string ExportFolderName(const DateTime& today) {
    return "Veyrant Sagrel Library " + FormatDate(today, "yyyy-mm-dd");
}

ExportLibrary::ExportLibrary(const AppFolder& library, const Settings& settings, const Clock& clock,
                             WindowLayer& windows, LibraryPdfMaker& pdf,
                             std::function<void()> exitProgram)
    : library_(library), settings_(settings), clock_(clock), windows_(windows), pdf_(pdf),
      exitProgram_(std::move(exitProgram)) {}

MessageAnswer ExportLibrary::Ask(const std::string& text, MessageButtons buttons) {
    const MessageIcon icon =
        buttons == MessageButtons::Ok ? MessageIcon::Information : MessageIcon::Question;
    return windows_.ShowMessage({controls_.Title, text, icon, buttons, 1});
}

void ExportLibrary::Form_Activate() {
    if (running_) {
        return;
    }
    if (settings_.GuestMode == 1) {
        Ask("The Library is in the Guest Mode. No Dialogues are saved, so there is nothing to "
            "export.",
            MessageButtons::Ok);
        Form_Close();
        return;
    }
    Run();
}

void ExportLibrary::Run() {
    const LibraryExport exporting(library_);
    if (exporting.Empty()) {
        Finish({});
        return;
    }
    const std::string folderName = ExportFolderName(clock_.Now());
    const auto place =
        windows_.AskFolder("Export Library: where the folder \"" + folderName + "\" is to be made");
    if (!place) {
        BackToUtilities();
        return;
    }
    const auto withPdf = Ask("Export Library writes each Dialogue as a text file in Markdown, "
                             "with an index of them all. Add one PDF of every Dialogue in its "
                             "printed pages, Library.pdf, as well?",
                             MessageButtons::YesNoCancel);
    if (withPdf == MessageAnswer::Cancel) {
        BackToUtilities();
        return;
    }
    const auto folder = *place / folderName;
    const bool addPdf = withPdf == MessageAnswer::Yes;
    const auto existing = exporting.ExistingFiles(folder, addPdf);
    if (!existing.empty()) {
        // A box of a hundred names would stand taller than the screen.
        constexpr std::size_t ShownNames = 10;
        std::string names;
        for (std::size_t i = 0; i < std::min(existing.size(), ShownNames); ++i) {
            names += std::string(CrLf) + PathText(existing[i]);
        }
        if (existing.size() > ShownNames) {
            names +=
                std::string(CrLf) + "and " + std::to_string(existing.size() - ShownNames) + " more";
        }
        if (Ask("These files already stand in " + PathText(folder) + ":" + names +
                    std::string(CrLf) + std::string(CrLf) + "Replace them?",
                MessageButtons::YesNo) != MessageAnswer::Yes) {
            BackToUtilities();
            return;
        }
    }
    running_ = true;
    controls_.cmdCancelEnabled = true;
    const auto report =
        exporting.Write(folder, addPdf ? &pdf_ : nullptr,
                        [this](int done, int total) { return Progress(done, total); });
    running_ = false;
    controls_.cmdCancelEnabled = false;
    Finish(report);
}

bool ExportLibrary::Progress(int done, int total) {
    controls_.prgExport = done;
    controls_.prgExportMax = total;
    controls_.lblStatus = "Exporting the Library: step " + std::to_string(done + 1) + " of " +
                          std::to_string(total) + ".";
    Changed();
    windows_.Yield();
    return !cancelled_;
}

void ExportLibrary::Finish(const ExportReport& report) {
    controls_.lblStatus = "The export has ended.";
    Changed();
    const std::string text = ReportText(report);
    if (report.Written.empty()) {
        Ask(text, MessageButtons::Ok);
    } else if (Ask(text + std::string(CrLf) + std::string(CrLf) +
                       "Open the folder in the file manager?",
                   MessageButtons::YesNo) == MessageAnswer::Yes) {
        windows_.OpenFolder(report.Folder);
    }
    Form_Close();
}

void ExportLibrary::BackToUtilities() {
    windows_.HideWindow(WindowId::Export);
    windows_.ShowWindow(WindowId::Utility);
}

void ExportLibrary::cmdCancel_Click() {
    cancelled_ = true;
    controls_.cmdCancelEnabled = false;
    controls_.lblStatus = "Cancelling: the file being written is finished first.";
    Changed();
}

void ExportLibrary::Form_Close() {
    if (running_) {
        cmdCancel_Click();
        return;
    }
    windows_.HideWindow(WindowId::Export);
    exitProgram_();
}

std::string ExportLibrary::Dump() const {
    return "title \"" + controls_.Title + "\"\nlblStatus \"" + controls_.lblStatus +
           "\"\nprgExport " + std::to_string(controls_.prgExport) + "/" +
           std::to_string(controls_.prgExportMax) + "\ncmdCancel \"" + controls_.cmdCancelCaption +
           "\"" + (controls_.cmdCancelEnabled ? "" : " disabled") + "\n";
}

} // namespace veyrant
