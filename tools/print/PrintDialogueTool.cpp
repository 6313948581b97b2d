// Renders a saved Dialogue, its dlg/ and isp/ files, to a PDF through the program's own print
// layout and Qt printer, and says how many pages it made. With --preview it opens the print
// preview instead, and with --file the export editor, as the program's buttons do.
//
//   print-dialogue <folder>/dlg/<name> <out.pdf>
//   print-dialogue <folder>/dlg/<name> --preview | --file

#include "app/FontCheck.h"
#include "core/ProgramError.h"
#include "core/Text.h"
#include "printing/ExportText.h"
#include "printing/PrintTexts.h"
#include "storage/DialogueFile.h"
#include "storage/LibraryFileName.h"
#include "ui/DialoguePrinter.h"
#include "ui/QtWindowLayer.h"

#include <QApplication>
#include <QPrinter>
#include <filesystem>
#include <iostream>

namespace {

using namespace veyrant;

// The Dialogue as the Reader hands it to the printer: the text without its leading blank line,
// dated by its file name.
PrintRequest ReadSavedDialogue(const std::filesystem::path& dialogueFile) {
    const auto name = dialogueFile.filename().string();
    const auto inspirationFile = dialogueFile.parent_path().parent_path() / "isp" / name;
    return {DialogueFile(inspirationFile).Read(), WithoutLead(DialogueFile(dialogueFile).Read()),
            std::string(PrintTexts::WriteWindowTitle),
            FileDateValue(ParseFileName(name).FileDateText)};
}

int Usage() {
    std::cerr << "usage: print-dialogue <folder>/dlg/<name> <out.pdf> | --preview | --file\n";
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        return Usage();
    }
    const std::string target = argv[2];
    // A PDF needs no screen, so the tool runs where there is none.
    if (target.front() != '-' && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication qt(argc, argv);
    PrintRequest request;
    try {
        request = ReadSavedDialogue(argv[1]);
    } catch (const ProgramError& error) {
        std::cerr << "print-dialogue: cannot read " << argv[1] << ": " << error.what() << "\n";
        return 1;
    }
    QtWindowLayer windows;
    const std::string face = InstalledFaceNames(windows).Main;
    windows.SetPrintFace([face] { return face; });

    if (target == "--preview") {
        const auto outcome = windows.PrintDialogue(request);
        return outcome == PrintOutcome::Failed ? 1 : 0;
    }
    if (target == "--file") {
        // As the Write window's full view shows it.
        const std::string blankLine = std::string(CrLf) + std::string(CrLf);
        ExportToEditor(windows, request.ShownDate,
                       "Inspiration" + blankLine + request.Inspiration + blankLine + "Dialogue" +
                           blankLine + request.Dialogue);
        return QApplication::exec();
    }
    QPrinter printer(QPrinter::HighResolution);
    PreparePrinter(printer, request);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(target));
    const auto pages = PrintDialogueOn(printer, request, QString::fromStdString(face));
    if (!pages) {
        std::cerr << "print-dialogue: the printer failed on " << target << "\n";
        return 1;
    }
    std::cout << *pages << (*pages == 1 ? " page\n" : " pages\n");
    return 0;
}
