#include "app/ExportCommand.h"

#include "app/SettingsFiles.h"
#include "core/Cp1252.h"
#include "printing/SaveTextFile.h"
#include "storage/LibraryLock.h"

#include <algorithm>

namespace veyrant {

namespace {

constexpr int ExitWritten = 0;
constexpr int ExitNothing = 1;
constexpr int ExitFault = 2;

// A line of the report as this system's terminal shows it.
std::string Terminal(const std::string& text) {
    return TextFileBytes(text) + "\n";
}

} // namespace

bool WantsPdf(const std::vector<std::string>& arguments) {
    return std::find(arguments.begin(), arguments.end(), PdfOption) != arguments.end();
}

int ExportLibraryCommand(const std::vector<std::string>& arguments, const AppFolder& library,
                         LibraryPdfMaker& pdf, std::ostream& out) {
    const bool withPdf = arguments.size() == 3 && arguments[2] == PdfOption;
    if ((arguments.size() != 2 && !withPdf) || arguments[0] != ExportLibraryOption) {
        out << "usage: veyrant-sagrel --export-library FOLDER [--pdf]\n";
        return ExitFault;
    }
    if (InGuestMode(library)) {
        out << "The Library is in the Guest Mode. No Dialogues are saved, so there is nothing "
               "to export.\n";
        return ExitNothing;
    }
    // The command asks for no passphrase: a terminal is no place to type one unseen.
    if (LibraryIsLocked(library) && !library.Key) {
        out << "The Library is locked with a passphrase. Export it from the program's Utilities "
               "window once you have opened the Library.\n";
        return ExitFault;
    }
    const LibraryExport exporting(library);
    if (exporting.Empty()) {
        out << Terminal(ReportText({}));
        return ExitNothing;
    }
    const auto existing = exporting.ExistingFiles(arguments[1], withPdf);
    if (!existing.empty()) {
        out << "Nothing written: these files already stand in " << arguments[1]
            << " and are not replaced:\n";
        for (const auto& name : existing) {
            out << name << "\n";
        }
        return ExitFault;
    }
    const auto report =
        exporting.Write(arguments[1], withPdf ? &pdf : nullptr, [](int, int) { return true; });
    for (const auto& name : report.Written) {
        out << Terminal(PathText(report.Folder / name));
    }
    out << Terminal(ReportText(report));
    switch (OutcomeOf(report)) {
    case ExportOutcome::Written:
        return ExitWritten;
    case ExportOutcome::NothingToExport:
        return ExitNothing;
    case ExportOutcome::Fault:
        break;
    }
    return ExitFault;
}

} // namespace veyrant
