#include "app/FirstRun.h"

#include "app/AppFixture.h"
#include "core/ProgramError.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

TEST(FirstRun, LaysDownTheFoldersAndTheFacesThisMachineHas) {
    struct Case {
        const char* Missing;
        const char* FontTable;
    };
    const Case cases[] = {
        {"", "Times New Roman\r\nTimes New Roman Italic\r\n"},
        {"Times New Roman", "Liberation Serif\r\nLiberation Serif Italic\r\n"},
        {"Times New Roman/italic", "Liberation Serif\r\nLiberation Serif Italic\r\n"},
    };
    for (const Case& c : cases) {
        TempFolder temp;
        FakeWindowLayer windows;
        windows.MissingFaces.insert(c.Missing);
        const AppFolder folder{temp / "data" / "veyrant-sagrel"};
        InstallAppFolder(folder, windows);
        EXPECT_TRUE(std::filesystem::is_directory(folder.Dlg()));
        EXPECT_TRUE(std::filesystem::is_directory(folder.Isp()));
        EXPECT_EQ(ReadWholeFile(folder.Exe() / "Qdrfonts.ini"), c.FontTable);
    }
}

TEST(FirstRun, LeavesAnInstalledFolderAlone) {
    AppFixture fixture;
    fixture.PutExeFile("Qdrfonts.ini", "Garamond\r\n");
    InstallAppFolder(fixture.Folder, fixture.Windows);
    EXPECT_EQ(fixture.ExeFile("Qdrfonts.ini"), "Garamond\r\n");
}

TEST(FirstRun, AFolderThatCannotBeMadeRaisesTheProgramsError) {
    AppFixture fixture;
    WriteWholeFile(fixture.Temp / "blocked", "a file where a folder should be");
    const AppFolder folder{fixture.Temp / "blocked" / "veyrant-sagrel"};
    try {
        InstallAppFolder(folder, fixture.Windows);
        FAIL() << "no error";
    } catch (const ProgramError& error) {
        EXPECT_EQ(error.Number(), ErrorNumber::PathNotFound);
    }
}

} // namespace
} // namespace veyrant::testing
