#include "app/FirstRun.h"

#include "app/AppFixture.h"
#include "core/Cp1252.h"
#include "core/ProgramError.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace veyrant::testing {
namespace {

// An installed folder is left alone; one that cannot be made raises the program's error.
TEST(FirstRun, LeavesAnInstalledFolderAloneAndSaysWhenItCannotMakeOne) {
    AppFixture fixture;
    fixture.PutExeFile("Qdrfonts.ini", "Garamond\r\n");
    InstallAppFolder(fixture.Folder, fixture.Windows);
    EXPECT_EQ(fixture.ExeFile("Qdrfonts.ini"), "Garamond\r\n");
    WriteWholeFile(fixture.Temp / "blocked", "a file where a folder should be");
    const AppFolder folder{fixture.Temp / "blocked" / "veyrant-sagrel"};
    try {
        InstallAppFolder(folder, fixture.Windows);
        FAIL() << "no error";
    } catch (const ProgramError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::PathNotFound);
    }
}

// A change the disk will not let finish waits for a later start; each start names the file that
// refuses and goes on.
TEST(FirstRun, AChangeThatCannotBeFinishedWaitsAndTheStartGoesOn) {
    AppFixture fixture;
    std::filesystem::create_directories(fixture.Folder.Exe() / "savep.tmp" / "inside");
    const std::string note = "R\texe/.savep.tmp.veyrant-staged.Ab12Cd\texe/savep.tmp\n";
    WriteWholeFile(fixture.Folder.Root / ".change", note);
    fixture.PutExeFile(".savep.tmp.veyrant-staged.Ab12Cd", " 2 \r\n");
    for (std::size_t start = 1; start <= 2; ++start) {
        InstallAppFolder(fixture.Folder, fixture.Windows);
        ASSERT_EQ(fixture.Windows.Boxes.size(), start);
        EXPECT_NE(
            fixture.Windows.Boxes.back().Text.find(PathText(fixture.Folder.Exe() / "savep.tmp")),
            std::string::npos);
    }
    EXPECT_EQ(ReadWholeFile(fixture.Folder.Root / ".change"), note);
    EXPECT_EQ(fixture.ExeFile(".savep.tmp.veyrant-staged.Ab12Cd"), " 2 \r\n");
}

unsigned Rights(const std::filesystem::path& path) {
    struct stat status {};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777;
}

// The folders are laid down with the faces this machine has, and another account must not read
// the Dialogues: not on a fresh install, not in a folder an earlier version left open, and not in
// a file written since.
TEST(FirstRun, LaysDownTheFoldersWithTheFacesThisMachineHasForTheUserAlone) {
    struct Case {
        const char* Name;
        unsigned FolderRights; // 0: the folder is new
        unsigned FileRights;
        const char* Missing;
    };
    const Case cases[] = {
        {"fresh", 0, 0, ""},
        {"left open by an earlier version", 0755, 0644, "Times New Roman"},
        {"open to everyone", 0777, 0666, "Times New Roman/italic"},
        {"already private", 0700, 0600, ""},
        {"narrower than ours", 0700, 0400, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Name);
        AppFixture fixture;
        fixture.Windows.MissingFaces.insert(c.Missing);
        const AppFolder& folder = fixture.Folder;
        const auto saved = folder.Dlg() / "76112010.000";
        if (c.FolderRights != 0) {
            for (const auto& path : {folder.Exe(), folder.Dlg(), folder.Isp()}) {
                std::filesystem::create_directories(path);
                WriteWholeFile(path / "76112010.000", "\r\n\r\n\tprivate");
                ::chmod((path / "76112010.000").c_str(), c.FileRights);
                ::chmod(path.c_str(), c.FolderRights);
            }
            ::chmod(folder.Root.c_str(), c.FolderRights);
        }
        InstallAppFolder(folder, fixture.Windows);
        for (const auto& path : {folder.Root, folder.Exe(), folder.Dlg(), folder.Isp()}) {
            EXPECT_EQ(Rights(path), 0700u) << path;
        }
        if (c.FolderRights != 0) {
            EXPECT_EQ(Rights(saved), c.FileRights & 0600u);
        }
        WriteWholeFile(folder.Isp() / "76112011.000", "\tnew");
        for (const auto& name : {"Qdrfonts.ini", "qdr41.sys", "qdr41.mtx"}) {
            EXPECT_EQ(Rights(folder.Exe() / name), 0600u) << name;
        }
        EXPECT_EQ(Rights(folder.Isp() / "76112011.000"), 0600u);
        const std::string face = *c.Missing == 0 ? "Times New Roman" : "Liberation Serif";
        EXPECT_EQ(fixture.ExeFile("Qdrfonts.ini"), face + "\r\n" + face + " Italic\r\n");
    }
}

} // namespace
} // namespace veyrant::testing
