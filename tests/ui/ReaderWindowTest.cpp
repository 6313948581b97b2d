// The Read window on a real (offscreen) screen: each library opens with the program's own
// content, and the keys step through it as the user would.

#include "ui/ReaderWindow.h"

#include "app/Application.h"
#include "core/Cp1252.h"
#include "core/Random.h"
#include "core/WholeFile.h"
#include "reader/FixedLibrary.h"
#include "shell/DisplayScale.h"
#include "storage/LibraryFileName.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "support/SavedDialogue.h"
#include "support/TempFolder.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QtTest>
#include <filesystem>
#include <memory>

using namespace veyrant;
using enum ReaderControl;

using namespace Qt::StringLiterals;

namespace {

// Forty pairs, so that the hit at the end is found far below the top of the text.
std::string LongDialogue() {
    std::string text;
    for (int pair = 0; pair < 40; ++pair) {
        text += "\r\n\r\n\t\x93Where is it?\x94\r\n\tIn the reeds.";
    }
    return text + "\r\n\r\n\t\223And the Heron?\224";
}

struct ReadWindow {
    ReadWindow() : App(AppFolder{Temp / "app"}, Temp / "program", Clock, Draws, Layer) {
        std::filesystem::create_directories(App.Folder.Exe());
        SetDisplayScale(1, App.Scale);
        LoadLibraries(App.Libraries);
        for (auto* library :
             {&App.Libraries[LibraryId::Information], &App.Libraries[LibraryId::Knowledge],
              &App.Libraries[LibraryId::Advanced]}) {
            BuildLibraryIndex(*library);
        }
    }

    void Open(int library) {
        App.Links.BeginOpening();
        App.Links.OpenLibrary(static_cast<LibraryId>(library));
        Window = std::make_unique<ReaderWindow>(App, *App.Read);
        Window->show();
        Window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(Window.get()));
        Window->Render();
    }
    void Key(Qt::Key key) { QTest::keyClick(Window.get(), key); }
    QString Title() const { return Window->windowTitle(); }
    QString Selected() const { return Spin()->textCursor().selectedText(); }
    QString Caption(ReaderControl control) const {
        return static_cast<QPushButton*>(Window->Widget(control))->text();
    }
    QListWidget* List() const { return static_cast<QListWidget*>(Window->Widget(List1)); }
    QPlainTextEdit* Spin() const { return static_cast<QPlainTextEdit*>(Window->Widget(txtSpin)); }
    QLineEdit* SearchBox() const { return static_cast<QLineEdit*>(Window->Widget(txtSearch)); }
    void Click(ReaderControl button) { QTest::mouseClick(Window->Widget(button), Qt::LeftButton); }
    // Types into the search box as the user does, and presses Enter there.
    void SearchFor(const QString& text) {
        Click(cmdSearch);
        QVERIFY(SearchBox()->isEnabled());
        QVERIFY(SearchBox()->hasFocus());
        QTest::keyClicks(SearchBox(), text);
        QCOMPARE(Caption(cmdSearch), u"< Go >"_s);
        QTest::keyClick(SearchBox(), Qt::Key_Return);
    }
    // The hit is the text selected in the text box, and it stands within the box's view.
    bool HitInView() const {
        const QRect caret = Spin()->cursorRect();
        return Spin()->textCursor().hasSelection() &&
               Spin()->viewport()->rect().contains(caret.center());
    }
    void SaveDialogue(const DateTime& when, const std::string& inspiration,
                      const std::string& dialogue) {
        testing::PutDialogue(App.Folder, when, inspiration, dialogue, &Clock);
    }

    testing::TempFolder Temp;
    testing::FakeWindowLayer Layer;
    testing::FakeClock Clock;
    Random Draws;
    Application App;
    std::unique_ptr<ReaderWindow> Window;
};

} // namespace

