// The program's tools as a script runs them, with no display: --export-library with --pdf, and
// the developer's print-dialogue; what they print is read back with pdftotext.

#include "support/SavedDialogue.h"
#include "support/TempFolder.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>

namespace veyrant {

using namespace Qt::StringLiterals;

namespace {

// A Dialogue saved at that date whose entries are numbered from first on; returns its file name.
std::string SaveDialogue(const std::filesystem::path& library, const DateTime& when, int first,
                         int count, const std::string& inspiration) {
    std::string dialogue;
    for (int entry = first; entry < first + count; ++entry) {
        dialogue += "\r\n\r\n\t\223Entry number " + std::to_string(entry) +
                    " of the Dialogue.\224\r\n\tA short reply.";
    }
    return testing::PutDialogue(AppFolder{library}, when, inspiration, dialogue);
}

QString Run(const QString& program, const QStringList& arguments,
            const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0) {
        return u"failed: "_s + program + u" "_s + QString::fromUtf8(process.readAllStandardError());
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}

// The text of the PDF, or of one page of it.
QString PdfText(const QString& pdf, int page = 0) {
    const QString number = QString::number(page);
    return Run(u"pdftotext"_s,
               (page > 0 ? QStringList{"-f", number, "-l", number} : QStringList{}) +
                   QStringList{pdf, "-"});
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
        SaveDialogue(library, {2026, 11, 23, 9, 15, 0}, 100, 40, "\tAn Inspiration.");
        SaveDialogue(library, {2026, 11, 22, 12, 0, 0}, 1, 3, "\tAn Inspiration.");
        const auto out = QString::fromStdString((folder / "out").string());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DATA_HOME"_s, QString::fromStdString(folder.Path()));
        for (const char* display : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
            environment.remove(QString::fromLatin1(display));
        }
        const QString said = Run(QStringLiteral(VEYRANT_SAGREL),
                                 {u"--export-library"_s, out, u"--pdf"_s}, environment);
        QVERIFY2(said.contains(u"/Library.pdf\n2 Dialogues written to "_s + out + u".\n"_s),
                 qPrintable(said));
        QVERIFY(!std::filesystem::is_empty(library / "isp"));
        QVERIFY(!std::filesystem::exists(library / "exe"));

        const QString text = PdfText(out + u"/Library.pdf"_s);
        const QStringList pages = text.split(QChar('\f'));
        // One page for the first Dialogue, four for the second, and the empty end.
        QCOMPARE(pages.size(), 6);
        QVERIFY(pages[1].contains(u"Inspiration"_s));
        qsizetype at = 0;
        for (int entry : {1, 2, 3, 100, 101, 139}) {
            const QString quoted = u"“Entry number %1 of the Dialogue.”"_s.arg(entry);
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
        const auto name = SaveDialogue(folder.Path(), testing::FakeClock{}.Date, 1, 30,
                                       "\tThe Inspiration of the day.");
        const auto pdf = QString::fromStdString((folder / "dialogue.pdf").string());
        QCOMPARE(Run(QStringLiteral(PRINT_DIALOGUE),
                     {QString::fromStdString((folder / "dlg" / name).string()), pdf}),
                 u"3 pages\n"_s);
        // Each page: what it shows, and the entries that start and end it.
        const std::tuple<int, QStringList, int, int> pages[] = {
            {1, {"Sunday, 12:00 PM", "November 22, 2026", "The Inspiration of the day."}, 1, 9},
            {2, {"Page 2"}, 10, 20},
            {3, {"Page 3"}, 21, 30},
        };
        for (const auto& [number, shows, first, last] : pages) {
            const QString text = PdfText(pdf, number);
            for (const QString& shown : shows) {
                QVERIFY2(text.contains(shown), qPrintable(shown + u" not in "_s + text));
            }
            QVERIFY(text.contains(u"Entry number %1 of"_s.arg(first)));
            QVERIFY(text.contains(u"Entry number %1 of the Dialogue."_s.arg(last)));
            QVERIFY(!text.contains(u"Entry number %1 of"_s.arg(last + 1)));
        }
    }
};

} // namespace veyrant

QTEST_GUILESS_MAIN(veyrant::CommandLineToolsTest)
#include "CommandLineToolsTest.moc"
