// The Write window and the export editor on a real (offscreen) screen: keys typed into their
// widgets go through the rules and show as the user would see them, and a screen reader tells
// what each control does.

#include "ui/MirrorWindow.h"

#include "ProgramFixtures.h"
#include "core/WholeFile.h"
#include "shell/MirrorLayout.h"
#include "ui/ExportEditorWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QTextBlock>
#include <QTextLayout>
#include <QTimer>
#include <QtTest>
#include <cmath>
#include <functional>

using namespace veyrant;
using enum MirrorControl;

using namespace Qt::StringLiterals;

namespace {

const QString Prefix = u"\t\u201C"_s;

// The words of a box that carry the spelling mark, as the user sees them underlined.
QStringList MarkedWords(const QPlainTextEdit& box) {
    QStringList words;
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next()) {
        for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
            if (range.format.underlineStyle() == QTextCharFormat::SpellCheckUnderline) {
                words << block.text().mid(range.start, range.length);
            }
        }
    }
    return words;
}

std::size_t FilesIn(const std::filesystem::path& folder) {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder),
                                                  std::filesystem::directory_iterator()));
}

// The machine's dictionary for a language, whatever the machine's own locale.
void UseLanguage(const char* language) {
    qunsetenv("LC_ALL");
    qunsetenv("LC_MESSAGES");
    qputenv("LANG", language);
}

void OpenFor(SpellChecker& spelling, const char* language, const std::filesystem::path& words) {
    UseLanguage(language);
    spelling.Open(OpenInstalledDictionary(SystemDictionaryFolder), words);
}

// The items of the menu that a right click on the word opens; the one named is chosen.
QStringList MenuOn(ExportEditorWindow& editor, const QString& word, const QString& choose = {}) {
    QTextCursor at(editor.Editor().document());
    at.setPosition(static_cast<int>(editor.Editor().toPlainText().indexOf(word)) + 1);
    const std::unique_ptr<QMenu> menu(editor.ContextMenu(editor.Editor().cursorRect(at).center()));
    QStringList texts;
    for (QAction* action : menu->actions()) {
        texts << action->text();
        if (action->text() == choose) {
            action->trigger();
        }
    }
    return texts;
}

// The Alt keys that the buttons on show answer to, one for each button.
QStringList AccessKeysOnShow(const MirrorWindow& window) {
    QStringList keys;
    for (const auto* button : window.findChildren<QPushButton*>()) {
        if (button->isVisible()) {
            keys << QKeySequence::mnemonic(button->text()).toString();
        }
    }
    return keys;
}

} // namespace

class MirrorWindowTest : public QObject {
    Q_OBJECT

    SaveFolder folders;

private slots:
    // A finished word the dictionary does not know is marked and loses the mark when corrected.
    // With the marks off or no dictionary nothing is marked and nothing complains, and in every
    // case the keys make the same text and the same random series.
    void MisspeltWordsAreMarkedAndNothingElseChanges() {
        UseLanguage("en_US.UTF-8");
        const testing::TempFolder noDictionaries;
        // The marks on, over the dictionaries, and the words marked once finished.
        const std::tuple<const char*, bool, std::filesystem::path, QStringList> cases[] = {
            {"on", true, SystemDictionaryFolder, {"wrte"}},
            {"off", false, SystemDictionaryFolder, {}},
            {"no dictionary", true, noDictionaries.Path(), {}},
        };
        std::vector<std::pair<decltype(Engine::SeriesBase), decltype(Engine::SeriesScale)>> series;
        for (const auto& [name, on, dictionaries, finished] : cases) {
            WriteWindow write;
            write.App.UserPreferences.SpellingMarks = on;
            OpenSpelling(write.App, dictionaries);
            write.Click(cmdConverse);
            auto* entry = write.Box(txtMirror);
            QTest::keyClicks(entry, u"Sagrel, I wrte"_s);
            QVERIFY2(MarkedWords(*entry).isEmpty(), name);
            QTest::keyClicks(entry, u" to you "_s);
            QCOMPARE(MarkedWords(*entry), finished);
            for (int back = 0; back < 10; ++back) {
                QTest::keyClick(entry, Qt::Key_Backspace);
            }
            QTest::keyClicks(entry, u"ite to you at 9."_s);
            QVERIFY2(MarkedWords(*entry).isEmpty(), name);
            QCOMPARE(entry->toPlainText(), Prefix + u"Sagrel, I write to you at 9."_s);
            QVERIFY2(write.Layer.Boxes.empty(), name);
            series.emplace_back(write.Composer.SeriesBase, write.Composer.SeriesScale);
            QVERIFY2(series.front() == series.back(), name);
        }
    }