class ReaderWindowTest : public QObject {
    Q_OBJECT

private slots:
    // Index-1, a Section, its first Topic split and expanded, and back to Index-1 by Esc.
    void fixedLibrariesStepWithKeys_data() {
        QTest::addColumn<int>("library");
        QTest::addColumn<QString>("name");
        QTest::newRow("Information") << 2 << u"Veyrant Information Library"_s;
        QTest::newRow("Knowledge") << 3 << u"Veyrant Knowledge Library"_s;
        QTest::newRow("Advanced") << 4 << u"Veyrant Advanced Knowledge Library"_s;
    }
    void fixedLibrariesStepWithKeys() {
        QFETCH(int, library);
        QFETCH(QString, name);
        ReadWindow read;
        read.Open(library);
        const auto& lib = read.App.Libraries[static_cast<LibraryId>(library)];
        QCOMPARE(read.Title(), name);
        QCOMPARE(read.List()->count(), lib.LastSection + 1);
        QCOMPARE(read.Caption(cmdNext), u"First"_s);

        read.Key(Qt::Key_Down);
        QVERIFY(read.Title().startsWith(name + u" -- 1/"_s));
        QCOMPARE(read.List()->count(), lib.LastRow + 1);
        QCOMPARE(read.List()->currentRow(), 0);
        QVERIFY(read.List()->isVisible());
        read.Key(Qt::Key_Down);
        QVERIFY(read.Title().startsWith(name + u" -- 2/"_s));
        QVERIFY(read.List()->isVisible());
        read.Key(Qt::Key_Space);
        QVERIFY(!read.List()->isVisible());
        QVERIFY(read.Spin()->toPlainText().startsWith(
            QString::fromStdString(Cp1252ToUtf8(CleanTitle(lib.Titles[1])))));
        read.Key(Qt::Key_Space);
        read.Key(Qt::Key_Escape);
        QCOMPARE(read.Caption(cmdSelect), u"< Index 1 >"_s);
        QCOMPARE(read.List()->count(), lib.LastSection + 1);
        read.Key(Qt::Key_Return);
        QCOMPARE(read.Caption(cmdSelect), u"< Index 2 >"_s);
    }

    // A search of the Knowledge Library typed into the real box: the hit is selected in the
    // text and scrolled into view, Enter steps on, and a word not there ends in "No text found".
    void searchesAFixedLibrary() {
        ReadWindow read;
        read.Open(3);
        read.SearchFor(u"wisdom"_s);
        QCOMPARE(read.Caption(cmdSearch), u"< Next >"_s);
        QCOMPARE(read.Selected().toLower(), u"wisdom"_s);
        QVERIFY(read.HitInView());
        QVERIFY(read.Title().startsWith(u"Veyrant Knowledge Library -- "_s));
        QVERIFY(read.SearchBox()->hasFocus());
        const int first = read.Spin()->textCursor().selectionStart();
        const QString firstTitle = read.Title();
        QTest::keyClick(read.SearchBox(), Qt::Key_Return);
        QVERIFY(read.Title() != firstTitle || read.Spin()->textCursor().selectionStart() > first);
        QCOMPARE(read.Selected().toLower(), u"wisdom"_s);
        QVERIFY(read.HitInView());

        // The window toggle keeps the hit selected in the expanded text.
        read.Click(cmdWindow);
        QVERIFY(!read.List()->isVisible());
        QCOMPARE(read.Selected().toLower(), u"wisdom"_s);
        QVERIFY(read.HitInView());

        // A click on the box starts a new search.
        QTest::mouseClick(read.SearchBox(), Qt::LeftButton);
        QCOMPARE(read.Caption(cmdSearch), u"Enter >>"_s);
        QCOMPARE(read.SearchBox()->text(), QString());
        QCOMPARE(read.Title(), u"Veyrant Knowledge Library -- Search Text"_s);
        QTest::keyClicks(read.SearchBox(), u"xylophone zebra"_s);
        QTest::keyClick(read.SearchBox(), Qt::Key_Enter);
        QCOMPARE(read.SearchBox()->text(), u"No text found"_s);
        QCOMPARE(read.Caption(cmdSearch), u"New"_s);
        read.Key(Qt::Key_Escape);
        QCOMPARE(read.Caption(cmdSearch), u"Search"_s);
        QVERIFY(!read.SearchBox()->isEnabled());
    }

