// The Write window on a real (offscreen) screen: keys typed into its widgets go through the
// rules and show as the user would see them.

#include "ui/MirrorWindow.h"

#include "SpellingMarks.h"
#include "WriteWindowFixture.h"
#include "dialogue/Mirror.h"
#include "shell/DisplayScale.h"
#include "shell/MirrorLayout.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>
#include <cmath>
#include <functional>
#include <memory>

using namespace veyrant;

namespace {

const QString Prefix = QStringLiteral("\t\u201C");

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

private slots:
    void WindowAndBoxesGrowWithTheDisplayOption() {
        const auto pixels = [](double twips) { return static_cast<int>(std::lround(twips / 15)); };
        const MirrorLayout design = MirrorDesign();
        for (const int option : {0, 1, 2, 3}) {
            WriteWindow write(option);
            const double factor = write.App.Scale.ScaleFactor;
            QCOMPARE(write.Window->width(), pixels((design.WindowWidth - 90) * factor));
            QCOMPARE(write.Window->height(), pixels((design.WindowHeight - 405) * factor));
            // The New Dialogue state shows the Opening arrangement.
            QCOMPARE(write.Box(MirrorControl::txtResponse)->y(), pixels(960 * factor));
            QCOMPARE(write.Box(MirrorControl::txtSaved)->y(), pixels(2760 * factor));
            const QFont saved = write.Box(MirrorControl::txtSaved)->font();
            QCOMPARE(saved.pointSizeF(), write.App.Scale.TextSize[1]);
            QCOMPARE(saved.bold(), option < 2);
            QCOMPARE(write.Window->Widget(MirrorControl::cmdClear)->font().pointSizeF(),
                     write.App.Scale.ButtonFontSize);
        }
    }

    // A Converse typed and answered on screen, a button's help under the resting pointer, and the
    // full view of the Dialogue over the boxes and back.
    void TypedEntryIsAnsweredOnScreenAndShownWhole() {
        WriteWindow write;
        write.Click(MirrorControl::cmdConverse);
        auto* entry = write.Box(MirrorControl::txtMirror);
        QVERIFY(entry->isVisible());
        QCOMPARE(entry->toPlainText(), Prefix);
        auto* mark = static_cast<QLabel*>(write.Window->Widget(MirrorControl::lblRem));
        QCOMPARE(mark->text(), QStringLiteral("X"));
        QWidget* cancel = write.Window->Widget(MirrorControl::cmdNew);
        QTest::mouseMove(cancel, QPoint(10, 10));
        QTest::mouseMove(cancel, QPoint(12, 11));
        QCOMPARE(int(write.Logic->Controls()[MirrorControl::cmdNew].Ink), int(Colour::HoverInk));
        QVERIFY(cancel->property("hoverMark").toBool());
        QCOMPARE(write.Layer.Timers.count(TimerId::MirrorHover), 1u);
        write.Logic->TimerFired(TimerId::MirrorHover);
        write.Window->Render();
        auto* note = static_cast<QLabel*>(write.Window->Widget(MirrorControl::txtNote));
        QCOMPARE(note->text(),
                 QStringLiteral("Cancel your interaction and return to New Dialogue."));

        QTest::keyClicks(entry, QStringLiteral("Why do I keep the old letters in a box?"));
        QCOMPARE(entry->toPlainText(),
                 Prefix + QStringLiteral("Why do I keep the old letters in a box?"));
        QVERIFY(!mark->isVisible());
        QVERIFY(write.Window->Widget(MirrorControl::cmdClear)->isEnabled());

        QTest::keyClick(entry, Qt::Key_Return);
        QCOMPARE(entry->toPlainText(),
                 Prefix + QStringLiteral("Why do I keep the old letters in a box?\u201D"));
        const QString response = write.Box(MirrorControl::txtResponse)->toPlainText();
        QVERIFY(response.startsWith(QLatin1Char('\t')) && response.size() > 10);
        const QString choice = write.Caption(MirrorControl::cmdRemove);
        QVERIFY(choice == QStringLiteral("Remove") || choice == QStringLiteral("Keep"));
        QVERIFY(write.Box(MirrorControl::txtSaved)
                    ->toPlainText()
                    .startsWith(QStringLiteral("Dialogue")));
        // The entry now stands above the response.
        QVERIFY(entry->y() < write.Box(MirrorControl::txtResponse)->y());

        if (choice == QStringLiteral("Keep")) {
            write.Click(MirrorControl::cmdRemove);
        }
        QTest::keyClick(entry, Qt::Key_F11);
        QCOMPARE(write.Caption(MirrorControl::cmdDisplay), QStringLiteral("Write"));
        auto* saved = write.Box(MirrorControl::txtSaved);
        QVERIFY(saved->toPlainText().startsWith(QStringLiteral("Inspiration\n\n\t")));
        // The panel rises to the top of the boxes' area and covers them.
        QCOMPARE(saved->y(), 960 / 15);
        QVERIFY(note->text().startsWith(QStringLiteral("Your Dialogue is less than 1 page long.")));
        QTest::mouseClick(saved->viewport(), Qt::LeftButton);
        QCOMPARE(write.Caption(MirrorControl::cmdDisplay), QStringLiteral("Display"));
    }

