#include "app/StartUp.h"

#include "app/FirstRun.h"
#include "app/FontCheck.h"
#include "app/InstallFailure.h"
#include "app/LibraryUnlock.h"
#include "app/SettingsFiles.h"
#include "app/SmallDisplay.h"
#include "core/CaughtError.h"
#include "core/ProgramError.h"
#include "reader/FixedLibrary.h"
#include "shell/DisplayScale.h"
#include "shell/Version.h"
#include "storage/StorageFailure.h"

#include <cmath>
#include <memory>
#include <string>

namespace veyrant {

namespace {

constexpr const char* SupportAddress = "support@veyrant-sagrel.org";
// The run-time number of a conflict between the program and the system.
constexpr int SystemConflict = 35;

// Showing the banner loads it; on the way out its load also starts the closing timer.
void ShowBanner(Application& app) {
    app.Windows.SetBusyPointer(true);
    if (app.ClosingState == ClosingStates::Exiting) {
        app.Windows.UnloadWindow(WindowId::Back);
        app.Windows.StartTimer(TimerId::BannerTimer, ClosingBannerMilliseconds);
    }
    app.Windows.ShowWindow(WindowId::Banner);
}

// An empty last row means content went missing from the build: error 1001 ends the start.
void LoadFixedLibraries(FixedLibraries& libraries) {
    LoadLibraries(libraries);
    for (FixedLibrary& library : libraries) {
        BuildLibraryIndex(library);
    }
    CheckLibraryContent(libraries);
}

// Everything the Write window needs is loaded behind the banner, so that it is all in memory
// when the window appears.
void LoadMirror(Application& app) {
    app.Write = std::make_unique<Mirror>(app.WriteWorld(), app.Replies, app.Buffers, app.Library);
    app.Write->ConnectLibraries(app.Links, app.Back);
    // The window sizes itself for the display scale and centres itself as it loads.
    app.Windows.LoadWindow(WindowId::Mirror);
    app.Engine.SeedSeries();
    const float loadStart = app.Clock.Timer();
    app.Windows.SetBusyPointer(true);
    if (!app.Engine.LoadSystem(app.Folder)) {
        // The engine has said why; it has no partial mode.
        app.Windows.EndProcess();
        return;
    }
    app.Windows.Yield();
    LoadFixedLibraries(app.Libraries);
    app.Windows.Yield();
    app.Library.ScanLibrary();
    app.Windows.Yield();
    app.Windows.StartTimer(TimerId::MirrorTimer1, Timer1Interval(loadStart, app.Clock.Timer()));
}

void RunMain(Application& app) {
    InstallAppFolder(app.Folder, app.Windows);
    const ProgramVersion version = ReadProgramVersion(app.Clock, app.ProgramFile);
    app.ProgramYear = version.ProgramYear;
    app.VersionString = version.VersionString;
    ShowBanner(app);
    app.Windows.Yield();
    LoadSettings(app);
    if (app.Windows.ScreenWidthTwips() < SmallScreenTwips && app.UserSettings.DisplayOption >= 1) {
        WarnSmallDisplay(app);
        return;
    }
    SetDisplayScale(app.UserSettings.DisplayOption, app.Scale);
    if (!CheckFonts(app)) {
        return;
    }
    if (!OpenLockedLibrary(app.Folder, app.Windows, app.Keyring, app.AskPassphrase)) {
        app.Windows.EndProcess();
        return;
    }
    app.Engine.SeriesSeed = app.Clock.Timer();
    LoadMirror(app);
}

} // namespace

void ReportSystemError(Application& app, int number) {
    app.Windows.ShowMessage(SystemErrorBox(number));
    app.Windows.EndProcess();
}

void Main(Application& app) {
    try {
        RunMain(app);
    } catch (const InstallFailure& failure) {
        app.Windows.ShowMessage(InstallFailureBox(failure));
        app.Windows.EndProcess();
    } catch (...) {
        ReportSystemError(app, CaughtErrorNumber());
    }
}

void Timer1(Application& app) {
    app.Windows.StopTimer(TimerId::MirrorTimer1);
    app.Windows.SetBusyPointer(false);
    app.Write->StartWindow();
    app.Windows.UnloadWindow(WindowId::Banner);
    app.Windows.Yield();
    if (app.Windows.ScreenWidthTwips() >= SmallScreenTwips) {
        app.Windows.ShowWindow(WindowId::Back);
    }
    app.Windows.ShowWindow(WindowId::Mirror);
}

void UnloadMirror(Application& app) {
    // A Dialogue the work buffers could not take stays on the screen.
    if (app.Write && !app.Write->Unload()) {
        return;
    }
    app.Links.CloseLibrary();
    app.Windows.HideWindow(WindowId::Mirror);
    ExitProgram(app);
}

void ExitProgram(Application& app) {
    app.ClosingState = ClosingStates::Exiting;
    try {
        SaveSettings(app);
    } catch (const ProgramError& error) {
        // The Dialogues are safe by now; only this run's settings are lost, and the user is told
        // why.
        app.Windows.ShowMessage(SettingsFailureBox(error.Number(), SettingsFile(app)));
        app.Windows.EndProcess();
        return;
    }
    ShowBanner(app);
}

void BannerTimer(Application& app) {
    app.Windows.StopTimer(TimerId::BannerTimer);
    app.Windows.EndProcess();
}

int Timer1Interval(float loadStart, float loadEnd) {
    float elapsed = loadEnd - loadStart;
    if (elapsed < 0) {
        elapsed = 2;
    }
    const auto interval = static_cast<int>(std::nearbyint(3000.0 - elapsed * 1000.0));
    return interval > 0 ? interval : 100;
}

MessageBoxRequest SystemErrorBox(int number) {
    const std::string n = std::to_string(number);
    const std::string support = SupportAddress;
    MessageBoxRequest box;
    box.Icon = MessageIcon::Warning;
    box.Buttons = MessageButtons::Ok;
    if (number == ErrorNumber::OutOfMemory) {
        box.Title = "Cannot Load -- Out of Memory";
        box.Text =
            "The system cannot load the Veyrant Sagrel because it has insufficient available "
            "memory.\r\n\r\nThe immediate solution is to close one or more open programs. "
            "However, we recommend that you clear your computer's memory by closing all "
            "open programs, then logging out and in again.";
    } else if (number == SystemConflict) {
        box.Title = "System Conflict, Error 35 -- Close Programs and Log In Again";
        box.Text =
            "A system conflict has occurred between the system and the Veyrant Sagrel "
            "program.\r\n\r\n"
            "This is probably due to a memory conflict with a running program, most likely an "
            "unnecessary background program. "
            "Close your open programs, log out and in again to clear your memory, "
            "then close all open programs including those in the background. If the program "
            "runs, then closing programs when necessary and-or occaisionally refreshing your "
            "memory should prevent any further conflict.\r\n\r\nIf you continue to experience "
            "the error, please contact Veyrant Technology at " +
            support + " and explain the steps that lead to the error.";
    } else {
        box.Title = "Unknown System Error " + n + " -- Please Notify Veyrant Technology";
        box.Text = "A system error has occurred in the Veyrant Sagrel program.\r\n\r\nPlease "
                   "notify Veyrant Technology at " +
                   support + " that you encountered System Error " + n +
                   ", and please specify which feature you are using and any other details you "
                   "may remember leading up to the error.\r\n\r\nIf this is a program bug, we "
                   "will have it repaired quickly. Just download and install the next program "
                   "version. Thank you for your cooperation.";
    }
    return box;
}

} // namespace veyrant
