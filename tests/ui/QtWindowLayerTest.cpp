#include "ui/QtWindowLayer.h"

#include <QAbstractButton>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>

namespace veyrant {

class QtWindowLayerTest : public QObject {
    Q_OBJECT

private slots:
    void MessageBoxShowsTheProgramsTextAsQtText() {
        MessageBoxRequest request;
        request.Title = "Change Font Size";
        // The entry quotes are Windows-1252 147 and 148; paragraphs are parted by CR LF.
        request.Text = "\x93Why?\x94\r\n\r\nSee \xe9t\xe9.";
        request.Icon = MessageIcon::Question;
        request.Buttons = MessageButtons::YesNoCancel;
        request.DefaultButton = 2;
        const auto box = BuildMessageBox(request);
        QCOMPARE(box->windowTitle(), QStringLiteral("Change Font Size"));
        QCOMPARE(box->text(), QString::fromUtf8("\u201cWhy?\u201d\n\nSee \u00e9t\u00e9."));
        QCOMPARE(box->icon(), QMessageBox::Question);
        QCOMPARE(box->standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
        QCOMPARE(static_cast<QAbstractButton*>(box->defaultButton()), box->button(QMessageBox::No));
        QCOMPARE(box->escapeButton(), box->button(QMessageBox::Cancel));
    }

    void MessageBoxIconsAndSingleButtons() {
        const std::pair<MessageIcon, QMessageBox::Icon> icons[] = {
            {MessageIcon::Stop, QMessageBox::Critical},
            {MessageIcon::Warning, QMessageBox::Warning},
            {MessageIcon::Information, QMessageBox::Information},
            {MessageIcon::None, QMessageBox::NoIcon},
        };
        for (const auto& [icon, shown] : icons) {
            const auto box = BuildMessageBox({"t", "x", icon, MessageButtons::Ok, 1});
            QCOMPARE(box->icon(), shown);
            QCOMPARE(box->standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
            QCOMPARE(static_cast<QAbstractButton*>(box->defaultButton()),
                     box->button(QMessageBox::Ok));
        }
    }

    void OnlyRealFacesCount() {
        QtWindowLayer windows;
        QVERIFY(windows.HasFontFace("Liberation Serif", false));
        QVERIFY(windows.HasFontFace("liberation serif", true));
        // Fontconfig would hand out a stand-in for any name; that is not the face.
        QVERIFY(!windows.HasFontFace("Veyrant Nonesuch Roman", false));
        QVERIFY(!windows.HasFontFace("Liberation Serif Italic", false));
    }

    void ScreenIsMeasuredInTwips() {
        QtWindowLayer windows;
        const QSize pixels = QGuiApplication::primaryScreen()->size();
        QCOMPARE(windows.ScreenWidthTwips(), pixels.width() * 15);
        QCOMPARE(windows.ScreenHeightTwips(), pixels.height() * 15);
        const int narrow = windows.TextWidthTwips("Liberation Serif", 12, false, false, "iii");
        const int wide = windows.TextWidthTwips("Liberation Serif", 12, false, false, "WWW");
        QVERIFY(narrow > 0);
        QVERIFY(wide > 2 * narrow);
    }

    void WindowsLoadHiddenShowAndUnload() {
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
        QCOMPARE(built, 1);
        windows.UnloadWindow(WindowId::Banner);
        QVERIFY(windows.Window(WindowId::Banner) == nullptr);
        windows.ShowWindow(WindowId::Banner);
        QCOMPARE(built, 2);
        // A window with no form of its own is simply absent.
        windows.ShowWindow(WindowId::Back);
        QVERIFY(!windows.IsWindowVisible(WindowId::Back));
    }

    void TimersCallTheirHandlerUntilStopped() {
        QtWindowLayer windows;
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

QTEST_MAIN(veyrant::QtWindowLayerTest)
#include "QtWindowLayerTest.moc"
