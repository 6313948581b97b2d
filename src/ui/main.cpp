#include "core/Clock.h"
#include "core/Random.h"
#include "shell/AppFolder.h"
#include "shell/Application.h"
#include "shell/StartUp.h"
#include "ui/BannerWindow.h"
#include "ui/MirrorWindow.h"
#include "ui/QtWindowLayer.h"

#include <QApplication>

int main(int argc, char** argv) {
    using namespace veyrant;
    QApplication qt(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));

    QtWindowLayer windows;
    SystemClock clock;
    Random random;
    Application app(AppFolder::FromEnvironment(), "/proc/self/exe", clock, random, windows);
    MirrorWindow* writeWindow = nullptr;

    windows.RegisterWindow(WindowId::Banner, [&] { return new BannerWindow(windows); });
    // The start-up makes the Write window's logic before it loads the window.
    windows.RegisterWindow(WindowId::Mirror, [&] {
        writeWindow = new MirrorWindow(app, *app.Write);
        writeWindow->OnClose = [&] { UnloadMirror(app); };
        return writeWindow;
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
