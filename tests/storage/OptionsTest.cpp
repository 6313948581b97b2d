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
    bool Shows(std::initializer_list<std::string> lines) const {
        const auto dump = Window.Dump();
        return std::all_of(lines.begin(), lines.end(),
                           [&](const auto& line) { return dump.find(line) != std::string::npos; });
    }
};

TEST_F(OptionsTest, OkClampsTheLimitsAndEndsTheProgram) {
    const struct {
        std::string Files, Days;
        int StoredFiles, StoredDays;
    } cases[] = {
        {"", "", 1, 3},       {"0", "2", 1, 3},     {"45", "60", 45, 60},
        {"99", "99", 99, 99}, {"7x", "12 ", 7, 12},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Files + "/" + c.Days);
        UserSettings = Settings{};
        Window.Form_Load();
        Window.txtSetSave_Change(c.Files);
        Window.txtSetDays_Change(c.Days);
        Window.cmdOK_Click();
        EXPECT_EQ(UserSettings.MaxLibraryFiles * 1000 + UserSettings.MaxLibraryDays,
                  c.StoredFiles * 1000 + c.StoredDays);
        EXPECT_EQ(Windows.WindowEvents.back(), "hide Options");
    }
    EXPECT_TRUE(Exits == 5 && Windows.Boxes.empty());
}

TEST_F(OptionsTest, LimitsThatWouldDeleteAskFirst) {
    SaveDays({10, 5, 1});
    Window.Form_Load();
    // Anything but Yes puts both limits back and keeps the window open.
    Windows.Answers = {MessageAnswer::No};
    Window.txtSetSave_Change("2");
    Window.txtSetDays_Change("5");
    Window.Check1_Click(1);
    Window.cmdOK_Click();
    ASSERT_EQ(BoxTitles(), std::vector<std::string>{"Delete Dialogues"});
    EXPECT_TRUE(Windows.Boxes[0].DefaultButton == 2 && Exits == 0);
    EXPECT_EQ(Window.Dump().substr(0, 31), "txtSetSave \"30\"\ntxtSetDays \"21\"");
    EXPECT_EQ(UserSettings.MaxLibraryFiles + UserSettings.MaxLibraryDays, 51);
    EXPECT_EQ(UserSettings.GuestMode, 1);
    // The days alone are enough to ask; Yes ends the program and the next start deletes.
    Windows.Answers = {MessageAnswer::Yes};
    Window.txtSetDays_Change("7");
    Window.cmdOK_Click();
    EXPECT_TRUE(Windows.Boxes.size() == 2 && Exits == 1 && UserSettings.MaxLibraryDays == 7);
    EXPECT_EQ(Names(Folder.Isp()).size(), 3u);
    EXPECT_TRUE(Library.ScanLibrary());
    EXPECT_EQ(Library.Listing().LibraryCount, 2);
}

TEST_F(OptionsTest, CleanDeletesEveryDialogueAfterAskingOnce) {
    SaveDays({2, 1});
    Window.Form_Load();
    Windows.Answers = {MessageAnswer::Cancel};
    Window.cmdClean_Click();
    EXPECT_TRUE(Names(Folder.Isp()).size() == 2 && ReaderUnloads == 0);
    ASSERT_EQ(Windows.Boxes.size(), 1u);
    EXPECT_EQ(Windows.Boxes[0].Text.substr(0, 72),
              "This will delete all the Dialogues from the Library, a total of 2 files.");
    Windows.Answers = {MessageAnswer::Yes};
    Window.cmdClean_Click();
    EXPECT_TRUE(Names(Folder.Isp()).empty() && Names(Folder.Dlg()).empty());
    EXPECT_TRUE(ReaderUnloads == 1 && Library.Listing().LibraryCount == 0 && Exits == 0);
    EXPECT_TRUE(Shows(
        {"Label4 \"All Dialogues have been deleted.\"\n", "cmdClean disabled\nfocus cmdCancel\n"}))
        << Window.Dump();
    // Opened again on the empty Library, it has nothing to clean.
    Window.Form_Load();
    EXPECT_TRUE(Shows({"Label4 \"There are no files to clean.\"\n", "cmdClean disabled\n"}));
}

TEST_F(OptionsTest, CleanStopsAtAMissingDialogueFileWithItsBox) {
    const auto first = SaveAt(DaysAgo(2));
    const auto second = SaveAt(DaysAgo(1));
    std::filesystem::remove(Folder.Dlg() / first);
    Window.Form_Load();
    Window.cmdClean_Click();
    ASSERT_EQ(BoxTitles(),
              (std::vector<std::string>{"Delete All Dialogues", "Dialogue Library Corrupted"}));
    EXPECT_EQ(Windows.Boxes[1].Text.substr(0, 62),
              "Error 53 attempting to delete a file from the Dialogue Library");
    EXPECT_EQ(Names(Folder.Isp()), std::vector<std::string>{second});
}

} // namespace
} // namespace veyrant::testing
