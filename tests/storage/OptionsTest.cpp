#include "storage/Options.h"

#include "LibraryFixture.h"

namespace veyrant::testing {
namespace {

class OptionsTest : public LibraryFixture {
protected:
    int Exits = 0;
    int ReaderUnloads = 0;
    veyrant::Options Window{Library, UserSettings, Windows, [this] { ++Exits; },
                            [this] { ++ReaderUnloads; }};
    const OptionsControls& Shown = Window.Controls();
};

// A missing Dialogue file stops the clean with its box; opened again, the window cleans the rest.
// OK then clamps the limits and asks before they would delete.
TEST_F(OptionsTest, CleanDeletesEveryDialogueAfterAskingOnceAndOkClampsTheLimitsAndAsks) {
    const auto first = SaveAt(DaysAgo(2));
    const auto second = SaveAt(DaysAgo(1));
    Window.Form_Load();
    Windows.Answers = {MessageAnswer::Cancel};
    Window.cmdClean_Click();
    EXPECT_TRUE(Names(Folder.Isp()).size() == 2 && ReaderUnloads == 0);
    EXPECT_NE(Windows.Boxes.at(0).Text.find(", a total of 2 files."), std::string::npos);
    std::filesystem::remove(Folder.Dlg() / first);
    Window.cmdClean_Click();
    ASSERT_EQ(BoxTitles(), (std::vector<std::string>{"Delete All Dialogues", "Delete All Dialogues",
                                                     "Dialogue Library Corrupted"}));
    EXPECT_EQ(Windows.Boxes[2].Text.substr(0, 9), "Error 53 ");
    EXPECT_EQ(Names(Folder.Isp()), std::vector<std::string>{second});
    Window.Form_Load();
    Window.cmdClean_Click();
    EXPECT_TRUE(Names(Folder.Isp()).empty() && Names(Folder.Dlg()).empty());
    EXPECT_TRUE(ReaderUnloads == 2 && Library.Listing().LibraryCount == 0 && Exits == 0);
    EXPECT_EQ(Shown.Label4.Caption, "All Dialogues have been deleted.");
    EXPECT_TRUE(!Shown.cmdClean.Enabled && Shown.Focus == OptionsControl::cmdCancel);
    // Opened again on the empty Library, it has nothing to clean.
    Window.Form_Load();
    EXPECT_TRUE(Shown.Label4.Caption == "There are no files to clean." && !Shown.cmdClean.Enabled);
    EXPECT_NE(Window.Dump().find("cmdClean disabled\n"), std::string::npos);
    Windows.Boxes.clear();
    // The limits typed, and the limits stored.
    const std::tuple<std::string, std::string, int, int> cases[] = {
        {"", "", 1, 3},       {"0", "2", 1, 3},     {"45", "60", 45, 60},
        {"99", "99", 99, 99}, {"7x", "12 ", 7, 12},
    };
    for (const auto& [files, days, storedFiles, storedDays] : cases) {
        SCOPED_TRACE(files + "/" + days);
        UserSettings = Settings{};
        Window.Form_Load();
        Window.txtSetSave_Change(files);
        Window.txtSetDays_Change(days);
        Window.cmdOK_Click();
        EXPECT_EQ(UserSettings.MaxLibraryFiles * 1000 + UserSettings.MaxLibraryDays,
                  storedFiles * 1000 + storedDays);
        EXPECT_EQ(Windows.WindowEvents.back(), "hide Options");
    }
    EXPECT_TRUE(Exits == 5 && Windows.Boxes.empty());
    UserSettings = Settings{};
    SaveAt(DaysAgo(10));
    SaveAt(DaysAgo(5));
    SaveAt(DaysAgo(1));
    Window.Form_Load();
    // Anything but Yes puts both limits back and keeps the window open.
    Windows.Answers = {MessageAnswer::No};
    Window.txtSetSave_Change("2");
    Window.txtSetDays_Change("5");
    Window.Check1_Click(1);
    Window.cmdOK_Click();
    ASSERT_EQ(BoxTitles(), std::vector<std::string>{"Delete Dialogues"});
    EXPECT_TRUE(Windows.Boxes[0].DefaultButton == 2 && Exits == 5);
    EXPECT_EQ(Window.Dump().substr(0, 31), "txtSetSave \"30\"\ntxtSetDays \"21\"");
    EXPECT_EQ(UserSettings.MaxLibraryFiles + UserSettings.MaxLibraryDays, 51);
    EXPECT_EQ(UserSettings.GuestMode, 1);
    // The days alone are enough to ask; Yes ends the program and the next start deletes.
    Windows.Answers = {MessageAnswer::Yes};
    Window.txtSetDays_Change("7");
    Window.cmdOK_Click();
    EXPECT_TRUE(Windows.Boxes.size() == 2 && Exits == 6 && UserSettings.MaxLibraryDays == 7);
    EXPECT_EQ(Names(Folder.Isp()).size(), 3u);
    EXPECT_TRUE(Library.ScanLibrary());
    EXPECT_EQ(Library.Listing().LibraryCount, 2);
}

} // namespace
} // namespace veyrant::testing
