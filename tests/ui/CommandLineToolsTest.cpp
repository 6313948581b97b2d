// The program's tools as a script runs them, with no display: --export-library with --pdf, and
// the developer's print-dialogue; what they print is read back with pdftotext.

#include "storage/LibraryFileName.h"
#include "support/FakeClock.h"
#include "support/TempFolder.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>
#include <fstream>

namespace veyrant {

namespace {

void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

// A saved Dialogue whose entries are numbered from first on.
void SaveDialogue(const std::filesystem::path& library, const std::string& name, int first,
                  int count, const std::string& inspiration) {
    std::string dialogue;
    for (int entry = first; entry < first + count; ++entry) {
        dialogue += "\r\n\r\n\t\x93"
                    "Entry number " +
                    std::to_string(entry) + " of the Dialogue.\x94\r\n\tA short reply.";
    }
    WriteFile(library / "dlg" / name, dialogue);
    WriteFile(library / "isp" / name, inspiration);
}

QString Run(const QString& program, const QStringList& arguments,
            const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0) {
        return QStringLiteral("failed: ") + program + QStringLiteral(" ") +
               QString::fromUtf8(process.readAllStandardError());
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString PdfText(const QString& pdf, int page = 0) {
    QStringList arguments = {pdf, QStringLiteral("-")};
    if (page > 0) {
        arguments = QStringList{QStringLiteral("-f"), QString::number(page), QStringLiteral("-l"),
                                QString::number(page)} +
                    arguments;
    }
    return Run(QStringLiteral("pdftotext"), arguments);
}

} // namespace

class CommandLineToolsTest : public QObject {
    Q_OBJECT

private slots:
    // One PDF in which every entry of every Dialogue stands once, in date order, each Dialogue
    // from a new page, and the program's folder as it was.
    void ExportLibraryPutsEveryEntryOnceInOrder() {
        testing::TempFolder folder;
        const auto library = folder / "veyrant-sagrel";
        // Two Dialogues of four pages and of one, saved out of date order.
        SaveDialogue(library, "76112309.150", 100, 40, "\tAn Inspiration.");
        SaveDialogue(library, "76112212.000", 1, 3, "\tAn Inspiration.");
        const auto out = QString::fromStdString((folder / "out").string());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), QString::fromStdString(folder.Path()));
        for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            environment.remove(QString::fromLatin1(display));
        }
        const QString said =
            Run(QStringLiteral(VEYRANT_SAGREL),
                {QStringLiteral("--export-library"), out, QStringLiteral("--pdf")}, environment);
        QVERIFY2(said.endsWith(QStringLiteral("/Library.pdf\n2 Dialogues written to ") + out +
                               QStringLiteral(".\n\nThe exported files are not encrypted.\n")),
                 qPrintable(said));
        QVERIFY(!std::filesystem::is_empty(library / "isp"));
        QVERIFY(!std::filesystem::exists(library / "exe"));

        const QString text = PdfText(out + QStringLiteral("/Library.pdf"));
        const QStringList pages = text.split(QChar('\f'));
        // One page for the first Dialogue, four for the second, and the empty end.
        QCOMPARE(pages.size(), 6);
        QVERIFY(pages[1].contains(QStringLiteral("Inspiration")));
        qsizetype at = 0;
        for (int entry : {1, 2, 3, 100, 101, 139}) {
            const QString quoted = QStringLiteral("“Entry number %1 of the Dialogue.”").arg(entry);
            QCOMPARE(text.count(quoted), 1);
            const qsizetype found = text.indexOf(quoted);
            QVERIFY2(found > at, qPrintable(quoted));
            at = found;
        }
    }

    // One line of Inspiration and 89 of Dialogue, three to an entry less the leading blank
    // line: 26 on the first page, 32 on the second, the rest on the third.
    void PrintDialoguePutsHeadsAndTheLastEntryOnThreePages() {
        testing::TempFolder folder;
        const auto name = MakeFileName(testing::FakeClock{}.Date);
        SaveDialogue(folder.Path(), name, 1, 30, "\tThe Inspiration of the day.");
        const auto pdf = QString::fromStdString((folder / "dialogue.pdf").string());
        QCOMPARE(Run(QStringLiteral(PRINT_DIALOGUE),
                     {QString::fromStdString((folder / "dlg" / name).string()), pdf}),
                 QStringLiteral("3 pages\n"));
        // Each page: what it shows, and the entries that start and end it.
        const std::tuple<int, QString, int, int> pages[] = {
            {1,
             QString::fromUtf8("\u201cThe Power of your Inspiration Is in the Worth that You Give "
                               "It\u201d"),
             1, 9},
            {2, QStringLiteral("Page 2"), 10, 20},
            {3, QStringLiteral("Page 3"), 21, 30},
        };
        for (const auto& [number, shows, first, last] : pages) {
            const QString text = PdfText(pdf, number);
            QVERIFY2(text.contains(shows), qPrintable(text));
            QVERIFY(text.contains(QStringLiteral("Entry number %1 of").arg(first)));
            QVERIFY(text.contains(QStringLiteral("Entry number %1 of the Dialogue.").arg(last)));
            QVERIFY(!text.contains(QStringLiteral("Entry number %1 of").arg(last + 1)));
        }
        const QString first = PdfText(pdf, 1);
        for (const char* head : {"Veyrant Dialogue", "Sunday, 12:00 PM", "November 22, 2026",
                                 "The Inspiration of the day."}) {
            QVERIFY2(first.contains(QString::fromUtf8(head)), head);
        }
    }
};

} // namespace veyrant

QTEST_GUILESS_MAIN(veyrant::CommandLineToolsTest)
#include "CommandLineToolsTest.moc"
