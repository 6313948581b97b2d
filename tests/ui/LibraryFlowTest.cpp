// The Write window opens each library in the Read window and, when the user comes back to it,
// the Read window closes; on X11 through minimise and restore, on Wayland through activation.

#include "app/Application.h"
#include "core/Random.h"
#include "engine/EngineFiles.h"
#include "reader/FixedLibrary.h"
#include "shell/DisplayScale.h"
#include "support/FakeClock.h"
#include "support/TempFolder.h"
#include "ui/BackWindow.h"
#include "ui/MirrorWindow.h"
#include "ui/QtWindowLayer.h"
#include "ui/ReaderWindow.h"

#include <QPointer>
#include <QPushButton>
#include <QtTest>
#include <memory>

using namespace veyrant;

// The whole program in a fresh folder, with the Write, Read and backdrop windows on the screen
// layer as the start-up registers them.
struct FlowApp {
    FlowApp() {
        SetDisplayScale(1, app.Scale);
        InstallEngineFiles(app.Folder);
        app.Engine.LoadSystem(app.Folder);
        app.Engine.SeedSeries();
        LoadLibraries(app.Libraries);
        for (auto* library :
             {&app.Libraries[LibraryId::Information], &app.Libraries[LibraryId::Knowledge],
              &app.Libraries[LibraryId::Advanced]}) {
            BuildLibraryIndex(*library);
        }
        app.Write =
            std::make_unique<Mirror>(app.WriteWorld(), app.Replies, app.Buffers, app.Library);
        app.Write->ConnectLibraries(app.Links, app.Back);
        windows.RegisterWindow(WindowId::Mirror, [this] {
            write = new MirrorWindow(app, *app.Write);
            return write.data();
        });
        windows.RegisterWindow(WindowId::Read, [this] {
            read = new ReaderWindow(app, *app.Read);
            return read.data();
        });
        windows.RegisterWindow(WindowId::Back, [this] {
            app.Back.Load();
            back = new BackWindow(app.Back);
            return back.data();
        });
        app.Write->StartWindow();
        windows.ShowWindow(WindowId::Mirror);
        write->Render();
    }

    testing::TempFolder temp;
    testing::FakeClock clock;
    Random draws;
    QtWindowLayer windows;
    Application app{AppFolder{temp / "app"}, temp / "program", clock, draws, windows};
    QPointer<MirrorWindow> write;
    QPointer<ReaderWindow> read;
    QPointer<BackWindow> back;
};

class LibraryFlowTest : public QObject {
    Q_OBJECT

private slots:
    void eachLibraryOpensAndClosesWhenTheWriteWindowComesBack() {
        FlowApp flow;
        auto& app = flow.app;
        auto& windows = flow.windows;
        auto& write = flow.write;
        auto& read = flow.read;

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
            QVERIFY(windows.IsWindowMinimised(WindowId::Mirror));
            QTest::keyClick(read.data(), Qt::Key_Down);
            QVERIFY(read->windowTitle() != QString::fromLatin1(c.Title) ||
                    c.Button == MirrorControl::cmdRetrieve);

            // The user comes back to the Write window.
            if (write->isMinimized()) {
                write->showNormal();
            }
            QApplication::setActiveWindow(write);
            QTRY_VERIFY(!read || !read->isVisible());
            QCOMPARE(app.Reading.ReaderOpen, ReaderOpenState::Closed);
            QVERIFY(!windows.IsWindowMinimised(WindowId::Mirror));
            QApplication::setActiveWindow(nullptr);
        }
        QVERIFY(std::filesystem::exists(app.Folder.Exe() / "Read.ini"));
    }

    // The backdrop, once clicked away, comes back by a press on the bare part of either window.
    void aPressOnEitherWindowsBackgroundBringsTheBackdropBack() {
        FlowApp flow;
        flow.windows.ShowWindow(WindowId::Back);
        QTest::mouseClick(flow.write->Widget(MirrorControl::cmdHelp), Qt::LeftButton);
        QVERIFY(flow.read);
        const struct {
            QWidget* Window;
            const char* Name;
        } cases[] = {{flow.write.data(), "Write"}, {flow.read.data(), "Read"}};
        for (const auto& c : cases) {
            QVERIFY(flow.back);
            QTest::mouseClick(flow.back.data(), Qt::LeftButton);
            QVERIFY2(!flow.back->isVisible(), c.Name);
            // The right-hand margin of both windows is bare background.
            QTest::mouseClick(c.Window, Qt::LeftButton, {},
                              QPoint(c.Window->width() - 4, c.Window->height() / 2));
            QVERIFY2(flow.back->isVisible(), c.Name);
        }
    }
};

QTEST_MAIN(LibraryFlowTest)
#include "LibraryFlowTest.moc"
