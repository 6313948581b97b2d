#include "core/Clock.h"
#include "core/Random.h"
#include "shell/AppFolder.h"
#include "shell/Application.h"
#include "shell/StartUp.h"
#include "ui/BannerWindow.h"
#include "ui/MirrorWindow.h"
#include "ui/OptionsWindow.h"
#include "ui/QtWindowLayer.h"

#include <QApplication>
#include <memory>

int main(int argc, char** argv) {
    using namespace veyrant;
    QApplication qt(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));

    QtWindowLayer windows;
    SystemClock clock;
    Random random;
    Application app(AppFolder::FromEnvironment(), "/proc/self/exe", clock, random, windows);
    MirrorWindow* writeWindow = nullptr;
    std::unique_ptr<Options> libraryOptions;

    windows.RegisterWindow(WindowId::Banner, [&] { return new BannerWindow(windows); });
    // The start-up makes the Write window's logic before it loads the window.
    windows.RegisterWindow(WindowId::Mirror, [&] {
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
        return new OptionsWindow(*libraryOptions);
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
