#include "core/Cp1252.h"
#include "storage/LibraryFileName.h"
#include "support/FakeClock.h"
#include "support/TempFolder.h"

#include <QProcess>
#include <QTest>
#include <fstream>

namespace veyrant {

namespace {

void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

QString Run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0) {
        return QStringLiteral("failed: ") + program + QStringLiteral(" ") +
               QString::fromUtf8(process.readAllStandardError());
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

class PrintDialogueToolTest : public QObject {
    Q_OBJECT

private slots:
    // One line of Inspiration and 89 of Dialogue, three to an entry less the leading blank
    // line: 26 on the first page, 32 on the second, the rest on the third.
    void ThreePagesCarryTheirHeadsAndTheLastEntry() {
        testing::TempFolder folder;
        const auto name = MakeFileName(testing::FakeClock{}.Date);
        std::string dialogue;
        for (int entry = 1; entry <= 30; ++entry) {
            dialogue += "\r\n\r\n\t\x93"
                        "Entry number " +
                        std::to_string(entry) + " of the Dialogue.\x94\r\n\tA short reply.";
        }
        WriteFile(folder / "dlg" / name, dialogue);
        WriteFile(folder / "isp" / name, "\tThe Inspiration of the day.");
        const auto pdf = QString::fromStdString((folder / "dialogue.pdf").string());

        QCOMPARE(Run(QStringLiteral(PRINT_DIALOGUE),
                     {QString::fromStdString((folder / "dlg" / name).string()), pdf}),
                 QStringLiteral("3 pages\n"));
        const auto page = [&](int number) {
            return Run(QStringLiteral("pdftotext"),
                       {QStringLiteral("-f"), QString::number(number), QStringLiteral("-l"),
                        QString::number(number), pdf, QStringLiteral("-")});
        };
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
            const QString text = page(number);
            QVERIFY2(text.contains(shows), qPrintable(text));
            QVERIFY(text.contains(QStringLiteral("Entry number %1 of").arg(first)));
            QVERIFY(text.contains(QStringLiteral("Entry number %1 of the Dialogue.").arg(last)));
            QVERIFY(!text.contains(QStringLiteral("Entry number %1 of").arg(last + 1)));
        }
        const QString first = page(1);
        for (const char* head : {"Veyrant Dialogue", "Sunday, 12:00 PM", "November 22, 2026",
                                 "The Inspiration of the day."}) {
            QVERIFY2(first.contains(QString::fromUtf8(head)), head);
        }
    }
};

} // namespace veyrant

QTEST_GUILESS_MAIN(veyrant::PrintDialogueToolTest)
#include "PrintDialogueToolTest.moc"
