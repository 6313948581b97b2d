// The windows besides the Write window as the user meets them: the Read window stepping through
// each library by keys, the banner, Display Size and Library Options, and the window layer under
// them.

#include "ProgramFixtures.h"
#include "core/Cp1252.h"
#include "reader/FixedLibrary.h"
#include "support/SavedDialogue.h"
#include "ui/OptionsWindow.h"
#include "ui/ResizeWindow.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QtTest>

namespace veyrant {

using namespace Qt::StringLiterals;
using enum ReaderControl;

namespace {

template <typename Window>
void Show(Window& window) {
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
}

// The Display Size dialog, shown with a display option ticked.
struct DisplaySizeDialog : UtilityDialogs<testing::FakeWindowLayer> {
    explicit DisplaySizeDialog(std::int16_t option) {
        UserSettings.DisplayOption = option;
        Show(Window);
    }
    QRadioButton* Choice(const char* name) { return Window.findChild<QRadioButton*>(name); }
    ResizeWindow Window{DisplaySize, 1.0};
};

// The Library Options window over a Library of three Dialogues, with a first start's settings.
struct OptionsDialog : UtilityDialogs<testing::FakeWindowLayer> {
    OptionsDialog() {
        for (const int day : {18, 20, 21}) {
            testing::PutDialogue(Folder, {2026, 11, day, 20, 15, 0}, "\tA seed.",
                                 "\r\n\r\n\tSoon.");
        }
        Show(Window);
    }
    template <typename Widget>
    Widget* Find(const char* name) {
        return Window.findChild<Widget*>(name);
    }
    OptionsWindow Window{LibraryOptions};
};

// Forty pairs, so that the hit at the end is found far below the top of the text.
std::string LongDialogue() {
    std::string text;
    for (int pair = 0; pair < 40; ++pair) {
        text += "\r\n\r\n\t\x93Where is it?\x94\r\n\tIn the reeds.";
    }
    return text + "\r\n\r\n\t\223And the Heron?\224";
}

// The Read window over the libraries as the program loads them.
struct ReadWindow : FreshApplication {
    ReadWindow() {
        std::filesystem::create_directories(App.Folder.Exe());
        SetDisplayScale(1, App.Scale);
        LoadLibraries(App.Libraries);
        for (const LibraryId id : FixedLibraryIds) {
            BuildLibraryIndex(App.Libraries[id]);
        }
    }

    void Open(int library) {
        App.Links.BeginOpening();
        App.Links.OpenLibrary(static_cast<LibraryId>(library));
        Window = std::make_unique<ReaderWindow>(App, *App.Read);
        Window->show();
        Window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(Window.get()));
        // The window's own answer to coming to the front runs before the first key, as it would.
        QCoreApplication::processEvents();
        Window->Render();
    }
    void Reopen(int library) {
        App.Links.CloseLibrary();
        Open(library);
    }
    void Key(Qt::Key key) { QTest::keyClick(Window.get(), key); }
    QString Title() const { return Window->windowTitle(); }
    QString Selected() const { return Spin()->textCursor().selectedText(); }
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
        QTest::keyClick(SearchBox(), Qt::Key_Return);
    }
    // The hit, in any case, is the text selected in the text box, and it stands within its view.
    bool HitInView(const QString& hit) const {
        return Selected().toLower() == hit &&
               Spin()->viewport()->rect().contains(Spin()->cursorRect().center());
    }
    void SaveDialogue(const DateTime& when, const std::string& inspiration,
                      const std::string& dialogue) {
        testing::PutDialogue(App.Folder, when, inspiration, dialogue, &Clock);
    }

    std::unique_ptr<ReaderWindow> Window;
};

} // namespace

