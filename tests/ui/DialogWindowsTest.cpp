// The small windows as the user meets them (banner, Utilities, Display Size, Library Options) and
// the window layer under them: boxes, faces, screen, windows and timers.

#include "core/WholeFile.h"
#include "storage/LibraryFileName.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "support/SavedDialogue.h"
#include "support/TempFolder.h"
#include "ui/BannerWindow.h"
#include "ui/OptionsWindow.h"
#include "ui/QtWindowLayer.h"
#include "ui/ResizeWindow.h"
#include "ui/UtilityWindow.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QtTest>

namespace veyrant {

using namespace Qt::StringLiterals;

namespace {

template <typename Window>
void Show(Window& window) {
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
}

struct Utilities {
    Utilities() { Show(Window); }
    testing::FakeWindowLayer Windows;
    int Exits = 0;
    Utility Logic{Windows, "4.1.26.11.22", "2026", [this] { ++Exits; }};
    UtilityWindow Window{Logic, 1.0};
};

struct DisplaySize {
    explicit DisplaySize(std::int16_t option) {
        UserSettings.DisplayOption = option;
        Show(Window);
    }
    QRadioButton* Choice(const char* name) { return Window.findChild<QRadioButton*>(name); }
    testing::FakeWindowLayer Windows;
    Settings UserSettings;
    Preferences UserPreferences;
    int Exits = 0;
    Resize Logic{UserSettings, UserPreferences, Windows, [this] { ++Exits; }};
    ResizeWindow Window{Logic, 1.0};
};

// The Library Options window over a Library of three Dialogues, with a first start's settings.
struct LibraryOptions {
    LibraryOptions() {
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
    testing::TempFolder Temp;
    AppFolder Folder{Temp.Path()};
    Settings UserSettings;
    testing::FakeClock Clock;
    testing::FakeWindowLayer Windows;
    DialogueLibrary Library{Folder, UserSettings, Clock, Windows};
    int Exits = 0;
    Options Logic{Library, UserSettings, Windows, [this] { ++Exits; }, [] {}};
    OptionsWindow Window{Logic};
};

} // namespace

class DialogWindowsTest : public QObject {
    Q_OBJECT

private slots:
    void bannerStandsAboveTheMiddle() {
        testing::FakeWindowLayer windows;
        BannerWindow banner(windows);
        QCOMPARE(banner.geometry(), QRect((1920 - 512) / 2, int((1080 - 302) / 2.3), 512, 302));
        QVERIFY(banner.windowFlags().testFlag(Qt::FramelessWindowHint));
    }

    void utilityButtonsLeadOnByTheirKeysAndAboutEnds() {
        for (const auto& [key, shown] :
             {std::pair{Qt::Key_L, "show Options"}, std::pair{Qt::Key_S, "show Resize"}}) {
            Utilities program;
            QTest::keyClick(&program.Window, key, Qt::AltModifier);
            QTRY_COMPARE(program.Windows.WindowEvents.size(), std::size_t{2});
            QCOMPARE(program.Windows.WindowEvents[1], std::string(shown));
            QCOMPARE(program.Exits, 0);
        }
        Utilities about;
        QCOMPARE(about.Window.windowTitle(), QString("Veyrant Sagrel Utilities"));
        QVERIFY(about.Window.findChild<QPushButton*>("cmdOptions")->isDefault());
        QTest::mouseClick(about.Window.findChild<QPushButton*>("cmdAbout"), Qt::LeftButton);
        QCOMPARE(about.Windows.Boxes.at(0).Title, std::string("About the Veyrant Sagrel Program"));
        QCOMPARE(about.Exits, 1);
    }

    void displaySizeStoresTheChoiceAndCancelPutsItBack() {
        DisplaySize program(1);
        QVERIFY(program.Choice("Option1")->isChecked() && program.Choice("Option1")->hasFocus());
        QCOMPARE(program.Choice("Option4")->text(),
                 QString("90% for 12\" display, 640x480 (not recomnd)"));
        // The arrow key moves the tick and stores it at once.
        QTest::keyClick(program.Choice("Option1"), Qt::Key_Down);
        QCOMPARE(program.UserSettings.DisplayOption, 2);
        QTest::mouseClick(program.Window.findChild<QCheckBox*>("chkSpelling"), Qt::LeftButton);
        QVERIFY(!program.UserPreferences.SpellingMarks);
        QTest::keyClick(&program.Window, Qt::Key_Escape);
        QCOMPARE(program.UserSettings.DisplayOption, 1);
        QVERIFY(program.UserPreferences.SpellingMarks && program.Choice("Option1")->isChecked());
        QCOMPARE(program.Exits, 1);

        DisplaySize ok(0);
        QTest::mouseClick(ok.Choice("Option3"), Qt::LeftButton);
        QTest::keyClick(&ok.Window, Qt::Key_O, Qt::AltModifier);
        QTRY_COMPARE(ok.Exits, 1);
        QCOMPARE(ok.UserSettings.DisplayOption, 3);
    }