    void IdeasAreTypedIntoTheListAndSelectChoosesOne() {
        WriteWindow write;
        write.Click(cmdSuppose);
        auto* entry = write.Box(txtMirror);
        QTest::keyClicks(entry, u"What could make the mornings easier for us?"_s);
        QTest::keyClick(entry, Qt::Key_Return);
        auto* list = write.Box(txtAnalyze);
        QVERIFY(list->isVisible());
        QVERIFY(!entry->isEnabled());
        QCOMPARE(write.Window->focusWidget(), list);

        // The prompt is out of reach of the caret; the idea is not.
        QTest::keyClicks(list, u"pack lunches the night before"_s);
        QTest::keyClick(list, Qt::Key_Home);
        QTest::keyClick(list, Qt::Key_Backspace);
        QTest::keyClicks(list, u"We "_s);
        QVERIFY(list->toPlainText().endsWith(u"Entry 1 >> We pack lunches the night before"_s));
        QTest::keyClick(list, Qt::Key_End);
        QTest::keyClick(list, Qt::Key_Return);

        // A click in the list erases the idea being typed, and nothing else.
        QTest::keyClicks(list, u"walk"_s);
        QTest::mouseClick(list->viewport(), Qt::LeftButton);
        QVERIFY(list->toPlainText().endsWith(u"Entry 2 >> "_s));

        QTest::keyClicks(list, u"leave ten minutes earlier"_s);
        QTest::keyClick(list, Qt::Key_Return);
        write.Click(cmdNew);
        QVERIFY(!list->isVisible());
        QVERIFY(static_cast<QPushButton*>(write.Window->Widget(cmdConverse))
                    ->property("pressedIn")
                    .toBool());
        QCOMPARE(write.Window->focusWidget(), entry);
    }

