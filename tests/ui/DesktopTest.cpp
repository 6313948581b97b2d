// The program on a desktop with a window manager, openbox under Xvfb: the pointer rests and
// presses on the windows, the program's real boxes take the clicks, and the window manager tells
// which window stands in front.

#include "ProgramFixtures.h"

#include <QApplication>
#include <QLabel>
#include <QProcess>
#include <QTimer>
#include <QtTest>

using namespace veyrant;

using namespace Qt::StringLiterals;

namespace {

// The program started as the user starts it, the Write window up and the banner gone.
struct Desktop : StartedProgram {
    Desktop() {
        Main(App);
        QTRY_VERIFY_WITH_TIMEOUT(Write != nullptr && Write->isActiveWindow() &&
                                     !Windows.IsWindowVisible(WindowId::Banner),
                                 10000);
    }
    void OpenKnowledge() {
        QTest::mouseClick(Write->Widget(MirrorControl::cmdKnow), Qt::LeftButton);
        QTRY_VERIFY(Read && Read->isActiveWindow());
    }
    QString Note() const {
        return static_cast<QLabel*>(Read->Widget(ReaderControl::txtNote))->text();
    }
};

// Where a window stands in the window manager's stack, counted from the bottom.
qsizetype StackPlace(const QWidget* window) {
    QProcess xprop;
    xprop.start(u"xprop"_s, {u"-root"_s, u"_NET_CLIENT_LIST_STACKING"_s});
    xprop.waitForFinished();
    const QString ids = QString::fromLatin1(xprop.readAllStandardOutput()).section('#', 1);
    return ids.simplified().remove(' ').split(',').indexOf(u"0x%1"_s.arg(window->winId(), 0, 16));
}

} // namespace

class DesktopTest : public QObject {
    Q_OBJECT

private slots:
    // Any button pressed on the bare Write or Read window brings the backdrop back behind it: the
    // window stays in front and keeps the keys. The pointer resting on a button or on the
    // instruction line shows its help there. The font step's box takes the right button's
    // release; the user's next click on the text still works the window. With the Write window
    // minimised, the Read window brought to the front from the task bar shows itself again and
    // takes the keys.
    void theWindowsAnswerThePointerAndComeBackToTheFront() {
        Desktop program;
        for (const bool reading : {false, true}) {
            if (reading) {
                program.OpenKnowledge();
            }
            QWidget* window = reading ? static_cast<QWidget*>(program.Read) : program.Write;
            for (const auto button : {Qt::LeftButton, Qt::RightButton}) {
                QTest::mouseClick(program.Back, Qt::LeftButton);
                QTRY_VERIFY(!program.Back->isVisible());
                QTest::mouseClick(window, button, {}, QPoint(2, 2));
                QTest::qWait(500);
                QVERIFY(program.Back->isVisible());
                QCOMPARE(QApplication::activeWindow(), window);
                const qsizetype back = StackPlace(program.Back);
                QVERIFY(back >= 0 && StackPlace(window) > back);
            }
        }

        const std::pair<ReaderControl, const char*> rests[] = {
            {ReaderControl::cmdNext, "Display the first Section content."},
            {ReaderControl::txtNote, "F1=Help  SpaceBar=Window"},
        };
        for (const auto& [control, help] : rests) {
            QTest::mouseMove(program.Read->Widget(control));
            QTRY_VERIFY_WITH_TIMEOUT(program.Note().startsWith(QString::fromLatin1(help)), 4000);
        }
        auto* spin = static_cast<QPlainTextEdit*>(program.Read->Widget(ReaderControl::txtSpin));
        // The box takes the release, as the pointer's grab gives it on a desktop.
        QTimer::singleShot(
            500, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
        QTest::mousePress(spin->viewport(), Qt::RightButton);
        QCOMPARE(program.App.UserSettings.ReaderFontStep, std::int16_t{2});
        QTest::keyClick(program.Read, Qt::Key_Down);
        QTest::keyClick(program.Read, Qt::Key_Down);
        QVERIFY(program.Read->Widget(ReaderControl::List1)->isVisible());
        QTest::mouseClick(spin->viewport(), Qt::LeftButton);
        QVERIFY(!program.Read->Widget(ReaderControl::List1)->isVisible());

        QVERIFY(program.Windows.IsWindowMinimised(WindowId::Mirror));
        program.Read->showMinimized();
        QTRY_VERIFY(program.Read->isMinimized());
        // On a busy machine the window manager may still be iconifying the window when it is
        // asked to raise it, and then keeps it iconified: the user clicks again, and so does this.
        const auto inFront = [&] {
            return !program.Read->isMinimized() && program.Read->isActiveWindow();
        };
        for (int click = 0; click < 10; ++click) {
            QProcess::execute(u"xdotool"_s,
                              {u"windowactivate"_s, QString::number(program.Read->winId())});
            if (QTest::qWaitFor(inFront, 2000)) {
                break;
            }
        }
        QVERIFY(inFront());
        QTest::keyClick(program.Read, Qt::Key_Down);
        QVERIFY(program.Read->windowTitle().startsWith(u"Veyrant Knowledge Library -- 3/"_s));
    }
};

QTEST_MAIN(DesktopTest)
#include "DesktopTest.moc"