class DialogWindowsTest : public QObject {
    Q_OBJECT

private slots:
    void displaySizeStoresTheChoiceAndCancelPutsItBack() {
        DisplaySizeDialog program(1);
        QVERIFY(program.Choice("Option1")->isChecked() && program.Choice("Option1")->hasFocus());
        // The arrow key moves the tick and stores it at once.
        QTest::keyClick(program.Choice("Option1"), Qt::Key_Down);
        QCOMPARE(program.UserSettings.DisplayOption, 2);
        auto* spelling = program.Window.findChild<QCheckBox*>("chkSpelling");
        QTest::mouseClick(spelling, Qt::LeftButton);
        QVERIFY(!program.UserPreferences.SpellingMarks &&
                program.DisplaySize.Dump().find("Option2 (x)") != std::string::npos &&
                program.DisplaySize.Dump().find("chkSpelling [ ]") != std::string::npos);
        // Escape puts both back and leaves, which ends the program.
        QTest::keyClick(&program.Window, Qt::Key_Escape);
        QCOMPARE(program.UserSettings.DisplayOption, 1);
        QVERIFY(program.Choice("Option1")->isChecked());
        QVERIFY(program.UserPreferences.SpellingMarks && spelling->isChecked() &&
                program.DisplaySize.Dump().find("chkSpelling [x]") != std::string::npos);
        QCOMPARE(program.Windows.WindowEvents.back() + std::to_string(program.Exits),
                 "hide Resize1");

        DisplaySizeDialog ok(0);
        QVERIFY(ok.Choice("Option4")->isChecked());
        QTest::mouseClick(ok.Choice("Option3"), Qt::LeftButton);
        QTest::keyClick(&ok.Window, Qt::Key_O, Qt::AltModifier);
        QTRY_COMPARE(ok.Exits, 1);
        QCOMPARE(ok.UserSettings.DisplayOption, 3);
    }

    void optionsTakeDigitsOnlyOkClampsEscapeRestoresGuestModeAndCleanEmpties() {
        OptionsDialog program;
        QVERIFY(program.Find<QPushButton>("cmdCancel")->hasFocus());
        // Alt+F reaches the files box by its label; typing keeps the focus there.
        QTest::keyClick(&program.Window, Qt::Key_F, Qt::AltModifier);
        auto* files = program.Find<QLineEdit>("txtSetSave");
        QVERIFY(program.Find<QPushButton>("cmdOK")->isDefault());
        files->selectAll();
        QTest::keyClicks(files, "x5y07");
        QCOMPARE(files->text(), QString("50"));
        QCOMPARE(program.UserSettings.MaxLibraryFiles, 50);
        QVERIFY(files->hasFocus());

        QTest::keyClick(&program.Window, Qt::Key_D, Qt::AltModifier);
        auto* days = program.Find<QLineEdit>("txtSetDays");
        days->selectAll();
        QTest::keyClick(days, Qt::Key_Backspace);
        QCOMPARE(program.UserSettings.MaxLibraryDays, 0);
        // Enter is OK: the days clamp to 3, which would delete, so the question comes first.
        program.Windows.Answers = {MessageAnswer::No};
        QTest::keyClick(days, Qt::Key_Return);
        QCOMPARE(program.Windows.Boxes.size(), std::size_t{1});
        QCOMPARE(files->text() + days->text(), QString("3021"));

        days->selectAll();
        QTest::keyClicks(days, "2");
        QTest::mouseClick(program.Find<QPushButton>("cmdOK"), Qt::LeftButton);
        QCOMPARE(program.Exits, 1);

        // Escape restores the Guest Mode only.
        OptionsDialog escape;
        QTest::keyClick(&escape.Window, Qt::Key_G, Qt::AltModifier);
        // A mnemonic clicks a check box after a short show of the press.
        QTRY_COMPARE(escape.UserSettings.GuestMode, 1);
        escape.Find<QLineEdit>("txtSetSave")->selectAll();
        QTest::keyClicks(escape.Find<QLineEdit>("txtSetSave"), "0");
        QTest::keyClick(&escape.Window, Qt::Key_Escape);
        QCOMPARE(escape.UserSettings.GuestMode, 0);
        QCOMPARE(escape.UserSettings.MaxLibraryFiles, 0);
        QCOMPARE(escape.Exits, 1);

        OptionsDialog clean;
        QTest::mouseClick(clean.Find<QPushButton>("cmdClean"), Qt::LeftButton);
        QVERIFY(!clean.Find<QPushButton>("cmdClean")->isEnabled());
        QVERIFY(clean.Find<QPushButton>("cmdCancel")->hasFocus());
        QVERIFY(std::filesystem::is_empty(clean.Folder.Isp()));
    }

