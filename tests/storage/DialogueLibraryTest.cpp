#include "LibraryFixture.h"
#include "storage/Trash.h"

namespace veyrant::testing {
namespace {

using DialogueLibraryTest = LibraryFixture;

TEST_F(DialogueLibraryTest, EqualKeysLeaveTheOneListedFirstAsTheLater) {
    SaveAt({2026, 11, 20, 10, 0, 0});
    std::filesystem::copy_file(Folder.Isp() / "76112010.000", Folder.Isp() / "76112010.001");
    std::filesystem::copy_file(Folder.Dlg() / "76112010.000", Folder.Dlg() / "76112010.001");
    ASSERT_TRUE(Library.ScanLibrary());
    EXPECT_EQ(Library.Listing().LibraryFiles[1] + Library.Listing().LibraryFiles[2],
              "76112010.00176112010.000");
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

TEST_F(DialogueLibraryTest, SavingTakesTheDateOfTheWorkBuffersWritesBothFilesExactlyOrSaysWhyNot) {
    const std::string inspiration = "\tEvery door you open \x93leads\x94 somewhere.";
    const std::string dialogue = "\r\n\r\n\t\x93Why now?\x94\r\n\tBecause the hour has come.";
    // The inspiration buffer, as the Write window keeps it, dates the save.
    std::filesystem::create_directories(Folder.Exe());
    WriteWholeFile(Folder.Exe() / "savei.tmp", inspiration);
    SetFileDate(Folder.Exe() / "savei.tmp", {2026, 11, 21, 18, 7, 42});
    ASSERT_TRUE(Library.AddToLibrary(inspiration, dialogue));
    // A second save in the same minute takes the next file tag; the first pair stays.
    SetFileDate(Folder.Exe() / "savei.tmp", {2026, 11, 21, 18, 7, 5});
    EXPECT_EQ(Library.AddToLibrary(inspiration, dialogue + " More."), "76112118.071");
    EXPECT_EQ(SavedPair("76112118.070") + SavedPair("76112118.071"),
              inspiration + "|" + dialogue + inspiration + "|" + dialogue + " More.");
    // The next minute starts from the first tag again; with all ten of a minute taken the save is
    // refused, and the box says why.
    SetFileDate(Folder.Exe() / "savei.tmp", {2026, 11, 21, 18, 8, 0});
    EXPECT_EQ(Library.AddToLibrary(inspiration, dialogue), "76112118.080");
    EXPECT_TRUE(Library.Listing().LibraryCount == 3 && Windows.Boxes.empty());
    for (int tag = 1; tag < FileTags; ++tag) {
        ASSERT_TRUE(Library.AddToLibrary(inspiration, dialogue));
    }
    EXPECT_FALSE(Library.AddToLibrary(inspiration, dialogue));
    EXPECT_EQ(Names(Folder.Dlg()).size(), 12u);
    EXPECT_EQ(BoxTitles(), std::vector<std::string>{"Cannot Save -- Ten Dialogues in One Minute"});
    // A save the disk cuts short says why.
    SetFileDate(Folder.Exe() / "savei.tmp", {2026, 11, 21, 18, 9, 0});
    EXPECT_FALSE(WithDiskNearlyFull(
        [&] { return Library.AddToLibrary("\tnew", std::string(100000, 'x')).has_value(); }));
    EXPECT_TRUE(Windows.Boxes.back().Text.starts_with("Error 61 attempting to save"));
    // A file where a folder of the Library should be: the save fails and the scan says so.
    std::filesystem::remove_all(Folder.Dlg());
    WriteWholeFile(Folder.Dlg(), "not a folder");
    EXPECT_FALSE(Library.AddToLibrary("\tinspiration", "dialogue"));
    EXPECT_EQ(Windows.Boxes.back().Title, "Error 76 Saving the Dialogue");
    EXPECT_NE(Windows.Boxes.back().Text.find("The folder " + Folder.Dlg().string() +
                                             " cannot be written."),
              std::string::npos);
    std::filesystem::remove_all(Folder.Isp());
    WriteWholeFile(Folder.Isp(), "a file where the folder should be");
    EXPECT_FALSE(Library.ScanLibrary());
    EXPECT_EQ(Windows.Boxes.back().Title, "Error 76 Dialogue Library File Names");
}

// Retention and a delete move the pairs to the trash, each file with its .trashinfo, but
// retention never takes the last Dialogue; where the trash cannot take them, nothing goes for
// good without a Yes.
TEST_F(DialogueLibraryTest, DeletedDialoguesGoToTheTrash) {
    const auto old = SaveAt(DaysAgo(30));
    const auto kept = SaveAt(DaysAgo(1));
    Library.ScanLibrary();
    EXPECT_EQ(Names(Folder.Trash() / "files"), (std::vector<std::string>{old, old + ".2"}));
    EXPECT_EQ(ReadWholeFile(Folder.Trash() / "files" / old), "\tInspiration of " + old);
    EXPECT_EQ(ReadWholeFile(Folder.Trash() / "info" / (old + ".2.trashinfo")),
              "[Trash Info]\nPath=" + PercentEncoded((Folder.Dlg() / old).string()) +
                  "\nDeletionDate=2026-11-22T12:00:00\n");
    // The last Dialogue stays, whatever the limits.
    UserSettings.MaxLibraryFiles = 0;
    UserSettings.MaxLibraryDays = 0;
    ASSERT_TRUE(Library.ScanLibrary());
    EXPECT_EQ(Names(Folder.Dlg()), std::vector<std::string>{kept});
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
