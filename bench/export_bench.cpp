// Export Library at its largest: 99 Dialogues of 120 pairs each, the system's limit, read from
// the Library and written as Markdown files with their index, and as one PDF of every Dialogue
// in the print layout. Each run reads the whole Library again.
//
// Target: the Markdown under 0.5 seconds, the PDF under 10 seconds.

#include "app/FontCheck.h"
#include "app/LibraryExport.h"
#include "storage/DialogueFile.h"
#include "storage/FileTransaction.h"
#include "storage/LibraryFileName.h"
#include "support/FakeClock.h"
#include "support/TempFolder.h"
#include "ui/QtLibraryPdf.h"
#include "ui/QtText.h"
#include "ui/QtWindowLayer.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <memory>
#include <string>

namespace veyrant {
namespace {

constexpr int LibraryDialogues = 99;
constexpr int DialoguePairs = 120;

// Entries and responses of a few lines each, as a long Dialogue holds them.
void LayDownLibrary(const AppFolder& folder) {
    std::filesystem::create_directories(folder.Isp());
    std::filesystem::create_directories(folder.Dlg());
    const std::string entry(220, 'e');
    const std::string reply = "Think of what stands behind the question, and of who asks it. ";
    const double latest = DayNumber(testing::FakeClock{}.Date);
    for (int k = 0; k < LibraryDialogues; ++k) {
        const std::string name = MakeFileName(FromDayNumber(latest - k));
        std::string dialogue;
        for (int pair = 0; pair < DialoguePairs; ++pair) {
            dialogue += "\r\n\r\n\t\x93" + entry + " " + std::to_string(pair) + "?\x94\r\n\t" +
                        reply + reply + reply;
        }
        FileTransaction change(folder.Root);
        DialogueFile::SavedInspiration(folder, name)
            .Stage(change, "\tWhat you notice today is worth a line.");
        DialogueFile::SavedDialogue(folder, name).Stage(change, dialogue);
        change.Commit();
    }
}

void ExportLibrary(benchmark::State& state, bool withPdf) {
    static int argc = 1;
    static char name[] = "export_bench";
    static char* argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication qt(argc, argv);
    static QtWindowLayer windows;
    QtLibraryPdf pdf([] { return ToQt(InstalledFaceNames(windows).Main); });
    testing::TempFolder temp;
    const AppFolder library{temp / "library"};
    LayDownLibrary(library);
    int run = 0;
    for (auto _ : state) {
        const auto report = LibraryExport(library).Write(
            temp / std::to_string(++run), withPdf ? &pdf : nullptr, [](int, int) { return true; });
        if (report.DialoguesWritten != LibraryDialogues || !report.NotWritten.empty()) {
            state.SkipWithError("the export did not write the whole Library");
        }
    }
}

void BM_ExportLibraryToMarkdown(benchmark::State& state) {
    ExportLibrary(state, false);
}
BENCHMARK(BM_ExportLibraryToMarkdown)->Iterations(3)->Unit(benchmark::kMillisecond);

void BM_ExportLibraryToMarkdownAndPdf(benchmark::State& state) {
    ExportLibrary(state, true);
}
BENCHMARK(BM_ExportLibraryToMarkdownAndPdf)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace veyrant
