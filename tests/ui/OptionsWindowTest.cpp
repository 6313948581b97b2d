#include "ui/OptionsWindow.h"

#include "core/Cp1252.h"
#include "core/Text.h"
#include "core/WholeFile.h"
#include "storage/LibraryFileName.h"
#include "storage/LibraryStatus.h"
#include "support/FakeClock.h"
#include "support/FakeWindowLayer.h"
#include "support/TempFolder.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QtTest>

namespace veyrant {

// The Library Options window as the user meets it: a Library of three Dialogues, opened with
// the settings of a first start.
class OptionsWindowTest : public QObject {
    Q_OBJECT

private:
    struct Program {
        testing::TempFolder Temp;
        AppFolder Folder{Temp.Path()};
        Settings UserSettings;
        testing::FakeClock Clock;
        testing::FakeWindowLayer Windows;
        DialogueLibrary Library{Folder, UserSettings, Clock, Windows};
        int Exits = 0;
        Options Logic{Library, UserSettings, Windows, [this] { ++Exits; }, [] {}};
        OptionsWindow Window{Logic};

        Program() {
            std::filesystem::create_directories(Folder.Isp());
            std::filesystem::create_directories(Folder.Dlg());
            for (const int day : {18, 20, 21}) {
                const auto name = MakeFileName({2026, 11, day, 20, 15, 0});
                WriteWholeFile(Folder.Isp() / name, "\tA seed waits for its season.");
                WriteWholeFile(Folder.Dlg() / name, "\r\n\r\n\t\x93Now?\x94\r\n\tSoon.");
            }
            Window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&Window));
        }

        template <typename Widget>
        Widget* Find(const char* name) {
            return Window.findChild<Widget*>(name);
        }
    };

    static void SaveShot(QWidget& widget, const QString& path) {
        QVERIFY(widget.grab().save(path));
        qInfo("screenshot: %s", qPrintable(path));
    }

private slots:
    void opensWithTheSettingsAndTheFocusOnCancel() {
        Program program;
        QCOMPARE(program.Find<QLineEdit>("txtSetSave")->text(), QString("30"));
        QCOMPARE(program.Find<QLineEdit>("txtSetDays")->text(), QString("21"));
        QVERIFY(!program.Find<QCheckBox>("Check1")->isChecked());
        QCOMPARE(program.Find<QLabel>("lblSetSave")->text(),
                 QString("Set maximum saved &files between 1 and 99 files"));
        QCOMPARE(program.Find<QLabel>("Label4")->text(),
                 QString("To delete every Dialogue at once, click 'Clean "
                         "Library'."));
        QVERIFY(program.Find<QPushButton>("cmdClean")->isEnabled());
        QVERIFY(program.Find<QPushButton>("cmdCancel")->hasFocus());
        SaveShot(program.Window, "/tmp/options-window.png");
    }

    void typedLimitsTakeDigitsOnlyAndOkClampsThem() {
        Program program;
        // Alt+F reaches the files box by its label.
        QTest::keyClick(&program.Window, Qt::Key_F, Qt::AltModifier);
        auto* files = program.Find<QLineEdit>("txtSetSave");
        QVERIFY(files->hasFocus());
        QVERIFY(program.Find<QPushButton>("cmdOK")->isDefault());
        files->selectAll();
        QTest::keyClicks(files, "x5y07");
        QCOMPARE(files->text(), QString("50"));
        QCOMPARE(program.UserSettings.MaxLibraryFiles, 50);
        // Typing keeps the focus where the user is.
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
        QCOMPARE(QString::fromStdString(program.Windows.Boxes[0].Title),
                 QString("Delete Dialogues"));
        QCOMPARE(program.Exits, 0);
        QCOMPARE(files->text(), QString("30"));
        QCOMPARE(days->text(), QString("21"));

        days->selectAll();
        QTest::keyClicks(days, "2");
        QTest::mouseClick(program.Find<QPushButton>("cmdOK"), Qt::LeftButton);
        QCOMPARE(program.UserSettings.MaxLibraryDays, 3);
        QCOMPARE(program.Exits, 1);
    }

    void escapeRestoresGuestModeOnlyAndEnds() {
        Program program;
        QTest::keyClick(&program.Window, Qt::Key_G, Qt::AltModifier);
        // A mnemonic clicks a check box after a short show of the press.
        QTRY_VERIFY(program.Find<QCheckBox>("Check1")->isChecked());
        QCOMPARE(program.UserSettings.GuestMode, 1);
        auto* files = program.Find<QLineEdit>("txtSetSave");
        files->selectAll();
        QTest::keyClicks(files, "0");
        QTest::keyClick(&program.Window, Qt::Key_Escape);
        QCOMPARE(program.UserSettings.GuestMode, 0);
        QCOMPARE(program.UserSettings.MaxLibraryFiles, 0);
        QCOMPARE(program.Exits, 1);
    }

    void cleanEmptiesTheLibrary() {
        Program program;
        QTest::mouseClick(program.Find<QPushButton>("cmdClean"), Qt::LeftButton);
        QCOMPARE(program.Find<QLabel>("Label4")->text(),
                 QString("All Dialogues have been deleted."));
        QVERIFY(!program.Find<QPushButton>("cmdClean")->isEnabled());
        QVERIFY(program.Find<QPushButton>("cmdCancel")->hasFocus());
        QVERIFY(std::filesystem::is_empty(program.Folder.Isp()));
        SaveShot(program.Window, "/tmp/options-window-cleaned.png");
    }

    // The Write window shows the status under the Suggestion in a read-only box; this is a
    // preview of that box at its opening size.
    void statusPanelPreview() {
        Program program;
        program.Library.ScanLibrary();
        const std::string text = "Take one small step toward what you fear." + std::string(CrLf) +
                                 std::string(CrLf) +
                                 GenLibStatus(program.Library.Listing(), program.UserSettings);
        QPlainTextEdit panel;
        panel.setReadOnly(true);
        // A paragraph's leading tab indents it by a few characters, not by Qt's 80 pixels.
        panel.setTabStopDistance(panel.fontMetrics().horizontalAdvance(QStringLiteral("0000")));
        panel.setPlainText(QString::fromStdU16String(Cp1252ToUtf16(text)));
        panel.resize(560, 220);
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        QVERIFY(panel.toPlainText().contains("You have 3 Dialogues saved in the Library."));
        SaveShot(panel, "/tmp/status-panel.png");
    }
};

} // namespace veyrant

QTEST_MAIN(veyrant::OptionsWindowTest)
#include "OptionsWindowTest.moc"
