#include "ui/ExportEditorWindow.h"

#include "support/FakeWindowLayer.h"
#include "support/TempFolder.h"

#include <QApplication>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
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

    SaveFolder folders;

private slots:
    // The user's edits are what is saved, as UTF-8 with the platform's line ends.
    void SavesTheEditedTextAsUtf8() {
        testing::FakeWindowLayer windows;
        testing::TempFolder folder;
        ExportEditorWindow editor(windows, folders,
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
        ExportEditorWindow editor(windows, folders, QStringLiteral("Text"),
                                  QStringLiteral("Dialogue.txt"));
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

    // Once saved, the text has its file: closing after more changes saves there, and no file
    // dialog asks for a name again.
    void ClosingAfterASaveKeepsTheFile() {
        testing::FakeWindowLayer windows;
        testing::TempFolder folder;
        auto* editor = new ExportEditorWindow(windows, folders, QStringLiteral("Text"),
                                              QStringLiteral("Dialogue.txt"));
        editor->show();
        const auto path = folder / "Sunday.txt";
        QVERIFY(editor->SaveTo(QString::fromStdString(path.string())));
        editor->Editor().appendPlainText(QStringLiteral("More."));
        bool askedForAName = false;
        QTimer answer;
        connect(&answer, &QTimer::timeout, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                box->button(QMessageBox::Save)->click();
            } else if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                askedForAName = true;
                dialog->reject();
            }
        });
        answer.start(20);
        QVERIFY(editor->close());
        QVERIFY(!askedForAName);
        QCOMPARE(ReadBytes(path), std::string("Text\nMore."));
    }
};

} // namespace veyrant

QTEST_MAIN(veyrant::ExportEditorWindowTest)
#include "ExportEditorWindowTest.moc"
