// The Write window opens each library in the Read window and, when the user comes back to it,
// the Read window closes; on X11 through minimise and restore, on Wayland through activation.

#include "StartedProgram.h"

#include <QtTest>

using namespace veyrant;

class LibraryFlowTest : public QObject {
    Q_OBJECT

private slots:
    void eachLibraryOpensAndClosesWhenTheWriteWindowComesBack() {
        StartedProgram program;
        Main(program.App);
        QTRY_VERIFY_WITH_TIMEOUT(program.Write != nullptr && program.Write->isVisible() &&
                                     !program.Windows.IsWindowVisible(WindowId::Banner),
                                 10000);
        MirrorWindow* write = program.Write;
        const auto& read = program.Read;
        const struct {
            MirrorControl Button;
            Qt::MouseButton Mouse;
            const char* Title;
        } cases[] = {
            {MirrorControl::cmdHelp, Qt::LeftButton, "Veyrant Information Library"},
            {MirrorControl::cmdKnow, Qt::LeftButton, "Veyrant Knowledge Library"},
            {MirrorControl::cmdKnow, Qt::RightButton, "Veyrant Advanced Knowledge Library"},
            {MirrorControl::cmdRetrieve, Qt::LeftButton,
             "Veyrant Dialogue Library -- No Dialogues Saved"},
        };
        for (const auto& c : cases) {
            QTest::mouseClick(write->Widget(c.Button), c.Mouse);
            QVERIFY(read);
            QCOMPARE(read->windowTitle(), QString::fromLatin1(c.Title));
            QVERIFY(read->isVisible());
            QVERIFY(program.Windows.IsWindowMinimised(WindowId::Mirror));
            QTest::keyClick(read.data(), Qt::Key_Down);
            QVERIFY(read->windowTitle() != QString::fromLatin1(c.Title) ||
                    c.Button == MirrorControl::cmdRetrieve);

            // The user comes back to the Write window.
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
    }
};

QTEST_MAIN(LibraryFlowTest)
#include "LibraryFlowTest.moc"
