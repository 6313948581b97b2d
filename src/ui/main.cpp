#include "core/Clock.h"
#include "core/Random.h"
#include "dialogue/EngineDialogue.h"
#include "dialogue/Mirror.h"
#include "engine/Engine.h"
#include "engine/EngineFiles.h"
#include "shell/AppFolder.h"
#include "shell/Application.h"
#include "shell/StartUp.h"
#include "storage/DialogueLibrary.h"
#include "storage/WorkBuffers.h"
#include "ui/BannerWindow.h"
#include "ui/MirrorWindow.h"
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
    Engine engine(random, clock, windows);
    EngineDialogue replies(engine);
    DialogueLibrary library(app.Folder, app.UserSettings, clock, windows);
    WorkBuffers buffers(app.Folder, app.UserSettings, clock, windows);
    std::unique_ptr<Mirror> write;
    MirrorWindow* writeWindow = nullptr;

    windows.RegisterWindow(WindowId::Banner, [&] { return new BannerWindow(windows); });
    // The load of the Write window brings the engine, the random series and the Library in
    // behind the banner.
    windows.RegisterWindow(WindowId::Mirror, [&] {
        InstallEngineFiles(app.Folder);
        if (!engine.LoadSystem(app.Folder)) {
            windows.EndProcess();
        }
        engine.SeriesSeed = clock.Timer();
        engine.SeedSeries();
        library.ScanLibrary();
        write = std::make_unique<Mirror>(app, replies, buffers, library);
        writeWindow = new MirrorWindow(app, *write);
        writeWindow->OnClose = [&] {
            write->Unload();
            UnloadMirror(app);
        };
        return writeWindow;
    });
    windows.SetTimerHandler(TimerId::MirrorTimer1, [&] {
        if (write) {
            write->StartWindow();
        }
        Timer1(app);
    });
    windows.SetTimerHandler(TimerId::MirrorHover, [&] {
        write->TimerFired(TimerId::MirrorHover);
        writeWindow->Render();
    });
    windows.SetTimerHandler(TimerId::BannerTimer, [&] { BannerTimer(app); });

    Main(app);
    if (windows.Ended()) {
        return 0;
    }
    return QApplication::exec();
}
