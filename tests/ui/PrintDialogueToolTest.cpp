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
        const QString first = page(1);
        QVERIFY2(first.contains(QStringLiteral("Veyrant Dialogue")), qPrintable(first));
        QVERIFY(first.contains(QStringLiteral("Sunday, 12:00 PM")));
        QVERIFY(first.contains(QStringLiteral("November 22, 2026")));
        QVERIFY(first.contains(QStringLiteral("The Inspiration of the day.")));
        QVERIFY(first.contains(QString::fromUtf8(
            "\u201cThe Power of your Inspiration Is in the Worth that You Give It\u201d")));
        QVERIFY(first.contains(QStringLiteral("Entry number 9 of")));
        QVERIFY(!first.contains(QStringLiteral("Entry number 10 of")));
        const QString second = page(2);
        QVERIFY2(second.contains(QStringLiteral("Page 2")), qPrintable(second));
        QVERIFY(second.contains(QStringLiteral("Entry number 10 of")));
        QVERIFY(second.contains(QStringLiteral("Entry number 20 of")));
        QVERIFY(!second.contains(QStringLiteral("Entry number 21 of")));
        QVERIFY(!second.contains(QStringLiteral("The Power of your Inspiration")));
        const QString third = page(3);
        QVERIFY2(third.contains(QStringLiteral("Page 3")), qPrintable(third));
        QVERIFY(third.contains(QStringLiteral("Entry number 21 of")));
        QVERIFY(third.contains(QString::fromUtf8("\u201cEntry number 30 of the Dialogue.\u201d")));
    }
};

} // namespace veyrant

QTEST_GUILESS_MAIN(veyrant::PrintDialogueToolTest)
#include "PrintDialogueToolTest.moc"
