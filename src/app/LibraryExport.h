#pragma once

// Export Library: every saved Dialogue written into a folder of the user's choice as a Markdown
// file named by its date, an index.md of them all and, when asked, one Library.pdf in the print
// layout. The Library is only read. Each file is written whole or not at all; a Dialogue that
// cannot be read, or a file that cannot be written, is named in the report and the rest still go.

#include "core/WindowLayer.h"
#include "shell/AppFolder.h"
#include "storage/SavedDialogues.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace veyrant {

// Draws the Library's pages and gives the PDF's bytes; nothing when drawing failed or goOn
// stopped it. goOn is told how many Dialogues are drawn.
class LibraryPdfMaker {
public:
    virtual ~LibraryPdfMaker() = default;
    virtual std::optional<std::string>
    LibraryPdf(const std::vector<PrintRequest>& dialogues,
               const std::function<bool(std::size_t done)>& goOn) = 0;
};

inline constexpr std::string_view LibraryPdfName = "Library.pdf";

struct ExportFailure {
    std::string What; // a Dialogue's file name in the Library, or a file of the export
    std::string Why;
    int Number = 0; // the program's error number, 0 where there is none
};

struct ExportReport {
    std::filesystem::path Folder;
    std::vector<std::string> Written; // the files written, in order
    int DialoguesWritten = 0;
    std::vector<ExportFailure> NotWritten;
    bool Cancelled = false;
};

enum class ExportOutcome { Written, NothingToExport, Fault };

ExportOutcome OutcomeOf(const ExportReport& report);

// What the user is told at the end: how many Dialogues went where, and what did not and why.
std::string ReportText(const ExportReport& report);

class LibraryExport {
public:
    // Reads every saved Dialogue at once, so that the files to write are known before the first.
    explicit LibraryExport(const AppFolder& library);

    bool Empty() const { return saved_.empty() && unread_.empty(); }
    // The files of the export that already stand in the folder.
    std::vector<std::string> ExistingFiles(const std::filesystem::path& folder, bool withPdf) const;

    // Makes the folder if need be and writes the files, oldest Dialogue first, then the index,
    // then the PDF when a maker is given. goOn is asked before each step, with the steps done
    // and their total; false stops the export there.
    ExportReport Write(const std::filesystem::path& folder, LibraryPdfMaker* pdf,
                       const std::function<bool(int done, int total)>& goOn) const;

private:
    void WriteFiles(ExportReport& report, LibraryPdfMaker* pdf,
                    const std::function<bool(int done, int total)>& goOn) const;

    std::vector<SavedDialogue> saved_;
    std::vector<std::string> fileNames_; // the Markdown file of each saved Dialogue
    std::vector<ExportFailure> unread_;
};

} // namespace veyrant
