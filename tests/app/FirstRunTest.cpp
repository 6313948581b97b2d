#include "app/FirstRun.h"

#include "app/AppFixture.h"
#include "app/FontCheck.h"
#include "shell/DisplayScale.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace veyrant::testing {
namespace {

unsigned Rights(const std::filesystem::path& path) {
    struct stat status {};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return status.st_mode & 07777;
}

// The folders are laid down with the faces this machine has, which the font check passes, and
// another account must not read the Dialogues: not on a fresh install, not in a folder an earlier
// version left open, and not in a file written since.
TEST(FirstRun, LaysDownTheFoldersWithTheFacesThisMachineHasForTheUserAloneAndChecksTheFaces) {
    // The rights of the folders and files found (0: the folder is new), and the face missing.
    const std::tuple<unsigned, unsigned, const char*> cases[] = {
        {0, 0, ""},
        {0755, 0644, "Times New Roman"},
        {0777, 0666, "Times New Roman/italic"},
        {0700, 0400, ""},
    };
    for (const auto& [folderRights, fileRights, missing] : cases) {
        SCOPED_TRACE(folderRights);
        AppFixture fixture;
        fixture.Windows.MissingFaces.insert(missing);
        const AppFolder& folder = fixture.Folder;
        if (folderRights != 0) {
            for (const auto& path : {folder.Exe(), folder.Dlg(), folder.Isp()}) {
                std::filesystem::create_directories(path);
                WriteWholeFile(path / "76112010.000", "\r\n\r\n\tprivate");
                ::chmod((path / "76112010.000").c_str(), fileRights);
                ::chmod(path.c_str(), folderRights);
            }
            ::chmod(folder.Root.c_str(), folderRights);
        }
        InstallAppFolder(folder, fixture.Windows);
        for (const auto& path : {folder.Root, folder.Exe(), folder.Dlg(), folder.Isp()}) {
            EXPECT_EQ(Rights(path), 0700u) << path;
        }
        if (folderRights != 0) {
            EXPECT_EQ(Rights(folder.Dlg() / "76112010.000"), fileRights & 0600u);
        }
        WriteWholeFile(folder.Isp() / "76112011.000", "\tnew");
        for (const auto& path : {folder.Exe() / "Qdrfonts.ini", folder.Exe() / "qdr41.sys",
                                 folder.Exe() / "qdr41.mtx", folder.Isp() / "76112011.000"}) {
            EXPECT_EQ(Rights(path), 0600u) << path;
        }
        const std::string face = *missing == 0 ? "Times New Roman" : "Liberation Serif";
        EXPECT_EQ(fixture.ExeFile("Qdrfonts.ini"), face + "\r\n" + face + " Italic\r\n");
        EXPECT_TRUE(CheckFonts(fixture.App) && fixture.Windows.Boxes.empty());
    }
    // Each face that cannot be selected is named, after one stop box per failed step, and the
    // program ends.
    const auto slot = [](const std::string& face, const char* file, const std::string& usual) {
        return "Error 380 accessing your font named {" + face + "} associated with the file <" +
               file + "> usually named {" + usual + "}.\r\n\r\n";
    };
    const std::string italic = slot("Garamond Italic", "timesi.ttf", "Times New Roman Italic");
    const std::tuple<const char*, std::string, std::size_t> failing[] = {
        {"Garamond", slot("Garamond", "times.ttf", "Times New Roman") + italic, 3},
        {"Garamond/italic", italic, 2},
    };
    for (const auto& [missing, slots, boxes] : failing) {
        AppFixture fixture;
        fixture.PutExeFile("Qdrfonts.ini", "Garamond\r\nGaramond Italic\r\n");
        fixture.Windows.MissingFaces.insert(missing);
        EXPECT_FALSE(CheckFonts(fixture.App));
        EXPECT_TRUE(fixture.Windows.Ended);
        ASSERT_EQ(fixture.Windows.Boxes.size(), boxes);
        const MessageBoxRequest& last = fixture.Windows.Boxes.back();
        EXPECT_EQ(last.Title, "Fonts Not Functioning");
        EXPECT_EQ(last.Icon, MessageIcon::Stop);
        EXPECT_EQ(fixture.Windows.Boxes.front().Icon, MessageIcon::Stop);
        EXPECT_NE(last.Text.find("accessed:\r\n\r\n" + slots + " Details"), std::string::npos);
    }
}

TEST(DisplayScale, AnOptionWithNoRowLeavesTheFactorAtZero) {
    for (const int option : {7, -1, 4}) {
        DisplayScale scale;
        SetDisplayScale(option, scale);
        EXPECT_EQ(scale.ScaleFactor, 0) << option;
        EXPECT_EQ(scale.ButtonFontSize, 0) << option;
    }
}

} // namespace
} // namespace veyrant::testing
