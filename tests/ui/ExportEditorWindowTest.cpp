#include "ui/ExportEditorWindow.h"

#include "support/FakeWindowLayer.h"
#include "support/TempFolder.h"

#include <QPlainTextEdit>
#include <QTest>
#include <fstream>
#include <sstream>

namespace veyrant {

namespace {

std::string ReadBytes(const std::filesystem::path& path) {
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    return bytes.str();
}

std::size_t FilesIn(const std::filesystem::path& folder) {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder),
                                                  std::filesystem::directory_iterator()));
}

} // namespace

class ExportEditorWindowTest : public QObject {
    Q_OBJECT

private slots:
    // The user's edits are what is saved, as UTF-8 with the platform's line ends.
    void SavesTheEditedTextAsUtf8() {
        testing::FakeWindowLayer windows;
        testing::TempFolder folder;
        ExportEditorWindow editor(windows,
                                  QString::fromUtf8("Veyrant Sagrel\n\u201cCaf\u00e9\u201d"),
                                  QStringLiteral("Dialogue.txt"));
        editor.Editor().appendPlainText(QStringLiteral("A line of my own."));
        QVERIFY(editor.Editor().document()->isModified());

        const auto path = folder / "Sunday.txt";
        QVERIFY(editor.SaveTo(QString::fromStdString(path.string())));
        QCOMPARE(ReadBytes(path), std::string("Veyrant Sagrel\n\xe2\x80\x9c"
                                              "Caf\xc3\xa9\xe2\x80\x9d\nA line of my own."));
        QVERIFY(!editor.Editor().document()->isModified());
        QCOMPARE(FilesIn(folder.Path()), std::size_t{1});
        QVERIFY(windows.Boxes.empty());
    }

    void AFailedSaveSaysSoAndLeavesNoFile() {
        testing::FakeWindowLayer windows;
        testing::TempFolder folder;
        ExportEditorWindow editor(windows, QStringLiteral("Text"), QStringLiteral("Dialogue.txt"));
        editor.Editor().appendPlainText(QStringLiteral("More."));
        const auto path = folder / "missing" / "Sunday.txt";

        QVERIFY(!editor.SaveTo(QString::fromStdString(path.string())));
        QCOMPARE(windows.Boxes.size(), std::size_t{1});
        QCOMPARE(windows.Boxes[0].Title, std::string("Save File Error"));
        QCOMPARE(windows.Boxes[0].Text,
                 "Error 53 encountered attempting to save " + path.string() + ".");
        QCOMPARE(FilesIn(folder.Path()), std::size_t{0});
        // Still changed, so closing will ask.
        QVERIFY(editor.Editor().document()->isModified());
    }
};

} // namespace veyrant

QTEST_MAIN(veyrant::ExportEditorWindowTest)
#include "ExportEditorWindowTest.moc"
