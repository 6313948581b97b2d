#include "ui/ExportEditorWindow.h"

#include "SpellingMarks.h"
#include "core/WholeFile.h"
#include "support/FakeWindowLayer.h"
#include "support/TempFolder.h"
#include "ui/HunspellDictionary.h"

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace veyrant {

using namespace Qt::StringLiterals;

namespace {

std::size_t FilesIn(const std::filesystem::path& folder) {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder),
                                                  std::filesystem::directory_iterator()));
}

// The checker over the machine's dictionary for a language, whatever the machine's own locale.
void OpenFor(SpellChecker& spelling, const char* language, const std::filesystem::path& words) {
    qunsetenv("LC_ALL");
    qunsetenv("LC_MESSAGES");
    qputenv("LANG", language);
    spelling.Open(OpenInstalledDictionary(SystemDictionaryFolder), words);
}

QPoint PointOf(QPlainTextEdit& editor, const QString& word) {
    QTextCursor at(editor.document());
    at.setPosition(static_cast<int>(editor.toPlainText().indexOf(word)) + 1);
    return editor.cursorRect(at).center();
}

QStringList Texts(const QMenu& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions()) {
        texts << action->text();
    }
    return texts;
}

} // namespace

class ExportEditorWindowTest : public QObject {
    Q_OBJECT

    SaveFolder folders;

private slots:
    // The user's edits are what is saved, as UTF-8 with the platform's line ends. A failed save
    // says so, leaves no file, and the text is still changed; closing then saves to the file the
    // text already has, and no file dialog asks for a name again.
    void SavesTheEditedTextAsUtf8OrSaysWhyNotAndClosingKeepsTheFile() {
        testing::FakeWindowLayer windows;
        testing::TempFolder folder;
        SpellChecker spelling;
        auto* editor = new ExportEditorWindow(
            windows, folders, spelling, QString::fromUtf8("Veyrant Sagrel\n\u201cCaf\u00e9\u201d"),
            u"Dialogue.txt"_s);
        editor->show();
        editor->Editor().appendPlainText(u"A line of my own."_s);
        QVERIFY(editor->Editor().document()->isModified());
        const auto path = folder / "Sunday.txt";
        const std::string saved = "Veyrant Sagrel\n\xe2\x80\x9c"
                                  "Caf\xc3\xa9\xe2\x80\x9d\nA line of my own.";
        QVERIFY(editor->SaveTo(QString::fromStdString(path.string())));
        QCOMPARE(ReadWholeFile(path), saved);
        QVERIFY(!editor->Editor().document()->isModified());
        QCOMPARE(FilesIn(folder.Path()), std::size_t{1});
        QVERIFY(windows.Boxes.empty());

        editor->Editor().appendPlainText(u"More."_s);
        const auto missing = folder / "missing" / "Sunday.txt";
        QVERIFY(!editor->SaveTo(QString::fromStdString(missing.string())));
        QCOMPARE(windows.Boxes.at(0).Title + ": " + windows.Boxes[0].Text,
                 "Save File Error: Error 53 encountered attempting to save " + missing.string() +
                     ".");
        QCOMPARE(FilesIn(folder.Path()), std::size_t{1});
        QVERIFY(editor->Editor().document()->isModified());

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
        QCOMPARE(ReadWholeFile(path), saved + "\nMore.");
    }

    // A correction replaces the word in this text only; an added word is known in every window at
    // once and after a restart, and its list is the user's alone. Each language has its own words.
    void MarkedWordsOfferCorrectionsAndAddToDictionary() {
        testing::FakeWindowLayer windows;
        testing::TempFolder folder;
        const auto words = folder / "Words.txt";
        SpellChecker spelling;
        OpenFor(spelling, "en_US.UTF-8", words);
        ExportEditorWindow editor(windows, folders, spelling,
                                  QStringLiteral("Veyrant Sagrel\nI wrte to the Sagrel about "
                                                 "Tolmira's lettr, 12 times.\n"),
                                  u"Dialogue.txt"_s);
        ExportEditorWindow other(windows, folders, spelling, u"A lettr.\n"_s, u"Dialogue.txt"_s);
        editor.show();
        QVERIFY(QTest::qWaitForWindowExposed(&editor));
        QCOMPARE(MarkedWords(editor.Editor()), QStringList({"wrte", "lettr"}));

        std::unique_ptr<QMenu> menu(editor.ContextMenu(PointOf(editor.Editor(), "wrte")));
        const QStringList offered = Texts(*menu);
        QVERIFY(offered.contains("write"));
        QVERIFY(offered.indexOf("Add to Dictionary") <= 5);
        menu->actions()[static_cast<int>(offered.indexOf("write"))]->trigger();
        QVERIFY(editor.Editor().toPlainText().contains("I write to"));
        QCOMPARE(MarkedWords(editor.Editor()), QStringList({"lettr"}));

        menu.reset(editor.ContextMenu(PointOf(editor.Editor(), "lettr")));
        menu->actions()[static_cast<int>(Texts(*menu).indexOf("Add to Dictionary"))]->trigger();
        QCOMPARE(MarkedWords(editor.Editor()), QStringList());
        QCOMPARE(MarkedWords(other.Editor()), QStringList());
        QCOMPARE(other.Editor().toPlainText(), u"A lettr.\n"_s);
        QCOMPARE(std::filesystem::status(words).permissions(),
                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
        SpellChecker restarted;
        OpenFor(restarted, "en_US.UTF-8", words);
        QVERIFY(restarted.Knows("lettr"));

        menu.reset(editor.ContextMenu(PointOf(editor.Editor(), "Sagrel")));
        QVERIFY(!Texts(*menu).contains("Add to Dictionary"));
        QVERIFY(windows.Boxes.empty());

        // The dictionary of the user's language judges its accented words.
        SpellChecker german;
        OpenFor(german, "de_DE.UTF-8", folder / "Wörter.txt");
        ExportEditorWindow street(windows, folders, german,
                                  QString::fromUtf8("Die Stra\u00dfe ist gem\u00fctlich, die "
                                                    "Strase nicht.\n"),
                                  u"Dialogue.txt"_s);
        QCOMPARE(MarkedWords(street.Editor()), QStringList({"Strase"}));
    }
};

} // namespace veyrant

QTEST_MAIN(veyrant::ExportEditorWindowTest)
#include "ExportEditorWindowTest.moc"
