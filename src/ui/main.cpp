#include "app/Application.h"
#include "app/ExportLibrary.h"
#include "app/StartUp.h"
#include "app/Utility.h"
#include "core/Clock.h"
#include "core/Random.h"
#include "shell/AppFolder.h"
#include "shell/Resize.h"
#include "storage/StorageFailure.h"
#include "ui/BackWindow.h"
#include "ui/BannerWindow.h"
#include "ui/ExportLibraryCommand.h"
#include "ui/ExportWindow.h"
#include "ui/GuardedApplication.h"
#include "ui/HunspellDictionary.h"
#include "ui/KeyringKeeper.h"
#include "ui/LockWindow.h"
#include "ui/MirrorWindow.h"
#include "ui/OptionsWindow.h"
#include "ui/PassphraseBox.h"
#include "ui/QtLibraryPdf.h"
#include "ui/QtText.h"
#include "ui/QtWindowLayer.h"
#include "ui/ReaderWindow.h"
#include "ui/ResizeWindow.h"
#include "ui/SingleCopy.h"
#include "ui/UtilityWindow.h"
#include "ui/WindowRoles.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QPointer>
#include <QWidget>
#include <memory>

int main(int argc, char** argv) {
    using namespace veyrant;
    if (const auto exitCode = RunExportLibraryCommand(argc, argv)) {
        return *exitCode;
    }
    // The net needs the application, which needs the window layer, which needs Qt running: it
    // is handed the application once that is made.
    Application* running = nullptr;
    GuardedApplication qt(argc, argv, [&](int number) {
        if (running != nullptr) {
            ReportSystemError(*running, number);
        }
    });
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setApplicationName(QStringLiteral("veyrant-sagrel"));
    QApplication::setOrganizationName(QStringLiteral("Veyrant Technology"));
    // A Wayland compositor ties the windows to the menu entry by this name.
    QGuiApplication::setDesktopFileName(QStringLiteral("veyrant-sagrel"));
    // The installed theme's icon where there is one, else the sizes carried in the program.
    QIcon carried;
    for (const QString& size : QDir(QStringLiteral(":/icons")).entryList()) {
        carried.addFile(QStringLiteral(":/icons/%1/veyrant-sagrel.png").arg(size));
    }
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("veyrant-sagrel"), carried));
    InstallWindowRoles();

    QtWindowLayer windows;
    SystemClock clock;
    Random random;
    Application app(AppFolder::FromEnvironment(), "/proc/self/exe", clock, random, windows);
    running = &app;
    SingleCopy copy(app.Folder.Root);
    if (!copy.First()) {
        if (!copy.CallFirstForward()) {
            windows.ShowMessage(WarningBox(
                "The Veyrant Sagrel Is Already Running",
                "The Veyrant Sagrel is already open on your Dialogues. Switch to its window to go "
                "on writing: a second copy would write over what the first one keeps."));
        }
        return 0;
    }
    // A later start brings this copy's windows to the front, the one the user worked in last on
    // top.
    QPointer<QWidget> lastActive;
    QObject::connect(&qt, &QApplication::focusChanged, [&](QWidget*, QWidget* now) {
        if (now != nullptr) {
            lastActive = now->window();
        }
    });
    copy.OnCalled = [&] {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible()) {
                window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
                window->raise();
            }
        }
        QWidget* front = QApplication::activeModalWidget();
        if (front == nullptr && lastActive && lastActive->isVisible()) {
            front = lastActive;
        }
        if (front != nullptr) {
            front->raise();
            front->activateWindow();
        }
    };
    KeyringKeeper keyring;
    app.Keyring = &keyring;
    app.AskPassphrase = AskPassphraseBox;
    windows.SetPrintFace([&] { return app.Fonts.Main; });
    windows.SetSpelling(app.Spelling);
    MirrorWindow* writeWindow = nullptr;
    std::unique_ptr<Options> libraryOptions;
    std::unique_ptr<Utility> utilities;
    std::unique_ptr<Resize> displaySize;
    std::unique_ptr<ExportLibrary> libraryExport;
    QtLibraryPdf libraryPdf([&] { return ToQt(app.Fonts.Main); });
    // The windows reached from the Utilities grow with the display scale, the smallest excepted.
    const auto utilityScale = [&] {
        return app.UserSettings.DisplayOption > 0 ? app.Scale.ScaleFactor : 1.0;
    };

    windows.RegisterWindow(WindowId::Banner, [&] { return new BannerWindow(windows); });
    // The start-up makes the Write window's logic before it loads the window.
    windows.RegisterWindow(WindowId::Mirror, [&] {
        // The settings are read by now; a choice made in the Display Size window counts from the
        // next start.
        OpenSpelling(app, SystemDictionaryFolder);
        writeWindow = new MirrorWindow(app, *app.Write);
        writeWindow->OnClose = [&] { UnloadMirror(app); };
        return writeWindow;
    });
    // Every way out of the Library Options window ends the program, so its changes take effect at
    // the next start.
    windows.RegisterWindow(WindowId::Options, [&] {
        libraryOptions = std::make_unique<Options>(
            app.Library, app.UserSettings, windows, [&] { ExitProgram(app); },
            [&] { windows.UnloadWindow(WindowId::Read); });
        return new OptionsWindow(*libraryOptions, nullptr, [&](QWidget* over) {
            QPointer<LockWindow> shown;
            LockOptions lock(app.Folder, windows, &keyring, [&] {
                if (shown) {
                    shown->done(QDialog::Accepted);
                }
            });
            LockWindow window(lock, over);
            shown = &window;
            window.exec();
        });
    });
    windows.RegisterWindow(WindowId::Utility, [&] {
        utilities = std::make_unique<Utility>(windows, app.VersionString, app.ProgramYear,
                                              [&] { ExitProgram(app); });
        return new UtilityWindow(*utilities, utilityScale());
    });
    windows.RegisterWindow(WindowId::Export, [&] {
        libraryExport = std::make_unique<ExportLibrary>(
            app.Folder, app.UserSettings, clock, windows, libraryPdf, [&] { ExitProgram(app); });
        return new ExportWindow(*libraryExport, utilityScale());
    });
    windows.RegisterWindow(WindowId::Resize, [&] {
        displaySize = std::make_unique<Resize>(app.UserSettings, app.UserPreferences, windows,
                                               [&] { ExitProgram(app); });
        return new ResizeWindow(*displaySize, utilityScale());
    });
    // The Reader's logic is made afresh at each opening, before its window loads.
    QPointer<ReaderWindow> readWindow;
    windows.RegisterWindow(WindowId::Read, [&] {
        readWindow = new ReaderWindow(app, *app.Read);
        readWindow->OnClose = [&] { app.Links.CloseLibrary(); };
        return readWindow.data();
    });
    QPointer<BackWindow> backWindow;
    windows.RegisterWindow(WindowId::Back, [&] {
        app.Back.Load();
        backWindow = new BackWindow(app.Back);
        return backWindow.data();
    });
    windows.SetTimerHandler(TimerId::ReadHover, [&] {
        if (app.Read && readWindow) {
            app.Read->TimerFired(TimerId::ReadHover);
            readWindow->Render();
        }
    });
    windows.SetTimerHandler(TimerId::BackTimer, [&] {
        app.Back.TimerFired();
        if (backWindow) {
            backWindow->Render();
        }
    });
    windows.SetTimerHandler(TimerId::MirrorTimer1, [&] { Timer1(app); });
    windows.SetTimerHandler(TimerId::MirrorHover, [&] {
        app.Write->TimerFired(TimerId::MirrorHover);
        writeWindow->Render();
    });
    windows.SetTimerHandler(TimerId::BannerTimer, [&] { BannerTimer(app); });

    Main(app);
    if (windows.Ended()) {
        return 0;
    }
    return QApplication::exec();
}
