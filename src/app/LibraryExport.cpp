#include "app/LibraryExport.h"

#include "core/Cp1252.h"
#include "core/FileOperations.h"
#include "core/ProgramError.h"
#include "core/Text.h"
#include "core/WholeFile.h"
#include "printing/LibraryMarkdown.h"
#include "printing/PrintTexts.h"
#include "storage/DialogueFile.h"

#include <system_error>
#include <utility>

namespace veyrant {

namespace {

std::string ReadFailure(int number) {
    switch (number) {
    case ErrorNumber::FileNotFound:
        return "one of its two files is missing from the Library";
    case ErrorNumber::TypeMismatch:
        return "its file name is not a date";
    case ErrorNumber::OutOfMemory:
        return "one of its files is too large to be a Dialogue";
    default:
        return "one of its files cannot be read";
    }
}

std::string WriteFailure(int number) {
    switch (number) {
    case ErrorNumber::DiskFull:
        return "the disk is full";
    case ErrorNumber::PermissionDenied:
        return "the program is not allowed to write there";
    case ErrorNumber::PathNotFound:
        return "the folder cannot be found";
    default:
        return "it cannot be written";
    }
}

std::string Plural(std::size_t count, const std::string& one) {
    return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

} // namespace

ExportOutcome OutcomeOf(const ExportReport& report) {
    if (!report.NotWritten.empty() || report.Cancelled) {
        return ExportOutcome::Fault;
    }
    return report.Written.empty() ? ExportOutcome::NothingToExport : ExportOutcome::Written;
}

std::string ReportText(const ExportReport& report) {
    const std::string lineEnd(CrLf);
    if (OutcomeOf(report) == ExportOutcome::NothingToExport) {
        return "There are no Dialogues saved in the Library, so there is nothing to export.";
    }
    std::string text = Plural(static_cast<std::size_t>(report.DialoguesWritten), "Dialogue") +
                       " written to " + PathText(report.Folder) + ".";
    if (report.Cancelled) {
        text += " The export was cancelled before it was finished.";
    }
    if (!report.NotWritten.empty()) {
        text += lineEnd + lineEnd + "Not written:";
        for (const auto& failure : report.NotWritten) {
            const std::string error =
                failure.Number == 0 ? "" : "Error " + std::to_string(failure.Number) + ", ";
            text += lineEnd + failure.What + ": " + error + failure.Why + ".";
        }
    }
    return text + lineEnd + lineEnd + "The exported files are not encrypted.";
}

LibraryExport::LibraryExport(const AppFolder& library) {
    std::vector<std::string> names;
    try {
        names = RankByDate(ListedDialogueNames(library.Isp()));
    } catch (const ProgramError& error) {
        unread_.push_back({PathText(library.Isp()), ReadFailure(error.Number()), error.Number()});
    }
    for (const auto& name : names) {
        try {
            saved_.push_back(ReadSavedDialogue(library, name));
        } catch (const ProgramError& error) {
            unread_.push_back({name, ReadFailure(error.Number()), error.Number()});
        }
    }
    std::vector<DateTime> dates;
    for (const auto& saved : saved_) {
        dates.push_back(saved.Date);
    }
    fileNames_ = MarkdownFileNames(dates);
}

std::vector<std::string> LibraryExport::ExistingFiles(const std::filesystem::path& folder,
                                                      bool withPdf) const {
    std::vector<std::string> names = fileNames_;
    if (!saved_.empty()) {
        names.emplace_back(IndexFileName);
        if (withPdf) {
            names.emplace_back(LibraryPdfName);
        }
    }
    std::vector<std::string> existing;
    for (const auto& name : names) {
        std::error_code unreadable;
        if (std::filesystem::exists(folder / name, unreadable)) {
            existing.push_back(name);
        }
    }
    return existing;
}

namespace {

bool WriteFile(ExportReport& report, const std::string& name, const std::string& bytes) {
    try {
        PlaceUserFile(report.Folder / name, bytes);
        report.Written.push_back(name);
        return true;
    } catch (const ProgramError& error) {
        report.NotWritten.push_back({name, WriteFailure(error.Number()), error.Number()});
        return false;
    }
}

} // namespace

ExportReport LibraryExport::Write(const std::filesystem::path& folder, LibraryPdfMaker* pdf,
                                  const std::function<bool(int done, int total)>& goOn) const {
    ExportReport report;
    report.Folder = folder;
    report.NotWritten = unread_;
    if (saved_.empty()) {
        return report;
    }
    try {
        MakeFolder(folder);
        // An export that was killed mid-file left it staged; this one writes it anew.
        RemoveStagedFiles(folder);
    } catch (const ProgramError& error) {
        report.NotWritten.push_back(
            {PathText(folder), WriteFailure(error.Number()), error.Number()});
        return report;
    }
    WriteFiles(report, pdf, goOn);
    try {
        SyncFolder(folder);
    } catch (const ProgramError& error) {
        report.NotWritten.push_back(
            {PathText(folder), "the disk did not confirm the names of the files (error " +
                                   std::to_string(error.Number()) + ")"});
    }
    return report;
}

void LibraryExport::WriteFiles(ExportReport& report, LibraryPdfMaker* pdf,
                               const std::function<bool(int done, int total)>& goOn) const {
    const bool drawPdf = pdf != nullptr;
    const int dialogues = static_cast<int>(saved_.size());
    // The PDF counts as much as all the Markdown: its pages take far longer.
    const int total = dialogues + 1 + (drawPdf ? dialogues : 0);
    std::vector<IndexEntry> index;
    for (int done = 0; done < dialogues; ++done) {
        if (!goOn(done, total)) {
            report.Cancelled = true;
            return;
        }
        const auto& saved = saved_[static_cast<std::size_t>(done)];
        const auto& name = fileNames_[static_cast<std::size_t>(done)];
        if (WriteFile(report, name,
                      DialogueMarkdown(saved.Date, saved.Inspiration, saved.Dialogue))) {
            ++report.DialoguesWritten;
            index.push_back({saved.Date, name, saved.Inspiration});
        }
    }
    if (!goOn(dialogues, total)) {
        report.Cancelled = true;
        return;
    }
    // An index that left out a Dialogue would mislead; it waits for an export that writes them all.
    if (index.size() == saved_.size()) {
        WriteFile(report, std::string(IndexFileName), IndexMarkdown(index));
    } else {
        report.NotWritten.push_back(
            {std::string(IndexFileName), "not every Dialogue it lists could be written"});
    }
    if (!drawPdf) {
        return;
    }
    std::vector<PrintRequest> pages;
    for (const auto& saved : saved_) {
        pages.push_back({saved.Inspiration, WithoutLead(saved.Dialogue),
                         std::string(PrintTexts::WriteWindowTitle), saved.Date});
    }
    bool stopped = false;
    const auto bytes = pdf->LibraryPdf(pages, [&](std::size_t drawn) {
        stopped = !goOn(dialogues + 1 + static_cast<int>(drawn), total);
        return !stopped;
    });
    if (stopped) {
        report.Cancelled = true;
    } else if (!bytes) {
        report.NotWritten.push_back({std::string(LibraryPdfName), "the pages could not be drawn"});
    } else {
        WriteFile(report, std::string(LibraryPdfName), *bytes);
    }
}

} // namespace veyrant
