#include "support/FakeWindowLayer.h"
#include "ui/ResizeWindow.h"
#include "ui/UtilityWindow.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>

namespace veyrant {

// The Utilities and Display Size windows as the user meets them, over a recording platform.
class UtilityWindowsTest : public QObject {
    Q_OBJECT

private:
    static void SaveShot(QWidget& widget, const QString& path) {
        QVERIFY(widget.grab().save(path));
        qInfo("screenshot: %s", qPrintable(path));
    }

    struct Utilities {
        testing::FakeWindowLayer Windows;
        int Exits = 0;
        Utility Logic{Windows, "4.1.26.11.22", "2026", [this] { ++Exits; }};
        UtilityWindow Window{Logic, 1.0};

        Utilities() {
            Window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&Window));
        }
    };

    struct DisplaySize {
        testing::FakeWindowLayer Windows;
        Settings UserSettings;
        Preferences UserPreferences;
        int Exits = 0;
        Resize Logic{UserSettings, UserPreferences, Windows, [this] { ++Exits; }};
        ResizeWindow Window{Logic, 1.0};

        explicit DisplaySize(std::int16_t option) {
            UserSettings.DisplayOption = option;
            Window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&Window));
        }
        QRadioButton* Choice(const char* name) { return Window.findChild<QRadioButton*>(name); }
    };

private slots:
    void buttonsLeadOnByTheirKeys() {
        struct Case {
            Qt::Key Key;
            const char* Shown;
        };
        for (const Case& c : {Case{Qt::Key_L, "show Options"}, Case{Qt::Key_S, "show Resize"}}) {
            Utilities program;
            QCOMPARE(program.Window.windowTitle(), QString("Veyrant Sagrel Utilities"));
            QTest::keyClick(&program.Window, c.Key, Qt::AltModifier);
            QTRY_COMPARE(program.Windows.WindowEvents.size(), std::size_t{2});
            QCOMPARE(QString::fromStdString(program.Windows.WindowEvents[1]), QString(c.Shown));
            QCOMPARE(program.Exits, 0);
        }
        Utilities program;
        QCOMPARE(program.Window.findChild<QPushButton*>("cmdAbout")->text(),
                 QString("&About Veyrant Sagrel"));
        QVERIFY(program.Window.findChild<QPushButton*>("cmdOptions")->isDefault());
        SaveShot(program.Window, "/tmp/utility-window.png");
    }

    void aboutAndEscapeEndTheProgram() {
        Utilities about;
        QTest::mouseClick(about.Window.findChild<QPushButton*>("cmdAbout"), Qt::LeftButton);
        QCOMPARE(about.Windows.Boxes.size(), std::size_t{1});
        QCOMPARE(QString::fromStdString(about.Windows.Boxes[0].Title),
                 QString("About the Veyrant Sagrel Program"));
        QCOMPARE(about.Exits, 1);

        Utilities escape;
        QTest::keyClick(&escape.Window, Qt::Key_Escape);
        QCOMPARE(escape.Exits, 1);
        QVERIFY(escape.Windows.Boxes.empty());
        QCOMPARE(QString::fromStdString(escape.Windows.WindowEvents.back()),
                 QString("hide Utility"));
    }

    void displaySizeStoresTheChoiceAndCancelPutsItBack() {
        DisplaySize program(1);
        QCOMPARE(program.Window.windowTitle(), QString("Display Size"));
        QVERIFY(program.Choice("Option1")->isChecked());
        QVERIFY(program.Choice("Option1")->hasFocus());
        QCOMPARE(program.Choice("Option4")->text(),
                 QString("90% for 12\" display, 640x480 (not recomnd)"));
        // The arrow key moves the tick and stores it at once.
        QTest::keyClick(program.Choice("Option1"), Qt::Key_Down);
        QVERIFY(program.Choice("Option2")->isChecked());
        QCOMPARE(program.UserSettings.DisplayOption, 2);
        QTest::mouseClick(program.Window.findChild<QCheckBox*>("chkSpelling"), Qt::LeftButton);
        QVERIFY(!program.UserPreferences.SpellingMarks);
        SaveShot(program.Window, "/tmp/resize-window.png");
        QTest::keyClick(&program.Window, Qt::Key_Escape);
        QCOMPARE(program.UserSettings.DisplayOption, 1);
        QVERIFY(program.UserPreferences.SpellingMarks);
        QVERIFY(program.Choice("Option1")->isChecked());
        QCOMPARE(program.Exits, 1);

        DisplaySize ok(0);
        QTest::mouseClick(ok.Choice("Option3"), Qt::LeftButton);
        QTest::keyClick(&ok.Window, Qt::Key_O, Qt::AltModifier);
        QTRY_COMPARE(ok.Exits, 1);
        QCOMPARE(ok.UserSettings.DisplayOption, 3);
    }
};

} // namespace veyrant

QTEST_MAIN(veyrant::UtilityWindowsTest)
#include "UtilityWindowsTest.moc"