    // A finished word the dictionary does not know is marked and loses the mark when corrected.
    // With the marks off or no dictionary nothing is marked and nothing complains, and in every
    // case the keys make the same text and the same random series.
    void MisspeltWordsAreMarkedAndNothingElseChanges() {
        qunsetenv("LC_ALL");
        qunsetenv("LC_MESSAGES");
        qputenv("LANG", "en_US.UTF-8");
        const testing::TempFolder noDictionaries;
        struct Case {
            const char* Name;
            bool On;
            std::filesystem::path Dictionaries;
            QStringList Finished;
        };
        const Case cases[] = {
            {"on", true, SystemDictionaryFolder, {"wrte"}},
            {"off", false, SystemDictionaryFolder, {}},
            {"no dictionary", true, noDictionaries.Path(), {}},
        };
        std::optional<std::pair<decltype(Engine::SeriesBase), decltype(Engine::SeriesScale)>>
            series;
        for (const Case& c : cases) {
            WriteWindow write;
            write.App.UserPreferences.SpellingMarks = c.On;
            OpenSpelling(write.App, c.Dictionaries);
            write.Click(MirrorControl::cmdConverse);
            auto* entry = write.Box(MirrorControl::txtMirror);
            QTest::keyClicks(entry, QStringLiteral("Sagrel, I wrte"));
            QVERIFY2(MarkedWords(*entry).isEmpty(), c.Name);
            QTest::keyClicks(entry, QStringLiteral(" to you "));
            QCOMPARE(MarkedWords(*entry), c.Finished);
            for (int back = 0; back < 10; ++back) {
                QTest::keyClick(entry, Qt::Key_Backspace);
            }
            QTest::keyClicks(entry, QStringLiteral("ite to you at 9."));
            QVERIFY2(MarkedWords(*entry).isEmpty(), c.Name);
            QCOMPARE(entry->toPlainText(), Prefix + QStringLiteral("Sagrel, I write to you at 9."));
            QVERIFY2(write.Layer.Boxes.empty(), c.Name);
            if (!series) {
                series.emplace(write.Composer.SeriesBase, write.Composer.SeriesScale);
            }
            QVERIFY2(series->first == write.Composer.SeriesBase, c.Name);
            QVERIFY2(series->second == write.Composer.SeriesScale, c.Name);
        }
    }