    // The window layer under the windows: the program's box as Qt shows it, the font faces the
    // machine really has, and the screen in twips.
    void theWindowLayerShowsBoxesFindsFacesAndMeasuresTheScreen() {
        // The entry quotes are Windows-1252 147 and 148; paragraphs are parted by CR LF.
        const auto box = BuildMessageBox({"Change Font Size", "\x93Why?\x94\r\n\r\nSee \xe9t\xe9.",
                                          MessageIcon::Question, MessageButtons::YesNoCancel, 2});
        QCOMPARE(box->windowTitle(), u"Change Font Size"_s);
        QCOMPARE(box->text(), QString::fromUtf8("\u201cWhy?\u201d\n\nSee \u00e9t\u00e9."));
        QCOMPARE(box->icon(), QMessageBox::Question);
        QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        QCOMPARE(static_cast<QAbstractButton*>(box->defaultButton()), box->button(QMessageBox::No));
        QCOMPARE(box->escapeButton(), box->button(QMessageBox::Cancel));
        for (const auto& [icon, shown] :
             {std::pair{MessageIcon::Stop, QMessageBox::Critical},
              std::pair{MessageIcon::Warning, QMessageBox::Warning},
              std::pair{MessageIcon::Information, QMessageBox::Information},
              std::pair{MessageIcon::None, QMessageBox::NoIcon}}) {
            QCOMPARE(BuildMessageBox({"t", "x", icon, MessageButtons::Ok, 1})->icon(), shown);
        }
        QtWindowLayer windows;
        QVERIFY(windows.HasFontFace("Liberation Serif", false));
        QVERIFY(windows.HasFontFace("liberation serif", true));
        // Fontconfig would hand out a stand-in for any name; that is not the face.
        QVERIFY(!windows.HasFontFace("Veyrant Nonesuch Roman", false));
        QVERIFY(!windows.HasFontFace("Liberation Serif Italic", false));
        const QSize pixels = QGuiApplication::primaryScreen()->size();
        QCOMPARE(QSize(windows.ScreenWidthTwips(), windows.ScreenHeightTwips()), pixels * 15);
        const int narrow = windows.TextWidthTwips("Liberation Serif", 12, false, false, "iii");
        QVERIFY(narrow > 0);
        QVERIFY(windows.TextWidthTwips("Liberation Serif", 12, false, false, "WWW") > 2 * narrow);
        // A window with no form of its own is simply absent.
        windows.ShowWindow(WindowId::Back);
        QVERIFY(!windows.IsWindowVisible(WindowId::Back));
    }

    // The banner stands frameless above the middle of the screen.
    void theBannerStandsAboveTheMiddle() {
        testing::FakeWindowLayer windows;
        BannerWindow banner(windows);
        banner.show();
        QCOMPARE(banner.geometry(), QRect((1920 - 512) / 2, int((1080 - 302) / 2.3), 512, 302));
        QVERIFY(banner.windowFlags().testFlag(Qt::FramelessWindowHint));
    }

