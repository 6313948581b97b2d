// The writing paths of the frame of the program, swept with a failing or killed file call at
// every step: the settings stored on the way out, the folder laid down at start, and the Library
// exported.

#include "support/FaultSweep.h"

#include "app/AppFixture.h"
#include "app/FirstRun.h"
#include "app/LibraryExport.h"
#include "app/SettingsFiles.h"
#include "app/StartUp.h"
#include "core/CaughtError.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace veyrant::testing {
namespace {

struct AppRun : AppFixture {
    std::optional<std::string> Disagreement() const { return std::nullopt; }

    // The next start lays the folder down again, finishing whatever the kill cut short.
    std::optional<std::string> Restart(const FolderImage&, const FolderImage&) {
        try {
            InstallAppFolder(Folder, Windows);
        } catch (...) {
            return "the next start fails with " + std::to_string(CaughtErrorNumber());
        }
        return std::nullopt;
    }

    // The start lays the folder down first; whatever fails there ends in the system error box.
    void Install() {
        try {
            InstallAppFolder(Folder, Windows);
        } catch (...) {
            ReportSystemError(App, CaughtErrorNumber());
        }
    }
};

// The Library is read before the sweep, which covers the writing; a Dialogue that cannot be read
// has its own test.
struct ExportRun : AppRun {
    std::optional<LibraryExport> Export;

    // The next export into the folder clears what a kill left staged there.
    std::optional<std::string> Restart(const FolderImage&, const FolderImage&) {
        RemoveStagedFiles(Folder.Root / "export");
        return std::nullopt;
    }
};

TEST(FaultSweep, TheSettingsAndTheFolderLeaveOldOrNewAndSayWhatFailed) {
    const std::vector<SweepPath> paths = {
        PathIn<AppRun>(
            "settings stored at exit", [](AppRun& run) { run.Install(); },
            [](AppRun& run) {
                run.App.UserSettings.WriteFontStep = 2;
                ExitProgram(run.App);
            }),
        PathIn<AppRun>(
            "first start: the folder laid down", [](AppRun&) {},
            [](AppRun& run) { run.Install(); }),
        PathIn<AppRun>(
            "start over a folder an earlier version left open",
            [](AppRun& run) {
                std::filesystem::create_directories(run.Folder.Isp());
                std::filesystem::create_directories(run.Folder.Dlg());
                run.PutExeFile("Tolmira.ini", " 2 \r\n");
                for (const auto& path :
                     {run.Folder.Root, run.Folder.Exe(), run.Folder.Isp(), run.Folder.Dlg()}) {
                    ::chmod(path.c_str(), 0755);
                }
                ::chmod((run.Folder.Exe() / "Tolmira.ini").c_str(), 0644);
            },
            [](AppRun& run) { run.Install(); }),
        PathIn<AppRun>(
            "two starts over a change the disk will not let finish",
            [](AppRun& run) {
                run.Install();
                std::filesystem::create_directories(run.Folder.Exe() / "savep.tmp" / "inside");
                WriteWholeFile(run.Folder.Root / ".change", "D\texe/savep.tmp\n");
            },
            [](AppRun& run) {
                run.Install();
                run.Install();
            }),
        PathIn<ExportRun>(
            "Export Library: the files written beside the Library",
            [](ExportRun& run) {
                run.Install();
                for (const char* name : {"76112212.000", "76112212.001", "76112221.050"}) {
                    WriteWholeFile(run.Folder.Isp() / name, "\tAn Inspiration.");
                    WriteWholeFile(run.Folder.Dlg() / name, "\r\n\r\n\t\x93Why?\x94\r\n\tSo.");
                }
                run.Export.emplace(run.Folder);
            },
            [](ExportRun& run) {
                const auto report = run.Export->Write(run.Folder.Root / "export", nullptr,
                                                      [](int, int) { return true; });
                run.Windows.ShowMessage({"Export Library", ReportText(report)});
            }),
    };
    SweepAll(paths);
}

} // namespace
} // namespace veyrant::testing