    // The head of the entry is out of reach; paste, drop and shortcuts are refused; a character
    // the Dialogue file cannot hold, typed (an emoji is a surrogate pair) or sent by an input
    // method, is refused with the program's notice and is never counted.
    void HeadPasteShortcutsAndUnwritableCharactersAreRefused() {
        WriteWindow write;
        write.Click(MirrorControl::cmdConverse);
        auto* entry = write.Box(MirrorControl::txtMirror);
        QTest::keyClicks(entry, QStringLiteral("abc"));
        QTest::keyClick(entry, Qt::Key_Home);
        QTest::keyClick(entry, Qt::Key_Backspace);
        QTest::keyClick(entry, Qt::Key_Left);
        QTest::keyClicks(entry, QStringLiteral("X"));
        QTest::keyClick(entry, Qt::Key_Tab);
        QCOMPARE(entry->toPlainText(), Prefix + QStringLiteral("Xabc"));
        QApplication::clipboard()->setText(QStringLiteral("pasted text"));
        QTest::keyClick(entry, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClick(entry, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(entry->toPlainText(), Prefix + QStringLiteral("Xabc"));
        QCOMPARE(entry->contextMenuPolicy(), Qt::NoContextMenu);
        QVERIFY(!entry->acceptDrops());
        QTest::mouseClick(entry->viewport(), Qt::MiddleButton);
        QCOMPARE(entry->toPlainText(), Prefix + QStringLiteral("Xabc"));
        // The control key itself is named in the program's box.
        auto boxes = write.Layer.Boxes.size();
        QTest::keyClick(entry, Qt::Key_Control);
        QCOMPARE(write.Layer.Boxes.size(), boxes + 1);
        QCOMPARE(write.Layer.Boxes.back().Title, std::string("Invalid Key"));

        QTest::keyClick(entry, Qt::Key_End);
        QTest::keyClicks(entry, QStringLiteral(" I feel "));
        const int count = write.Logic->State().EntryCount;
        boxes = write.Layer.Boxes.size();
        for (const char* typed : {"\U0001F600", "\u0151", "\u03B1"}) {
            QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUtf8(typed));
            QApplication::sendEvent(entry, &key);
        }
        QInputMethodEvent composed;
        composed.setCommitString(QStringLiteral("\u0436"));
        QApplication::sendEvent(entry, &composed);
        QCOMPARE(write.Layer.Boxes.size(), boxes + 4);
        QCOMPARE(write.Layer.Boxes.back().Title, std::string("Invalid Key"));
        QCOMPARE(entry->toPlainText(), Prefix + QStringLiteral("Xabc I feel "));
        QCOMPARE(write.Logic->State().EntryCount, count);
        QTest::keyClicks(entry, QStringLiteral("about my new home today."));
        QTest::keyClick(entry, Qt::Key_Return);
        QVERIFY(!write.Box(MirrorControl::txtResponse)->toPlainText().contains("too short"));
    }

    void IdeasAreTypedIntoTheListAndSelectChoosesOne() {
        WriteWindow write;
        write.Click(MirrorControl::cmdSuppose);
        auto* entry = write.Box(MirrorControl::txtMirror);
        QTest::keyClicks(entry, QStringLiteral("What could make the mornings easier for us?"));
        QTest::keyClick(entry, Qt::Key_Return);
        auto* list = write.Box(MirrorControl::txtAnalyze);
        QVERIFY(list->isVisible());
        QVERIFY(!entry->isEnabled());
        QCOMPARE(write.Window->focusWidget(), list);
        QVERIFY(list->toPlainText().endsWith(QStringLiteral("\n\nEntry 1 >> ")));
        auto* mark = static_cast<QLabel*>(write.Window->Widget(MirrorControl::lblRemS));
        QCOMPARE(mark->text(), QStringLiteral("X"));

        // The prompt is out of reach of the caret; the idea is not.
        QTest::keyClicks(list, QStringLiteral("pack lunches the night before"));
        QTest::keyClick(list, Qt::Key_Home);
        QTest::keyClick(list, Qt::Key_Backspace);
        QTest::keyClicks(list, QStringLiteral("We "));
        QVERIFY(list->toPlainText().endsWith(
            QStringLiteral("Entry 1 >> We pack lunches the night before")));
        QVERIFY(!mark->isVisible());
        QTest::keyClick(list, Qt::Key_End);
        QTest::keyClick(list, Qt::Key_Return);
        QVERIFY(list->toPlainText().endsWith(QStringLiteral(
            "\n\tEntry 1: \u201CWe pack lunches the night before.\u201D\n\nEntry 2 >> ")));

        // A click in the list erases the idea being typed, and nothing else.
        QTest::keyClicks(list, QStringLiteral("walk"));
        QTest::mouseClick(list->viewport(), Qt::LeftButton);
        QVERIFY(list->toPlainText().endsWith(QStringLiteral("Entry 2 >> ")));

        QTest::keyClicks(list, QStringLiteral("leave ten minutes earlier"));
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(write.Caption(MirrorControl::cmdNew), QStringLiteral("Select"));
        write.Click(MirrorControl::cmdNew);
        QVERIFY(!list->isVisible());
        QCOMPARE(write.Caption(MirrorControl::cmdNew), QStringLiteral("Finish"));
        QVERIFY(static_cast<QPushButton*>(write.Window->Widget(MirrorControl::cmdConverse))
                    ->property("pressedIn")
                    .toBool());
        const QString outcome = write.Box(MirrorControl::txtResponse)->toPlainText();
        QVERIFY(outcome.startsWith(QLatin1Char('\t')) && outcome.size() > 20);
        QCOMPARE(write.Window->focusWidget(), entry);
    }

    // A keyboard user reaches every command by Alt and the letter its caption underlines, while
    // the entry box keeps the focus and its own rules for Tab and the letters typed.
    void EveryCommandAnswersToAltAndItsLetter() {
        WriteWindow write;
        QApplication::setActiveWindow(write.Window.get());
        QVERIFY(QTest::qWaitForWindowActive(write.Window.get()));
        auto* entry = write.Box(MirrorControl::txtMirror);
        const auto alt = [](Qt::Key key) {
            QTest::keyClick(QApplication::focusWidget(), key, Qt::AltModifier);
        };
        const auto count = [](std::size_t number) { return QString::number(number); };

        alt(Qt::Key_C);
        QTRY_COMPARE(entry->toPlainText(), Prefix);
        QCOMPARE(QApplication::focusWidget(), entry);
        QTest::keyClick(entry, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), entry);
        QTest::keyClicks(entry, QStringLiteral("I keep"));
        alt(Qt::Key_W);
        QTRY_COMPARE(entry->toPlainText(), Prefix);
        // Save has nothing to save yet: its letter does nothing, as a click would.
        alt(Qt::Key_S);
        QTest::qWait(150);
        QCOMPARE(write.Library.Listing().LibraryCount, 0);
        QCOMPARE(entry->toPlainText(), Prefix);

        QTest::keyClicks(entry, QStringLiteral("I keep the old letters in a box for a reason."));
        QTest::keyClick(entry, Qt::Key_Return);
        if (write.Caption(MirrorControl::cmdRemove) == QStringLiteral("Keep")) {
            alt(Qt::Key_E);
        }
        QTRY_COMPARE(write.Caption(MirrorControl::cmdRemove), QStringLiteral("Remove"));

        // Each step: the key, and what the user sees once its command has run.
        struct Step {
            Qt::Key Key;
            std::function<QString()> Seen;
            QString Expected;
        };
        const std::vector<Step> steps = {
            {Qt::Key_F, [&] { return write.Caption(MirrorControl::cmdNew); }, "New"},
            {Qt::Key_O, [&] { return write.Caption(MirrorControl::cmdNew); }, "Finish"},
            {Qt::Key_F, [&] { return write.Caption(MirrorControl::cmdRemove); }, "Continue"},
            {Qt::Key_P, [&] { return count(write.Layer.Printed.size()); }, "1"},
            {Qt::Key_I, [&] { return count(write.Layer.EditorTexts.size()); }, "1"},
            {Qt::Key_S, [&] { return count(write.Library.Listing().LibraryCount); }, "1"},
        };
        for (const Step& step : steps) {
            QStringList keys = AccessKeysOnShow(*write.Window);
            QVERIFY2(!keys.contains(QString()) && keys.removeDuplicates() == 0,
                     qPrintable(keys.join(", ")));
            alt(step.Key);
            QTRY_COMPARE(step.Seen(), step.Expected);
        }
        // Saving began a new Dialogue.
        QTRY_COMPARE(write.Window->windowTitle(), QStringLiteral("Veyrant Sagrel -- New Dialogue"));
    }
};

QTEST_MAIN(MirrorWindowTest)
#include "MirrorWindowTest.moc"
