#include "LibraryFixture.h"
#include "core/ProgramError.h"
#include "storage/Trash.h"

namespace veyrant::testing {
namespace {

using DialogueLibraryTest = LibraryFixture;

TEST_F(DialogueLibraryTest, RetentionKeepsBothLimitsAndNeverTheLastDialogue) {
    std::vector<double> halfDays(35);
    for (std::size_t i = 0; i < halfDays.size(); ++i) {
        halfDays[i] = static_cast<double>(i) * 0.5;
    }
    const struct {
        const char* What;
        std::vector<double> Ages; // days before now, one saved Dialogue each
        std::int16_t MaxFiles, MaxDays;
        int Kept, OldestAge;
    } cases[] = {
        {"35 with room for 30: the five oldest go in one scan", halfDays, 30, 21, 30, 14},
        {"one Dialogue 500 days old stays", {500}, 30, 21, 1, 500},
        {"the last one stays with a maximum of 0 files", {1, 2, 3, 4}, 0, 21, 1, 1},
        {"older than the days go, newest first to stay", {1, 5, 22, 30, 40}, 30, 21, 2, 5},
        {"within both limits nothing goes", {1, 2, 21}, 3, 21, 3, 21},
        {"an age of 21.5 rounds to 22 and goes", {1, 21.5}, 30, 21, 1, 1},
        {"an age of 20.5 rounds to 20 and stays", {1, 20.5}, 30, 20, 2, 20},
        {"dated after now, as when the clock was set back, is new", {-3, -0.2}, 30, 0, 2, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.What);
        std::filesystem::remove_all(Folder.Root);
        UserSettings.MaxLibraryFiles = c.MaxFiles;
        UserSettings.MaxLibraryDays = c.MaxDays;
        std::vector<std::string> names;
        for (const double age : c.Ages) {
            names.push_back(SaveAt(DaysAgo(age)));
        }
        ASSERT_TRUE(Library.ScanLibrary());
        EXPECT_EQ(std::pair(Library.Listing().LibraryCount, Library.Listing().OldestAge),
                  std::pair(c.Kept, c.OldestAge));
        // The newest ones are kept, in both folders alike.
        std::sort(names.begin(), names.end());
        const std::vector<std::string> kept(names.end() - c.Kept, names.end());
        EXPECT_EQ(Names(Folder.Isp()), kept);
        EXPECT_EQ(Names(Folder.Dlg()), kept);
        EXPECT_TRUE(Windows.Boxes.empty());
    }
}

TEST_F(DialogueLibraryTest, ListingHoldsDateOrderAndLabels) {
    const auto earliest = SaveAt({2026, 11, 3, 9, 5, 0});
    const auto prior = SaveAt({2026, 11, 20, 23, 45, 0});
    const auto latest = SaveAt({2026, 11, 22, 0, 1, 0});
    ASSERT_TRUE(Library.ScanLibrary());
    const auto& listing = Library.Listing();
    ASSERT_EQ(listing.LibraryCount, 3);
    EXPECT_EQ(std::vector(listing.LibraryFiles.begin() + 1, listing.LibraryFiles.begin() + 4),
              (std::vector<std::string>{earliest, prior, latest}));
    EXPECT_EQ(listing.OldestFile, earliest);
    EXPECT_EQ(listing.OldestAge, 19);
    EXPECT_EQ(listing.LibraryLabels[1] + "/" + listing.LibraryLabels[2] + "/" +
                  listing.LibraryLabels[3] + "/" + listing.LibraryDates[1] + "/" +
                  listing.LibraryDates[2] + "/" + listing.LibrarySortDates[3],
              "Earliest, Nov 3/Prior, Nov 20/Latest, Nov 22/Tuesday, 9:05 am, November 3, "
              "2026/Friday, 11:45 pm, November 20, 2026/26-11-22");
    EXPECT_EQ(std::pair(listing.LibraryListOrder[1], listing.LibraryListOrder[3]), std::pair(3, 1));
    // One Dialogue alone has a short label of the date only.
    UserSettings.MaxLibraryFiles = 1;
    ASSERT_TRUE(Library.ScanLibrary());
    EXPECT_EQ(listing.LibraryCount, 1);
    EXPECT_EQ(listing.LibraryLabels[1] + "/" + listing.LibraryDates[1],
              "Nov 22/Sunday, 12:01 am, November 22, 2026");
}

TEST_F(DialogueLibraryTest, EqualKeysLeaveTheOneListedFirstAsTheLater) {
    SaveAt({2026, 11, 20, 10, 0, 0});
    std::filesystem::copy_file(Folder.Isp() / "76112010.000", Folder.Isp() / "76112010.001");
    std::filesystem::copy_file(Folder.Dlg() / "76112010.000", Folder.Dlg() / "76112010.001");
    ASSERT_TRUE(Library.ScanLibrary());
    EXPECT_EQ(Library.Listing().LibraryFiles[1] + Library.Listing().LibraryFiles[2],
              "76112010.00176112010.000");
}

TEST_F(DialogueLibraryTest, MissingFoldersAreMadeAnewAndAnEmptyLibraryKeepsOldTables) {
    SaveAt(DaysAgo(1));
    ASSERT_TRUE(Library.ScanLibrary());
    const std::string name = Library.Listing().LibraryFiles[1];
    std::filesystem::remove_all(Folder.Isp());
    std::filesystem::remove_all(Folder.Dlg());
    ASSERT_TRUE(Library.ScanLibrary());
    EXPECT_EQ(Library.Listing().LibraryCount, 0);
    EXPECT_EQ(Library.Listing().LibraryFiles[1], name);
    EXPECT_TRUE(is_directory(Folder.Isp()) && is_directory(Folder.Dlg()) && Windows.Boxes.empty());
}

TEST_F(DialogueLibraryTest, AMissingDialogueFileStopsTheRetentionWithTheLibraryBox) {
    UserSettings.MaxLibraryFiles = 1;
    const auto oldest = SaveAt(DaysAgo(3));
    const auto middle = SaveAt(DaysAgo(2));
    SaveAt(DaysAgo(1));
    std::filesystem::remove(Folder.Dlg() / oldest);
    EXPECT_FALSE(Library.ScanLibrary());
    EXPECT_EQ(BoxTitles(), std::vector<std::string>{"Error 53 Dialogue Library File Names"});
    // Its inspiration is already gone; the next scan goes on from there.
    EXPECT_FALSE(std::filesystem::exists(Folder.Isp() / oldest));
    EXPECT_TRUE(Library.ScanLibrary());
    EXPECT_EQ(Library.Listing().LibraryCount, 1);
    EXPECT_FALSE(std::filesystem::exists(Folder.Isp() / middle));
}

TEST_F(DialogueLibraryTest, StrayNamesInTheInspirationFolderCountAsDialogues) {
    const auto saved = SaveAt(DaysAgo(1));
    // Hidden files are no Dialogues: among them a write of ours cut short.
    WriteWholeFile(Folder.Isp() / ".76112010.000.new", "\tcut short");
    // A name whose fields make a date counts with that date.
    WriteWholeFile(Folder.Isp() / "76112012.30x", "no tab at all");
    ASSERT_TRUE(Library.ScanLibrary());
    EXPECT_EQ(Library.Listing().LibraryCount, 2);
    EXPECT_EQ(Library.Listing().LibraryFiles[1] + " " + Library.Listing().LibraryLabels[1],
              "76112012.30x Earliest, Nov 20");
    // One whose fields make no date counts too, as the oldest, and the scan says it cannot
    // read it; the program goes on.
    WriteWholeFile(Folder.Isp() / "notes.txt", "\tnotes");
    EXPECT_FALSE(Library.ScanLibrary());
    EXPECT_EQ(Library.Listing().LibraryCount, 3);
    EXPECT_EQ(Library.Listing().OldestFile, "notes.txt");
    EXPECT_EQ(BoxTitles(), std::vector<std::string>{"Error 13 Dialogue Library File Names"});
    EXPECT_TRUE(std::filesystem::exists(Folder.Isp() / saved));
}

TEST_F(DialogueLibraryTest, SavingTakesTheDateOfTheWorkBuffersAndWritesBothFilesExactly) {
    const std::string inspiration = "\tEvery door you open \x93leads\x94 somewhere.";
    const std::string dialogue = "\r\n\r\n\t\x93Why now?\x94\r\n\tBecause the hour has come.";
    KeepInspirationAt(inspiration, {2026, 11, 21, 18, 7, 42});
    ASSERT_TRUE(Library.AddToLibrary(inspiration, dialogue));
    EXPECT_EQ(SavedPair("76112118.070"), inspiration + "|" + dialogue);
    EXPECT_EQ(Library.Listing().LibraryCount, 1);
    // A second save in the same minute takes the next file tag; the first pair stays.
    SetFileDate(Folder.Exe() / "savei.tmp", {2026, 11, 21, 18, 7, 5});
    EXPECT_EQ(Library.AddToLibrary(inspiration, dialogue + " More."), "76112118.071");
    EXPECT_EQ(Library.Listing().LibraryCount, 2);
    EXPECT_EQ(ReadWholeFile(Folder.Dlg() / "76112118.070"), dialogue);
    EXPECT_EQ(ReadWholeFile(Folder.Dlg() / "76112118.071"), dialogue + " More.");
    // An inspiration without its tab is kept as it stands.
    SetFileDate(Folder.Exe() / "savei.tmp", {2026, 11, 21, 18, 8, 0});
    ASSERT_TRUE(Library.AddToLibrary("no tab here", dialogue));
    EXPECT_EQ(ReadWholeFile(Folder.Isp() / "76112118.080"), "no tab here");
    EXPECT_EQ(Library.Listing().LibraryCount, 3);
    EXPECT_TRUE(Windows.Boxes.empty());
    // With all ten tags of a minute taken the save is refused, and the box says why.
    for (int tag = 1; tag < FileTags; ++tag) {
        ASSERT_TRUE(Library.AddToLibrary(inspiration, dialogue));
    }
    EXPECT_FALSE(Library.AddToLibrary(inspiration, dialogue));
    EXPECT_EQ(Names(Folder.Dlg()).size(), 12u);
    EXPECT_EQ(BoxTitles(), std::vector<std::string>{"Cannot Save -- Ten Dialogues in One Minute"});
}

// Without its work buffer a save takes the present minute; one in 2050 is written, but the
// Library cannot read its name.
TEST_F(DialogueLibraryTest, ASaveTakesThePresentMinuteOrAYearTheLibraryCannotRead) {
    ASSERT_TRUE(Library.AddToLibrary("\tinspiration", "\r\n\r\n\tdialogue"));
    EXPECT_EQ(Names(Folder.Dlg()), std::vector<std::string>{"76112212.000"});
    KeepInspirationAt("\tlate", {2050, 7, 19, 14, 30, 0});
    EXPECT_TRUE(Library.AddToLibrary("\tlate", "\r\n\r\n\tlate"));
    EXPECT_EQ(Names(Folder.Isp()), (std::vector<std::string>{"100071914.300", "76112212.000"}));
    EXPECT_EQ(BoxTitles(), std::vector<std::string>{"Error 13 Dialogue Library File Names"});
}

TEST_F(DialogueLibraryTest, AFailedSaveLeavesTheOldPairAndSaysWhy) {
    KeepInspirationAt("\told", {2026, 11, 21, 18, 7, 0});
    ASSERT_TRUE(Library.AddToLibrary("\told", "old dialogue"));
    const bool added = WithDiskNearlyFull(
        [&] { return Library.AddToLibrary("\tnew", std::string(100000, 'x')).has_value(); });
    EXPECT_FALSE(added);
    EXPECT_EQ(SavedPair("76112118.070"), "\told|old dialogue");
    EXPECT_EQ(Names(Folder.Isp()), Names(Folder.Dlg()));
    EXPECT_EQ(Names(Folder.Isp()), std::vector<std::string>{"76112118.070"});
    ASSERT_EQ(Windows.Boxes.size(), 1u);
    EXPECT_TRUE(Windows.Boxes[0].Text.starts_with(
        "Error 61 attempting to save your Dialogue in the Dialogue Library. The disk is "
        "full.\r\n\r\nYour Dialogue is not lost."));
    // A file where a folder of the Library should be: the save fails and the scan says so.
    std::filesystem::remove_all(Folder.Dlg());
    WriteWholeFile(Folder.Dlg(), "not a folder");
    EXPECT_FALSE(Library.AddToLibrary("\tinspiration", "dialogue"));
    EXPECT_EQ(Names(Folder.Isp()), std::vector<std::string>{"76112118.070"});
    EXPECT_EQ(Windows.Boxes.back().Title, "Error 76 Saving the Dialogue");
    EXPECT_NE(Windows.Boxes.back().Text.find("The folder " + Folder.Dlg().string() +
                                             " cannot be written."),
              std::string::npos);
    std::filesystem::remove_all(Folder.Isp());
    WriteWholeFile(Folder.Isp(), "a file where the folder should be");
    EXPECT_FALSE(Library.ScanLibrary());
    EXPECT_EQ(Windows.Boxes.back().Title, "Error 76 Dialogue Library File Names");
}

// Retention and a delete move the pairs to the trash, each file with its .trashinfo; where the
// trash cannot take them, nothing goes for good without a Yes.
TEST_F(DialogueLibraryTest, DeletedDialoguesGoToTheTrash) {
    const auto old = SaveAt(DaysAgo(30));
    const auto kept = SaveAt(DaysAgo(1));
    Library.ScanLibrary();
    EXPECT_EQ(Names(Folder.Trash() / "files"), (std::vector<std::string>{old, old + ".2"}));
    EXPECT_EQ(ReadWholeFile(Folder.Trash() / "files" / old), "\tInspiration of " + old);
    EXPECT_EQ(ReadWholeFile(Folder.Trash() / "info" / (old + ".2.trashinfo")),
              "[Trash Info]\nPath=" + PercentEncoded((Folder.Dlg() / old).string()) +
                  "\nDeletionDate=2026-11-22T12:00:00\n");
    std::filesystem::remove_all(Folder.Trash());
    WriteWholeFile(Folder.Trash(), "a file where the trash should be");
    Windows.Answers = {MessageAnswer::Yes, MessageAnswer::No, MessageAnswer::Yes,
                       MessageAnswer::Yes};
    EXPECT_FALSE(Library.DeleteDialogue(kept));
    EXPECT_TRUE(std::filesystem::exists(Folder.Dlg() / kept));
    EXPECT_TRUE(Library.DeleteDialogue(kept));
    EXPECT_FALSE(std::filesystem::exists(Folder.Dlg() / kept));
    EXPECT_EQ(BoxTitles()[1], "Error 76 Moving to the Trash");
}

} // namespace
} // namespace veyrant::testing
