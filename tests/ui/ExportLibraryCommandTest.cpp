// The program's --export-library with --pdf, run as a script runs it, with no display: one PDF
// in which every entry of every Dialogue stands once, in date order, each Dialogue from a new
// page, and the program's folder as it was.

#include "support/TempFolder.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTest>
#include <fstream>

namespace veyrant {

class ExportLibraryCommandTest : public QObject {
    Q_OBJECT

private slots:
    void EveryEntryOnceInOrderWithNoDisplay() {
        testing::TempFolder folder;
        const auto library = folder / "veyrant-sagrel";
        const auto write = [](const std::filesystem::path& path, const std::string& bytes) {
            std::filesystem::create_directories(path.parent_path());
            std::ofstream(path, std::ios::binary) << bytes;
        };
        // Two Dialogues of one and of four pages, saved out of date order.
        for (const auto& [name, first, count] :
             {std::tuple{"76112309.150", 100, 40}, std::tuple{"76112212.000", 1, 3}}) {
            std::string dialogue;
            for (int entry = first; entry < first + count; ++entry) {
                dialogue += "\r\n\r\n\t\x93"
                            "Entry " +
                            std::to_string(entry) + " is here.\x94\r\n\tA reply.";
            }
            write(library / "dlg" / name, dialogue);
            write(library / "isp" / name, "\tAn Inspiration.");
        }
        const auto out = QString::fromStdString((folder / "out").string());
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), QString::fromStdString(folder.Path()));
        environment.remove(QStringLiteral("DISPLAY"));
        environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
        environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        program.setProcessEnvironment(environment);
        program.start(QStringLiteral(VEYRANT_SAGREL),
                      {QStringLiteral("--export-library"), out, QStringLiteral("--pdf")});
        QVERIFY(program.waitForFinished(60000));
        QCOMPARE(program.exitCode(), 0);
        const QString said = QString::fromUtf8(program.readAllStandardOutput());
        QVERIFY2(said.endsWith(QStringLiteral("/Library.pdf\n2 Dialogues written to ") + out +
                               QStringLiteral(".\n\nThe exported files are not encrypted.\n")),
                 qPrintable(said));
        QCOMPARE(std::filesystem::directory_iterator(library / "isp") !=
                     std::filesystem::directory_iterator(),
                 true);
        QVERIFY(!std::filesystem::exists(library / "exe"));

        QProcess pdftotext;
        pdftotext.start(QStringLiteral("pdftotext"),
                        {out + QStringLiteral("/Library.pdf"), QStringLiteral("-")});
        QVERIFY(pdftotext.waitForFinished(60000));
        const QString text = QString::fromUtf8(pdftotext.readAllStandardOutput());
        const QStringList pages = text.split(QChar('\f'));
        // One page for the first Dialogue, four for the second, and the empty end.
        QCOMPARE(pages.size(), 6);
        QVERIFY(pages[1].contains(QStringLiteral("Inspiration")));
        qsizetype at = 0;
        for (int entry : {1, 2, 3, 100, 101, 139}) {
            const QString quoted = QStringLiteral("“Entry %1 is here.”").arg(entry);
            QCOMPARE(text.count(quoted), 1);
            const qsizetype found = text.indexOf(quoted);
            QVERIFY2(found > at, qPrintable(quoted));
            at = found;
        }
    }
};

} // namespace veyrant

QTEST_GUILESS_MAIN(veyrant::ExportLibraryCommandTest)
#include "ExportLibraryCommandTest.moc"