    // The Dialogue Library steps latest first, and a search of all Dialogues opens the one it
    // finds, latest to earliest, with the hit selected.
    void dialogueLibraryStepsLatestFirstAndIsSearched() {
        ReadWindow read;
        read.Open(1);
        QCOMPARE(read.Title(), u"Veyrant Dialogue Library -- No Dialogues Saved"_s);
        QVERIFY(!read.Window->Widget(cmdNext)->isEnabled());
        read.App.Links.CloseLibrary();
        read.SaveDialogue({2026, 11, 12, 9, 0, 0}, "\tA heron by the water.", LongDialogue());
        read.SaveDialogue({2026, 11, 18, 9, 0, 0}, "\tA path.", "\r\n\r\n\t\x93Why?\x94\r\n\tOn.");
        read.SaveDialogue({2026, 11, 21, 20, 15, 0}, "\tStones.",
                          "\r\n\r\n\t\x93No.\x94\r\n\tYes.");
        read.Open(1);
        QCOMPARE(read.List()->count(), 3);
        read.Key(Qt::Key_PageDown);
        QCOMPARE(read.Title(),
                 QStringLiteral("Veyrant Dialogue -- 3/3 -- Saturday, 8:15 pm, November 21, 2026 "
                                "-- 1/21 Days Old/Max"));
        for (const char* shown : {"Veyrant Dialogue -- 2/3", "Veyrant Dialogue -- 1/3"}) {
            read.Key(Qt::Key_PageDown);
            QVERIFY(read.Title().startsWith(QString::fromLatin1(shown)));
        }
        QVERIFY(!read.Window->Widget(cmdNext)->isEnabled());
        read.App.Links.CloseLibrary();
        read.Open(1);
        read.SearchFor(u"heron?"_s);
        QVERIFY(read.Title().startsWith(u"Veyrant Dialogue -- 1/3"_s));
        QCOMPARE(read.Selected(), u"Heron?"_s);
        QVERIFY(read.HitInView());
        QCOMPARE(read.List()->currentRow(), 2);
        QTest::keyClick(read.SearchBox(), Qt::Key_Return);
        QCOMPARE(read.SearchBox()->text(), u"Search complete"_s);
        read.Click(cmdSelect);
        QVERIFY(read.Title().startsWith(u"Veyrant Dialogue -- 1/3"_s));
        QCOMPARE(read.Caption(cmdSelect), u"< Index >"_s);
    }

    // Merge fills the window with the Section's Topics under a busy pointer; Mark Exit closes
    // the library with its place kept.
    void mergeFillsTheWindowAndMarkExitCloses() {
        ReadWindow read;
        read.Open(3);
        // The window, its instruction line and its buttons wear the Read window's grey.
        const QImage shot = read.Window->grab().toImage();
        for (const auto control : {ReaderControl::Window, txtNote, cmdExitM}) {
            const QWidget* widget = read.Window->Widget(control);
            const QPoint inside = widget->mapTo(read.Window.get(), QPoint(3, widget->height() / 2));
            QCOMPARE(shot.pixelColor(inside), QColor(190, 190, 196));
        }
        read.Key(Qt::Key_Down);
        const QRect split = read.Spin()->geometry();
        QTest::mouseClick(read.Window->Widget(cmdPrint), Qt::LeftButton);
        QVERIFY(read.Title().contains(u" -- Merged Essay -- "_s));
        QVERIFY(!read.List()->isVisible());
        QVERIFY(read.Spin()->isVisible());
        QVERIFY(read.Spin()->geometry().top() < split.top());
        QVERIFY(read.Spin()->geometry().height() > split.height());
        QVERIFY(read.Spin()->toPlainText().startsWith(QString::fromStdString(
            Cp1252ToUtf8(CleanTitle(read.App.Libraries[LibraryId::Knowledge].Titles[1])))));
        QVERIFY(!read.Window->Widget(cmdPrint)->isEnabled());
        QVERIFY(read.Layer.Yields > 0);
        QVERIFY(!read.Layer.Busy);
        // No step takes the keys here: they scroll the long essay.
        QScrollBar* bar = read.Spin()->verticalScrollBar();
        for (const auto key : {Qt::Key_PageDown, Qt::Key_Down}) {
            const int before = bar->value();
            read.Key(key);
            QVERIFY(bar->value() > before);
        }
        read.Key(Qt::Key_End);
        QCOMPARE(bar->value(), bar->maximum());
        read.Key(Qt::Key_Home);
        QCOMPARE(bar->value(), 0);

        QTest::mouseClick(read.Window->Widget(cmdExitM), Qt::LeftButton);
        QCOMPARE(read.App.Reading.ReaderOpen, ReaderOpenState::Closed);
        QVERIFY(!read.Layer.IsWindowVisible(WindowId::Read));
        // The Knowledge Library's line holds its mark at the Section's row.
        const std::string marks = ReadWholeFile(read.App.Folder.Exe() / "Read.ini");
        QCOMPARE(marks.substr(16, 8), std::string(" 1  0 \r\n"));
    }
};

QTEST_MAIN(ReaderWindowTest)
#include "ReaderWindowTest.moc"
