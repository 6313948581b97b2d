// The program's windows on a real display server: ctest runs this on the offscreen platform, on
// X11 under Xvfb and on Wayland under a headless Weston, and at device scales 1, 1.25 and 2. Each
// window opens, takes keys, closes, and shows its captions whole and its controls named.

#include "ProgramFixtures.h"
#include "ui/OptionsWindow.h"
#include "ui/PrintFlow.h"
#include "ui/ResizeWindow.h"
#include "ui/UtilityWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTimer>
#include <QToolButton>
#include <QtTest>
#include <algorithm>

using namespace veyrant;
using enum MirrorControl;

using namespace Qt::StringLiterals;

namespace {

// The dialogs of the Utilities, loaded and shown through the real window layer.
struct UtilitiesOnScreen : UtilityDialogs<QtWindowLayer> {
    UtilitiesOnScreen() {
        Windows.RegisterWindow(WindowId::Utility,
                               [this] { return new UtilityWindow(Utilities, 1.0); });
        Windows.RegisterWindow(WindowId::Resize,
                               [this] { return new ResizeWindow(DisplaySize, 1.0); });
        Windows.RegisterWindow(WindowId::Options,
                               [this] { return new OptionsWindow(LibraryOptions); });
    }
};

// The buttons and labels of a window that show their text cut off.
QStringList CutOff(QWidget& window) {
    QStringList cut;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window)) {
            continue;
        }
        bool whole = true;
        QString text;
        if (const auto* button = qobject_cast<QPushButton*>(widget)) {
            text = button->text().remove(QLatin1Char('&'));
            whole = button->fontMetrics().horizontalAdvance(text) <= button->width() - 4;
        } else if (const auto* choice = qobject_cast<QAbstractButton*>(widget)) {
            text = choice->text();
            whole = choice->sizeHint().width() <= choice->width();
        } else if (const auto* label = qobject_cast<QLabel*>(widget)) {
            text = label->text();
            whole = label->wordWrap() ? label->heightForWidth(label->width()) <= label->height()
                                      : label->sizeHint().width() <= label->width();
        }
        if (!whole && !text.isEmpty()) {
            cut << widget->objectName() + ": " + text;
        }
    }
    return cut;
}

// The controls that the Tab key visits once round, by name, read from the one named first. A
// window the display server has not activated may have no focus yet: the first Tab gives it.
QStringList TabRound(QWidget& window, const QString& first) {
    QStringList order;
    for (int press = 0; press < 20; ++press) {
        QWidget* focus = window.focusWidget();
        if (focus != nullptr && order.contains(focus->objectName())) {
            break;
        }
        if (focus != nullptr) {
            order << focus->objectName();
        }
        QTest::keyClick(focus != nullptr ? focus : &window, Qt::Key_Tab);
    }
    const qsizetype at = std::max<qsizetype>(order.indexOf(first), 0);
    return order.mid(at) + order.first(at);
}

} // namespace

class PlatformWindowsTest : public QObject {
    Q_OBJECT

private slots:
    void theUtilityDialogsOpenTakeKeysAndCloseAndTheAboutBoxAnswersEnter() {
        // Tab walks each one's commands in reading order; Escape leaves it, which ends the
        // program.
        const std::pair<WindowId, QStringList> dialogs[] = {
            {WindowId::Utility, {"cmdOptions", "cmdResize", "cmdExport", "cmdAbout"}},
            {WindowId::Resize, {"Option1", "chkSpelling", "cmdOK", "cmdCancel"}},
            // An empty Library has nothing to clean, and its button is passed over.
            {WindowId::Options, {"txtSetSave", "txtSetDays", "Check1", "cmdOK", "cmdCancel"}},
        };
        for (const auto& [id, order] : dialogs) {
            UtilitiesOnScreen program;
            program.Windows.ShowWindow(id);
            QWidget* window = program.Windows.Window(id);
            QVERIFY(QTest::qWaitForWindowExposed(window));
            QCOMPARE(CutOff(*window) + Unnamed(*window), QStringList());
            QCOMPARE(TabRound(*window, order.front()), order);
            QTest::keyClick(window, Qt::Key_Escape);
            QCOMPARE(program.Exits, 1);
        }

        UtilitiesOnScreen program;
        program.Windows.ShowWindow(WindowId::Utility);
        // The box runs modally; Enter on it, once it stands, closes it.
        QStringList cut = {u"no box"_s};
        QTimer knock;
        QObject::connect(&knock, &QTimer::timeout, [&] {
            if (QWidget* box = QApplication::activeModalWidget()) {
                knock.stop();
                cut = CutOff(*box) + Unnamed(*box);
                QTest::keyClick(box, Qt::Key_Return);
            }
        });
        knock.start(50);
        program.Utilities.cmdAbout_Click();
        QVERIFY2(cut.isEmpty(), qPrintable(cut.join(", ")));
        QCOMPARE(program.Exits, 1);
    }

    void theWriteWindowShowsItsCaptionsWholeAtEveryDisplaySize() {
        for (const int option : {0, 1, 2, 3}) {
            WriteWindow write(option);
            QVERIFY(QTest::qWaitForWindowExposed(write.Window.get()));
            write.Click(cmdConverse);
            QCOMPARE(CutOff(*write.Window), QStringList());
        }
    }

