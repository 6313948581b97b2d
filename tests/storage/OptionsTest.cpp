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

    bool Hidden() const {
        return !Windows.WindowEvents.empty() && Windows.WindowEvents.back() == "hide Options";
    }
};

TEST_F(OptionsTest, OpensWithTheSettingsAndScansTheLibrary) {
    UserSettings.MaxLibraryFiles = 2;
    SaveAt(DaysAgo(3));
    SaveAt(DaysAgo(2));
    SaveAt(DaysAgo(1));
    Window.Form_Load();
    // The labels are the window's fixed texts; what the user set shows in the boxes.
    const auto dump = Window.Dump();
    EXPECT_EQ(dump.substr(0, 40), "txtSetSave \"2\"\ntxtSetDays \"21\"\nCheck1 0\n");
    EXPECT_TRUE(dump.ends_with("Library'.\"\ncmdOK enabled, cmdCancel enabled, cmdClean enabled\n"
                               "focus cmdCancel\n"))
        << dump;
    // The scan at opening has applied the limits already.
    EXPECT_EQ(Library.Listing().LibraryCount, 2);
    EXPECT_EQ(Names(Folder.Isp()).size(), 2u);
}

TEST_F(OptionsTest, AnEmptyLibraryHasNothingToClean) {
    UserSettings.GuestMode = 1;
    Window.Form_Load();
    const auto dump = Window.Dump();
    EXPECT_NE(dump.find("Check1 1\n"), std::string::npos);
    EXPECT_NE(dump.find("Label4 \"There are no files to clean.\"\n"), std::string::npos);
    EXPECT_NE(dump.find("cmdClean disabled\n"), std::string::npos);
}

TEST_F(OptionsTest, OkClampsTheLimitsAndEndsTheProgram) {
    struct Case {
        const char* Files;
        const char* Days;
        int StoredFiles;
        int StoredDays;
    };
    const Case cases[] = {
        {"", "", 1, 3},       {"0", "2", 1, 3},     {"45", "60", 45, 60},
        {"99", "99", 99, 99}, {"7x", "12 ", 7, 12},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.Files) + "/" + c.Days);
        UserSettings = Settings{};
        Window.Form_Load();
        Window.txtSetSave_Change(c.Files);
        Window.txtSetDays_Change(c.Days);
        Window.cmdOK_Click();
        EXPECT_EQ(UserSettings.MaxLibraryFiles, c.StoredFiles);
        EXPECT_EQ(UserSettings.MaxLibraryDays, c.StoredDays);
        EXPECT_TRUE(Hidden());
    }
    EXPECT_EQ(Exits, 5);
    EXPECT_TRUE(Windows.Boxes.empty());
}

TEST_F(OptionsTest, LimitsThatWouldDeleteAskFirst) {
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
    ASSERT_EQ(Windows.Boxes.size(), 1u);
    EXPECT_EQ(Windows.Boxes[0].Title, "Delete Dialogues");
    EXPECT_EQ(Windows.Boxes[0].DefaultButton, 2);
    EXPECT_EQ(Exits, 0);
    EXPECT_EQ(Window.Dump().substr(0, 31), "txtSetSave \"30\"\ntxtSetDays \"21\"");
    EXPECT_EQ(UserSettings.MaxLibraryFiles + UserSettings.MaxLibraryDays, 51);
    EXPECT_EQ(UserSettings.GuestMode, 1);

    // The days alone are enough to ask; Yes ends the program and the next start deletes.
    Windows.Answers = {MessageAnswer::Yes};
    Window.txtSetDays_Change("7");
    Window.cmdOK_Click();
    EXPECT_EQ(Windows.Boxes.size(), 2u);
    EXPECT_EQ(Exits, 1);
    EXPECT_EQ(UserSettings.MaxLibraryDays, 7);
    EXPECT_EQ(Names(Folder.Isp()).size(), 3u);
    EXPECT_TRUE(Library.ScanLibrary());
    EXPECT_EQ(Library.Listing().LibraryCount, 2);
}

TEST_F(OptionsTest, CleanDeletesEveryDialogueAfterAskingOnce) {
    SaveAt(DaysAgo(2));
    SaveAt(DaysAgo(1));
    Window.Form_Load();

    Windows.Answers = {MessageAnswer::Cancel};
    Window.cmdClean_Click();
    EXPECT_EQ(Names(Folder.Isp()).size(), 2u);
    EXPECT_EQ(ReaderUnloads, 0);
    ASSERT_EQ(Windows.Boxes.size(), 1u);
    EXPECT_EQ(Windows.Boxes[0].Text.substr(0, 72),
              "This will delete all the Dialogues from the Library, a total of 2 files.");

    Windows.Answers = {MessageAnswer::Yes};
    Window.cmdClean_Click();
    EXPECT_TRUE(Names(Folder.Isp()).empty());
    EXPECT_TRUE(Names(Folder.Dlg()).empty());
    EXPECT_EQ(ReaderUnloads, 1);
    EXPECT_EQ(Library.Listing().LibraryCount, 0);
    const auto dump = Window.Dump();
    EXPECT_NE(dump.find("Label4 \"All Dialogues have been deleted.\"\n"), std::string::npos);
    EXPECT_NE(dump.find("cmdClean disabled\nfocus cmdCancel\n"), std::string::npos);
    EXPECT_EQ(Exits, 0);
}

TEST_F(OptionsTest, CleanStopsAtAMissingDialogueFileWithItsBox) {
    const auto first = SaveAt(DaysAgo(2));
    const auto second = SaveAt(DaysAgo(1));
    std::filesystem::remove(Folder.Dlg() / first);
    Window.Form_Load();
    Window.cmdClean_Click();
    ASSERT_EQ(Windows.Boxes.size(), 2u);
    EXPECT_EQ(Windows.Boxes[1].Title, "Dialogue Library Corrupted");
    EXPECT_EQ(Windows.Boxes[1].Text.substr(0, 62),
              "Error 53 attempting to delete a file from the Dialogue Library");
    EXPECT_EQ(Names(Folder.Isp()), std::vector<std::string>{second});
    EXPECT_NE(Window.Dump().find("cmdClean enabled"), std::string::npos);
}

} // namespace
} // namespace veyrant::testing