    // Index-1, a Section, its first Topic split and expanded, and back to Index-1 by Esc; the
    // window's grey as painted; merge fills the window with the Section's Topics, no step takes
    // the keys there, and they scroll the long essay.
    void fixedLibrariesStepWithKeys_data() {
        QTest::addColumn<int>("library");
        QTest::newRow("Information") << 2;
        QTest::newRow("Knowledge") << 3;
        QTest::newRow("Advanced") << 4;
    }
    void fixedLibrariesStepWithKeys() {
        QFETCH(int, library);
        ReadWindow read;
        read.Open(library);
        const auto& lib = read.App.Libraries[static_cast<LibraryId>(library)];
        const QString name = read.Title();
        // The window, its instruction line and its buttons wear the Read window's grey.
        const QImage shot = read.Window->grab().toImage();
        for (const auto control : {ReaderControl::Window, txtNote, cmdExitM}) {
            const QWidget* widget = read.Window->Widget(control);
            const QPoint inside = widget->mapTo(read.Window.get(), QPoint(3, widget->height() / 2));
            QCOMPARE(shot.pixelColor(inside), QColor(190, 190, 196));
        }
        read.Key(Qt::Key_Down);
        QCOMPARE(read.List()->count(), lib.LastRow + 1);
        read.Key(Qt::Key_Down);
        QVERIFY(read.Title().startsWith(name + u" -- 2/"_s));
        QVERIFY(read.List()->isVisible());
        read.Key(Qt::Key_Space);
        QVERIFY(!read.List()->isVisible());
        QVERIFY(read.Spin()->toPlainText().startsWith(
            QString::fromStdString(Cp1252ToUtf8(CleanTitle(lib.Titles[1])))));
        read.Key(Qt::Key_Space);
        read.Key(Qt::Key_Escape);
        QCOMPARE(read.List()->count(), lib.LastSection + 1);
        read.Key(Qt::Key_Return);
        QCOMPARE(read.List()->count(), lib.LastRow + 1);
        read.Reopen(library);
        read.Key(Qt::Key_Down);
        read.Click(cmdPrint);
        QVERIFY(!read.List()->isVisible());
        QScrollBar* bar = read.Spin()->verticalScrollBar();
        read.Key(Qt::Key_PageDown);
        QVERIFY(bar->value() > 0);
        read.Key(Qt::Key_End);
        QCOMPARE(bar->value(), bar->maximum());
    }

    // The Dialogue Library steps latest first, and a search of all Dialogues opens the one it
    // finds, latest to earliest, with the hit selected. A search of the Knowledge Library: the hit
    // is selected in the text and scrolled into view, Enter steps on, and keypad Enter on a word
    // not there tells so.
    void searchesSelectTheHitInView() {
        ReadWindow read;
        read.SaveDialogue({2026, 11, 12, 9, 0, 0}, "\tA heron by the water.", LongDialogue());
        read.SaveDialogue({2026, 11, 18, 9, 0, 0}, "\tA path.", "\r\n\r\n\t\x93Why?\x94\r\n\tOn.");
        read.SaveDialogue({2026, 11, 21, 20, 15, 0}, "\tStones.",
                          "\r\n\r\n\t\x93No.\x94\r\n\tYes.");
        read.Open(1);
        for (int step = 0; step < 3; ++step) {
            read.Key(Qt::Key_PageDown);
        }
        QVERIFY(read.Title().startsWith(u"Veyrant Dialogue -- 1/3"_s));
        QVERIFY(!read.Window->Widget(cmdNext)->isEnabled());
        read.Reopen(1);
        read.SearchFor(u"heron?"_s);
        QVERIFY(read.Title().startsWith(u"Veyrant Dialogue -- 1/3"_s));
        QCOMPARE(read.Selected(), u"Heron?"_s);
        QVERIFY(read.HitInView(u"heron?"_s));
        QCOMPARE(read.List()->currentRow(), 2);
        read.Reopen(3);
        read.SearchFor(u"wisdom"_s);
        QVERIFY(read.HitInView(u"wisdom"_s));
        QVERIFY(read.SearchBox()->hasFocus());
        const int first = read.Spin()->textCursor().selectionStart();
        const QString firstTitle = read.Title();
        QTest::keyClick(read.SearchBox(), Qt::Key_Return);
        QVERIFY(read.Title() != firstTitle || read.Spin()->textCursor().selectionStart() > first);
        QVERIFY(read.HitInView(u"wisdom"_s));

        // The window toggle keeps the hit selected in the expanded text.
        read.Click(cmdWindow);
        QVERIFY(!read.List()->isVisible());
        QVERIFY(read.HitInView(u"wisdom"_s));

        // A click on the box starts a new search.
        QTest::mouseClick(read.SearchBox(), Qt::LeftButton);
        QCOMPARE(read.SearchBox()->text(), QString());
        QTest::keyClicks(read.SearchBox(), u"xylophone zebra"_s);
        QTest::keyClick(read.SearchBox(), Qt::Key_Enter);
        QCOMPARE(read.SearchBox()->text(), u"No text found"_s);
        read.Key(Qt::Key_Escape);
        QVERIFY(!read.SearchBox()->isEnabled());
    }
};

} // namespace veyrant

QTEST_MAIN(veyrant::DialogWindowsTest)
#include "DialogWindowsTest.moc"