    void optionsTakeDigitsOnlyAndOkClampsThem() {
        LibraryOptions program;
        QCOMPARE(program.Find<QLabel>("lblSetSave")->text(),
                 QString("Set maximum saved &files between 1 and 99 files"));
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
        QCOMPARE(program.Windows.Boxes.at(0).Title, std::string("Delete Dialogues"));
        QCOMPARE(program.Exits, 0);
        QCOMPARE(files->text() + days->text(), QString("3021"));

        days->selectAll();
        QTest::keyClicks(days, "2");
        QTest::mouseClick(program.Find<QPushButton>("cmdOK"), Qt::LeftButton);
        QCOMPARE(program.UserSettings.MaxLibraryDays, 3);
        QCOMPARE(program.Exits, 1);
    }

    void optionsEscapeRestoresGuestModeOnlyAndCleanEmptiesTheLibrary() {
        LibraryOptions program;
        QTest::keyClick(&program.Window, Qt::Key_G, Qt::AltModifier);
        // A mnemonic clicks a check box after a short show of the press.
        QTRY_COMPARE(program.UserSettings.GuestMode, 1);
        program.Find<QLineEdit>("txtSetSave")->selectAll();
        QTest::keyClicks(program.Find<QLineEdit>("txtSetSave"), "0");
        QTest::keyClick(&program.Window, Qt::Key_Escape);
        QCOMPARE(program.UserSettings.GuestMode, 0);
        QCOMPARE(program.UserSettings.MaxLibraryFiles, 0);
        QCOMPARE(program.Exits, 1);

        LibraryOptions clean;
        QTest::mouseClick(clean.Find<QPushButton>("cmdClean"), Qt::LeftButton);
        QCOMPARE(clean.Find<QLabel>("Label4")->text(), QString("All Dialogues have been deleted."));
        QVERIFY(!clean.Find<QPushButton>("cmdClean")->isEnabled());
        QVERIFY(clean.Find<QPushButton>("cmdCancel")->hasFocus());
        QVERIFY(std::filesystem::is_empty(clean.Folder.Isp()));
    }

    void messageBoxShowsTheProgramsTextAsQtText() {
        // The entry quotes are Windows-1252 147 and 148; paragraphs are parted by CR LF.
        const auto box = BuildMessageBox({"Change Font Size", "\x93Why?\x94\r\n\r\nSee \xe9t\xe9.",
                                          MessageIcon::Question, MessageButtons::YesNoCancel, 2});
        QCOMPARE(box->windowTitle(), u"Change Font Size"_s);
        QCOMPARE(box->text(), QString::fromUtf8("\u201cWhy?\u201d\n\nSee \u00e9t\u00e9."));
        QCOMPARE(box->icon(), QMessageBox::Question);
        QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        QCOMPARE(static_cast<QAbstractButton*>(box->defaultButton()), box->button(QMessageBox::No));
        QCOMPARE(box->escapeButton(), box->button(QMessageBox::Cancel));
        const std::pair<MessageIcon, QMessageBox::Icon> icons[] = {
            {MessageIcon::Stop, QMessageBox::Critical},
            {MessageIcon::Warning, QMessageBox::Warning},
            {MessageIcon::Information, QMessageBox::Information},
            {MessageIcon::None, QMessageBox::NoIcon},
        };
        for (const auto& [icon, shown] : icons) {
            const auto single = BuildMessageBox({"t", "x", icon, MessageButtons::Ok, 1});
            QCOMPARE(single->icon(), shown);
            QCOMPARE(single->standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
            QCOMPARE(static_cast<QAbstractButton*>(single->defaultButton()),
                     single->button(QMessageBox::Ok));
        }
    }

    void onlyRealFacesCountAndTheScreenIsMeasuredInTwips() {
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
    }

    void windowsLoadHiddenShowAndUnloadAndTimersRunUntilStopped() {
        QtWindowLayer windows;
        int built = 0;
        windows.RegisterWindow(WindowId::Banner, [&] {
            ++built;
            return new QWidget;
        });
        windows.LoadWindow(WindowId::Banner);
        QVERIFY(windows.Window(WindowId::Banner) != nullptr);
        QVERIFY(!windows.IsWindowVisible(WindowId::Banner));
        windows.ShowWindow(WindowId::Banner);
        QVERIFY(windows.IsWindowVisible(WindowId::Banner));
        windows.UnloadWindow(WindowId::Banner);
        QVERIFY(windows.Window(WindowId::Banner) == nullptr);
        windows.ShowWindow(WindowId::Banner);
        QCOMPARE(built, 2);
        // A window with no form of its own is simply absent.
        windows.ShowWindow(WindowId::Back);
        QVERIFY(!windows.IsWindowVisible(WindowId::Back));

        int fired = 0;
        windows.SetTimerHandler(TimerId::MirrorTimer1, [&] {
            ++fired;
            windows.StopTimer(TimerId::MirrorTimer1);
        });
        windows.StartTimer(TimerId::MirrorTimer1, 10);
        QTRY_COMPARE(fired, 1);
        QTest::qWait(50);
        QCOMPARE(fired, 1);
    }
};

} // namespace veyrant

QTEST_MAIN(veyrant::DialogWindowsTest)
#include "DialogWindowsTest.moc"