    // A Converse typed and answered on screen, a button's help under the resting pointer and as a
    // screen reader tells it, and the full view of the Dialogue over the boxes and back. A keyboard
    // user reaches every command by Alt and the letter its caption underlines, while the entry box
    // keeps the focus and its own rules for Tab and the letters typed. The head of the entry is out
    // of reach; paste, drop and shortcuts are refused; a character the Dialogue file cannot hold,
    // typed (an emoji is a surrogate pair) or sent by an input method, is refused with the
    // program's notice and is never counted.
    void TypedEntryIsAnsweredOnScreenAndEveryCommandAnswersToAlt() {
        WriteWindow write;
        // The window's size less its frame, and the boxes' fonts, follow the display size.
        const MirrorLayout design = MirrorDesign();
        const double factor = write.App.Scale.ScaleFactor / 15;
        QCOMPARE(write.Window->size(), QSize(std::lround((design.WindowWidth - 90) * factor),
                                             std::lround((design.WindowHeight - 405) * factor)));
        QCOMPARE(write.Box(txtSaved)->font().pointSizeF(), write.App.Scale.TextSize[1]);
        QVERIFY(write.Box(txtSaved)->font().bold());
        // The hover help is spoken, and a screen reader tells the key that presses a button, as
        // the underlined letter shows it.
        QVERIFY(Spoken(write.Window->Widget(txtMirror), QAccessible::Description)
                    .startsWith(u"Type a question"_s));
        QVERIFY(Spoken(write.Window->Widget(cmdHelp), QAccessible::Description)
                    .startsWith(u"Open the Information"_s));
        QCOMPARE(QAccessible::queryAccessibleInterface(write.Window->Widget(cmdHelp))
                     ->actionInterface()
                     ->keyBindingsForAction(QAccessibleActionInterface::pressAction()),
                 QStringList{"Alt+H"});
        QApplication::setActiveWindow(write.Window.get());
        QVERIFY(QTest::qWaitForWindowActive(write.Window.get()));
        auto* entry = write.Box(txtMirror);
        const auto alt = [](Qt::Key key) {
            QTest::keyClick(QApplication::focusWidget(), key, Qt::AltModifier);
        };

        alt(Qt::Key_C);
        QTRY_COMPARE(entry->toPlainText(), Prefix);
        QCOMPARE(QApplication::focusWidget(), entry);
        // The description follows the button's state, as the hover help does.
        QVERIFY(Spoken(write.Window->Widget(cmdConverse), QAccessible::Description)
                    .startsWith(u"Click 'Cancel'"_s));
        // The instruction line's description follows its words.
        QVERIFY(Spoken(write.Window->Widget(txtNote), QAccessible::Description)
                    .startsWith(u"Type your question"_s));

        auto* mark = write.Window->Widget(lblRem);
        QVERIFY(mark->isVisible());
        QWidget* cancel = write.Window->Widget(cmdNew);
        QTest::mouseMove(cancel, QPoint(10, 10));
        QTest::mouseMove(cancel, QPoint(12, 11));
        QVERIFY(cancel->property("hoverMark").toBool());
        write.Logic->TimerFired(TimerId::MirrorHover);
        write.Window->Render();
        auto* note = static_cast<QLabel*>(write.Window->Widget(txtNote));
        QVERIFY(note->text().startsWith(u"Cancel your interaction"_s));

        QTest::keyClicks(entry, u"abc"_s);
        QTest::keyClick(entry, Qt::Key_Home);
        QTest::keyClick(entry, Qt::Key_Backspace);
        QTest::keyClick(entry, Qt::Key_Left);
        QTest::keyClicks(entry, u"X"_s);
        QTest::keyClick(entry, Qt::Key_Tab);
        QApplication::clipboard()->setText(u"pasted text"_s);
        QTest::keyClick(entry, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(entry, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(entry->contextMenuPolicy(), Qt::NoContextMenu);
        QVERIFY(!entry->acceptDrops());
        QTest::mouseClick(entry->viewport(), Qt::MiddleButton);
        QCOMPARE(entry->toPlainText(), Prefix + u"Xabc"_s);
        // The control key itself is named in the program's box.
        auto boxes = write.Layer.Boxes.size();
        QTest::keyClick(entry, Qt::Key_Control);
        QCOMPARE(write.Layer.Boxes.size(), boxes + 1);

        QTest::keyClick(entry, Qt::Key_End);
        QTest::keyClicks(entry, u" I feel "_s);
        const int entries = write.Logic->State().EntryCount;
        boxes = write.Layer.Boxes.size();
        for (const char* typed : {"\U0001F600", "\u0151", "\u03B1"}) {
            QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUtf8(typed));
            QApplication::sendEvent(entry, &key);
        }
        QInputMethodEvent composed;
        composed.setCommitString(u"\u0436"_s);
        QApplication::sendEvent(entry, &composed);
        QCOMPARE(write.Layer.Boxes.size(), boxes + 4);
        QCOMPARE(entry->toPlainText(), Prefix + u"Xabc I feel "_s);
        QCOMPARE(write.Logic->State().EntryCount, entries);
        QCOMPARE(QApplication::focusWidget(), entry);
        alt(Qt::Key_W);
        QTRY_COMPARE(entry->toPlainText(), Prefix);

        QTest::keyClicks(entry, u"Why do I keep the old letters in a box?"_s);
        QVERIFY(!mark->isVisible());
        QVERIFY(write.Window->Widget(cmdClear)->isEnabled());

        QTest::keyClick(entry, Qt::Key_Return);
        QCOMPARE(entry->toPlainText(), Prefix + u"Why do I keep the old letters in a box?\u201D"_s);
        QVERIFY(!write.Box(txtResponse)->toPlainText().isEmpty());
        if (write.Caption(cmdRemove) == u"Keep"_s) {
            alt(Qt::Key_E);
        }
        QTRY_COMPARE(write.Caption(cmdRemove), u"Remove"_s);
        QTest::keyClick(entry, Qt::Key_F11);
        QCOMPARE(write.Caption(cmdDisplay), u"Write"_s);
        QTest::mouseClick(write.Box(txtSaved)->viewport(), Qt::LeftButton);
        QCOMPARE(write.Caption(cmdDisplay), u"Display"_s);

        // Each step: the key, and what the user sees once its command has run.
        const auto count = [](std::size_t number) { return QString::number(number); };
        const std::tuple<Qt::Key, std::function<QString()>, QString> steps[] = {
            {Qt::Key_F, [&] { return write.Caption(cmdNew); }, "New"},
            {Qt::Key_O, [&] { return write.Caption(cmdNew); }, "Finish"},
            {Qt::Key_F, [&] { return write.Caption(cmdRemove); }, "Continue"},
            {Qt::Key_P, [&] { return count(write.Layer.Printed.size()); }, "1"},
            {Qt::Key_I, [&] { return count(write.Layer.EditorTexts.size()); }, "1"},
            {Qt::Key_S, [&] { return count(write.Library.Listing().LibraryCount); }, "1"},
        };
        for (const auto& [key, seen, expected] : steps) {
            QStringList keys = AccessKeysOnShow(*write.Window);
            QVERIFY2(!keys.contains(QString()) && keys.removeDuplicates() == 0,
                     qPrintable(keys.join(", ")));
            alt(key);
            QTRY_COMPARE(seen(), expected);
        }
        // Saving began a new Dialogue.
        QTRY_COMPARE(write.Window->windowTitle(), u"Veyrant Sagrel -- New Dialogue"_s);
    }

    // A correction replaces the word in this text only; an added word is known in every window at
    // once and after a restart, and its list is the user's alone. Each language has its own words.
    // The user's edits are what is saved, as UTF-8 with the platform's line ends. A failed save
    // says so, leaves no file, and the text is still changed; closing then saves to the file the
    // text already has, and no file dialog asks for a name again.
    void TheExportEditorCorrectsMarkedWordsAndSavesTheEditsAsUtf8() {
        testing::FakeWindowLayer windows;
        testing::TempFolder folder;
        const auto words = folder / "Words.txt";
        SpellChecker spelling;
        OpenFor(spelling, "en_US.UTF-8", words);
        auto* editor = new ExportEditorWindow(
            windows, folders, spelling,
            QString::fromUtf8("Veyrant Sagrel\n\u201c12\u00b0\u201d\nI wrte to the Sagrel about "
                              "Tolmira's lettr, 12 times."),
            u"Dialogue.txt"_s);
        ExportEditorWindow other(windows, folders, spelling, u"A lettr.\n"_s, u"Dialogue.txt"_s);
        editor->show();
        QVERIFY(QTest::qWaitForWindowExposed(editor));
        QCOMPARE(Unnamed(*editor), QStringList());
        QCOMPARE(MarkedWords(editor->Editor()), QStringList({"wrte", "lettr"}));

        const QStringList offered = MenuOn(*editor, "wrte", "write");
        QVERIFY(offered.contains("write"));
        QVERIFY(offered.indexOf("Add to Dictionary") <= 5);
        QVERIFY(editor->Editor().toPlainText().contains("I write to"));
        QCOMPARE(MarkedWords(editor->Editor()), QStringList({"lettr"}));

        MenuOn(*editor, "lettr", "Add to Dictionary");
        QCOMPARE(MarkedWords(editor->Editor()), QStringList());
        QCOMPARE(MarkedWords(other.Editor()), QStringList());
        QCOMPARE(other.Editor().toPlainText(), u"A lettr.\n"_s);
        QCOMPARE(std::filesystem::status(words).permissions(),
                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
        SpellChecker restarted;
        OpenFor(restarted, "en_US.UTF-8", words);
        QVERIFY(restarted.Knows("lettr"));

        QVERIFY(!MenuOn(*editor, "Sagrel").contains("Add to Dictionary"));
        QVERIFY(windows.Boxes.empty());

        // The dictionary of the user's language judges its accented words.
        SpellChecker german;
        OpenFor(german, "de_DE.UTF-8", folder / "Wörter.txt");
        ExportEditorWindow street(windows, folders, german,
                                  QString::fromUtf8("Die Stra\u00dfe ist gem\u00fctlich, die "
                                                    "Strase nicht.\n"),
                                  u"Dialogue.txt"_s);
        QCOMPARE(MarkedWords(street.Editor()), QStringList({"Strase"}));

        editor->Editor().appendPlainText(u"A line of my own."_s);
        QVERIFY(editor->Editor().document()->isModified());
        const auto saves = folder / "saves";
        std::filesystem::create_directories(saves);
        const auto path = saves / "Sunday.txt";
        const std::string saved = "Veyrant Sagrel\n\xe2\x80\x9c"
                                  "12\xc2\xb0\xe2\x80\x9d\nI write to the Sagrel about Tolmira's "
                                  "lettr, 12 times.\nA line of my own.";
        QVERIFY(editor->SaveTo(QString::fromStdString(path.string())));
        QCOMPARE(ReadWholeFile(path), saved);
        QVERIFY(!editor->Editor().document()->isModified());
        QCOMPARE(FilesIn(saves), std::size_t{1});
        QVERIFY(windows.Boxes.empty());

        editor->Editor().appendPlainText(u"More."_s);
        const auto missing = saves / "missing" / "Sunday.txt";
        QVERIFY(!editor->SaveTo(QString::fromStdString(missing.string())));
        QCOMPARE(windows.Boxes.at(0).Text.substr(0, 8), "Error 53");
        QVERIFY(windows.Boxes[0].Text.ends_with(missing.string() + "."));
        QCOMPARE(FilesIn(saves), std::size_t{1});
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
};

QTEST_MAIN(MirrorWindowTest)
#include "MirrorWindowTest.moc"