    // The preview's tools show whole and sharp: no icon is drawn on more pixels than its largest
    // image has, which would blur it.
    void thePrintPreviewShowsItsToolsSharp() {
        QPrinter printer;
        const auto preview = BuildPrintPreview(printer, nullptr);
        preview->show();
        QVERIFY(QTest::qWaitForWindowExposed(preview.get()));
        const qreal ratio = preview->devicePixelRatioF();
        for (const auto* tool : preview->findChildren<QToolButton*>()) {
            const QList<QSize> sizes = tool->icon().availableSizes();
            if (!tool->isVisible() || sizes.isEmpty()) {
                continue;
            }
            const auto largest = std::max_element(
                sizes.begin(), sizes.end(), [](QSize a, QSize b) { return a.width() < b.width(); });
            QVERIFY2(tool->iconSize().width() * ratio <= largest->width(),
                     qPrintable(u"%1 at %2"_s.arg(tool->text()).arg(ratio)));
        }
        QCOMPARE(CutOff(*preview) + Unnamed(*preview), QStringList());
    }

    // Last: the way out asks the application to quit, which ends any event loop after it.
    void startUpTheLibrariesAShortDialogueAndTheWayOut() {
        StartedProgram program;
        Main(program.App);
        QVERIFY(!program.Windows.Ended());
        QVERIFY(program.Windows.IsWindowVisible(WindowId::Banner));
        QCOMPARE(Unnamed(*program.Windows.Window(WindowId::Banner)), QStringList());
        QTRY_VERIFY_WITH_TIMEOUT(program.Write != nullptr && program.Write->isVisible(), 10000);
        QVERIFY(QTest::qWaitForWindowExposed(program.Write));
        QTRY_VERIFY(!program.Windows.IsWindowVisible(WindowId::Banner));
        QVERIFY(program.Write->windowTitle().startsWith(u"Veyrant Sagrel 4.1 --"_s));
        // On Wayland the program would draw the backdrop's title bar itself; it has none.
        QVERIFY(program.Back && program.Back->isVisible());
        QCOMPARE(Unnamed(*program.Back), QStringList());
        // The backdrop's hint shows only under a moving pointer; a screen reader tells it always.
        QCOMPARE(Spoken(program.Back, QAccessible::Description), QString(Backdrop::HintText));
        if (QGuiApplication::platformName() == u"wayland"_s) {
            QCOMPARE(program.Back->frameGeometry(), program.Back->geometry());
        }

        // Each library opens in the Read window, which closes when the user comes back to the
        // Write window: on X11 through minimise and restore, on Wayland through activation.
        MirrorWindow* write = program.Write;
        const auto& read = program.Read;
        const struct {
            MirrorControl Button;
            Qt::MouseButton Mouse;
            const char* Title;
        } libraries[] = {
            {cmdHelp, Qt::LeftButton, "Veyrant Information Library"},
            {cmdKnow, Qt::LeftButton, "Veyrant Knowledge Library"},
            {cmdKnow, Qt::RightButton, "Veyrant Advanced Knowledge Library"},
            {cmdRetrieve, Qt::LeftButton, "Veyrant Dialogue Library -- No Dialogues Saved"},
        };
        for (const auto& c : libraries) {
            QTest::mouseClick(write->Widget(c.Button), c.Mouse);
            QVERIFY(read);
            QCOMPARE(read->windowTitle(), QString::fromLatin1(c.Title));
            QVERIFY(read->isVisible());
            QCOMPARE(Unnamed(*read), QStringList());
            QVERIFY(program.Windows.IsWindowMinimised(WindowId::Mirror));
            QTest::keyClick(read.data(), Qt::Key_Down);
            QVERIFY(read->windowTitle() != QString::fromLatin1(c.Title) || c.Button == cmdRetrieve);
            if (write->isMinimized()) {
                write->showNormal();
            }
            QApplication::setActiveWindow(write);
            QTRY_VERIFY(!read || !read->isVisible());
            QCOMPARE(program.App.Reading.ReaderOpen, ReaderOpenState::Closed);
            QVERIFY(!program.Windows.IsWindowMinimised(WindowId::Mirror));
            QApplication::setActiveWindow(nullptr);
        }
        QVERIFY(std::filesystem::exists(program.App.Folder.Exe() / "Read.ini"));

        QTest::mouseClick(write->Widget(cmdConverse), Qt::LeftButton);
        auto* entry = static_cast<QPlainTextEdit*>(program.Write->Widget(txtMirror));
        QTest::keyClicks(entry, u"What would I tell myself a year from now?"_s);
        QTest::keyClick(entry, Qt::Key_Return);
        QVERIFY(entry->toPlainText().endsWith(QChar(0x201D)));
        auto* response = static_cast<QPlainTextEdit*>(program.Write->Widget(txtResponse));
        QVERIFY(response->toPlainText().size() > 10);
        QCOMPARE(CutOff(*program.Write) + Unnamed(*program.Write), QStringList());

        // Closing the window stores the settings and ends the program.
        program.Write->close();
        QTRY_VERIFY_WITH_TIMEOUT(program.Windows.Ended(), 5000);
        QVERIFY(std::filesystem::exists(program.App.Folder.Exe() / "Tolmira.ini"));
    }
};

QTEST_MAIN(PlatformWindowsTest)
#include "PlatformWindowsTest.moc"
