#include "core/Text.h"
#include "core/WholeFile.h"
#include "dialogue/MirrorDriver.h"
#include "storage/LibraryFileName.h"
#include "support/FileFaults.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

const std::string Statement = "I want to understand why Sundays feel so heavy.";
const std::string Question = "what would make Sunday evenings lighter?";

// A Dialogue of one answered statement and one Suppose pair, its first idea chosen.
void WriteTwoPairs(MirrorDriver& driver) {
    driver.Draws.Draws = {0.9f, 0.7f, 0.2f};
    driver.StartConverse();
    driver.Converse(Statement);
    driver.mirror->Click(MirrorControl::cmdSuppose);
    driver.Engine.Judgements.push_back({1, 20});
    driver.Converse(Question);
    driver.Converse("plan something small for the evening.");
    driver.Converse("lay out Monday on Saturday.");
    driver.mirror->Click(MirrorControl::cmdNew); // Select
}

TEST(MirrorFinish, FinishThenContinueThenFinishAgain) {
    MirrorDriver driver;
    WriteTwoPairs(driver);
    const std::string twoPairs =
        "\r\n\r\n" + Quoted(Statement) + "\r\n\tAnswer 1 to type 2.\r\n\r\n" + Quoted(Question) +
        "\r\n\tYour idea \x93Plan something small for the evening.\x94 is verdict 2.";
    ASSERT_EQ(driver.State().DialogueText, twoPairs);

    driver.mirror->Click(MirrorControl::cmdNew); // Finish
    EXPECT_EQ(driver.mirror->Controls().Title,
              "Veyrant Sagrel -- Dialogue, 1 Page -- Sunday, 12:00 pm, November 22, 2026");
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "To keep your Dialogue, click 'Save', or close the program. Click 'New' to delete "
              "the Dialogue and begin another.");
    EXPECT_EQ(driver.Text(MirrorControl::txtSaved),
              "Inspiration\r\n\r\n\tInspiration number 1.\r\n\r\nDialogue" + twoPairs);
    for (auto method :
         {MirrorControl::cmdConverse, MirrorControl::cmdSuppose, MirrorControl::cmdNotate}) {
        EXPECT_FALSE(driver.Box(method).Enabled);
        EXPECT_FALSE(driver.Box(method).PressedIn);
    }
    EXPECT_TRUE(driver.Box(MirrorControl::cmdSave).Enabled);
    EXPECT_TRUE(driver.Box(MirrorControl::cmdPrint).Enabled);
    EXPECT_EQ(driver.Text(MirrorControl::cmdDisplay), "File");
    // A finished Dialogue takes no keys and answers a method button with a help box.
    const auto keys = driver.Engine.KeyCodes.size();
    driver.Type("more");
    EXPECT_EQ(driver.Engine.KeyCodes.size(), keys);
    driver.mirror->Click(MirrorControl::cmdConverse);
    ASSERT_EQ(driver.Layer.Boxes.size(), 1u);
    EXPECT_EQ(driver.Layer.Boxes[0].Title, "Veyrant Sagrel Help");
    auto buffers = driver.Buffers.ReadWorkBuffers();
    ASSERT_TRUE(buffers.has_value());
    EXPECT_EQ(buffers->Buffers.DialogueText, twoPairs);
    EXPECT_EQ(buffers->Buffers.PairCount, 2);

    driver.mirror->Click(MirrorControl::cmdRemove); // Continue
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Converse);
    EXPECT_TRUE(driver.Box(MirrorControl::cmdConverse).PressedIn);
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "Finish");
    EXPECT_EQ(driver.Text(MirrorControl::cmdDisplay), "Display");
    EXPECT_FALSE(driver.Box(MirrorControl::cmdSave).Enabled);
    EXPECT_FALSE(driver.Box(MirrorControl::cmdPrint).Enabled);
    EXPECT_EQ(driver.State().DisplayFull, 0);
    EXPECT_EQ(driver.Text(MirrorControl::txtSaved), "Dialogue" + twoPairs);
    EXPECT_EQ(driver.State().CycleCount, 2);
    EXPECT_EQ(driver.State().InspirationText, "\tInspiration number 1.");

    driver.Converse("Sunday is the day I stop being busy.");
    driver.mirror->Click(MirrorControl::cmdNew); // Finish again
    buffers = driver.Buffers.ReadWorkBuffers();
    ASSERT_TRUE(buffers.has_value());
    EXPECT_EQ(buffers->Buffers.PairCount, 3);
    EXPECT_EQ(buffers->Buffers.DialogueText, twoPairs + "\r\n\r\n" +
                                                 Quoted("Sunday is the day I stop being busy.") +
                                                 "\r\n\tAnswer 3 to type 2.");
    EXPECT_EQ(driver.Text(MirrorControl::cmdRemove), "Continue");
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "New");
}

// New asks only for an unsaved Dialogue, and resets on No.
TEST(MirrorFinish, NewAsksOnlyForAnUnsavedDialogueAndResetsOnNo) {
    const struct {
        const char* Name;
        bool Guest, SavedFirst;
        MessageAnswer Answer;
        bool Asked, Reset;
    } cases[] = {{"Yes", false, false, MessageAnswer::Yes, true, false},
                 {"Cancel", false, false, MessageAnswer::Cancel, true, false},
                 {"No", false, false, MessageAnswer::No, true, true},
                 {"Guest", true, false, MessageAnswer::Yes, false, true},
                 {"Saved", false, true, MessageAnswer::Yes, false, true}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Name);
        MirrorDriver driver;
        driver.App.UserSettings.GuestMode = c.Guest ? 1 : 0;
        driver.StartConverse();
        driver.Converse(Statement);
        driver.mirror->Click(MirrorControl::cmdNew); // Finish
        EXPECT_EQ(driver.Box(MirrorControl::cmdSave).Enabled, !c.Guest);
        driver.Layer.Answers.push_back(c.Answer);
        if (c.SavedFirst) {
            driver.mirror->Click(MirrorControl::cmdSave);
            EXPECT_EQ(driver.Library.Listing().LibraryCount, 1);
        } else {
            driver.mirror->Click(MirrorControl::cmdNew);
        }

        const bool asked = !driver.Layer.Boxes.empty();
        EXPECT_EQ(asked, c.Asked);
        if (asked) {
            EXPECT_EQ(driver.Layer.Boxes[0].Title, "Save Finished Dialogue");
            EXPECT_EQ(driver.Layer.Boxes[0].Buttons, MessageButtons::YesNoCancel);
            EXPECT_EQ(driver.Layer.Boxes[0].Text,
                      "When you click 'Save', your Dialogue is added to the Library, where you may "
                      "read, print, file, or delete it anytime. You may also temporarily save the "
                      "Dialogue and continue it later if you exit the program without clicking "
                      "'New'.\r\n\r\nDo you wish to add your Dialogue to the Library before "
                      "beginning another?");
        }
        if (c.Reset) {
            EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::None);
            EXPECT_EQ(driver.State().DialogueText, "");
            EXPECT_EQ(driver.State().PairCount, 0);
            EXPECT_EQ(driver.State().CycleCount, 0);
            EXPECT_EQ(driver.State().DialogueSaved, 0);
            EXPECT_FALSE(driver.Buffers.ReadWorkBuffers().has_value());
            EXPECT_EQ(driver.Text(MirrorControl::txtResponse),
                      "Inspiration\r\n\tInspiration number 2.");
            EXPECT_EQ(driver.Text(MirrorControl::txtSaved).substr(0, 12), "Suggestion 2");
            EXPECT_EQ(driver.mirror->Controls().Title,
                      c.Guest ? "Veyrant Sagrel -- New Dialogue -- Guest Mode"
                              : "Veyrant Sagrel -- New Dialogue");
            EXPECT_FALSE(driver.Box(MirrorControl::cmdNew).Visible);
            EXPECT_TRUE(driver.Box(MirrorControl::cmdConverse).Enabled);
        } else {
            EXPECT_EQ(driver.State().PairCount, 1);
            EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "New");
            EXPECT_TRUE(driver.Buffers.ReadWorkBuffers().has_value());
        }
    }
}

// A Prior Dialogue reopens with its age and the date it was written.
TEST(MirrorFinish, APriorDialogueReopensWithItsAge) {
    const struct {
        DateTime Written;
        std::string Title;
    } cases[] = {{{2026, 11, 22, 8, 30, 0},
                  "Veyrant Sagrel -- Dialogue, 1 Page, 0 Days -- Sunday, 8:30 am, "
                  "November 22, 2026"},
                 {{2026, 11, 21, 21, 5, 0},
                  "Veyrant Sagrel -- Dialogue, 1 Page, 1 Day -- Saturday, 9:05 pm, "
                  "November 21, 2026"},
                 {{2026, 11, 17, 9, 5, 0},
                  "Veyrant Sagrel -- Dialogue, 1 Page, 5 Days Old -- Tuesday, 9:05 "
                  "am, November 17, 2026"},
                 // Buffers dated after now, as when the clock was set back.
                 {{2026, 11, 25, 19, 0, 0},
                  "Veyrant Sagrel -- Dialogue, 1 Page, 0 Days -- Wednesday, 7:00 pm, "
                  "November 25, 2026"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Title);
        MirrorDriver driver;
        driver.LeavePriorDialogue(3);
        driver.Clock.FileDates[driver.App.Folder.Exe() / "savei.tmp"] = c.Written;
        driver.mirror->StartWindow();
        EXPECT_EQ(driver.mirror->Controls().Title, c.Title);
        EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::None);
        EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "New");
        EXPECT_EQ(driver.Text(MirrorControl::cmdRemove), "Continue");
        EXPECT_EQ(driver.Text(MirrorControl::cmdDisplay), "File");
        EXPECT_EQ(driver.Text(MirrorControl::txtSaved).substr(0, 35),
                  "Inspiration\r\n\r\n\tAn old inspiration.");
        EXPECT_EQ(driver.Text(MirrorControl::txtNote),
                  "Click 'Continue' to open and continue the prior Dialogue. Or click 'New' to "
                  "erase the Dialogue and begin another.");
        EXPECT_EQ(driver.State().PairCount, 3);
        EXPECT_EQ(driver.State().DisplayFull, 1);
        EXPECT_EQ(driver.Box(MirrorControl::txtSaved).Background, Colour::EntryYellow);
        EXPECT_FALSE(driver.Box(MirrorControl::cmdConverse).Enabled);
        EXPECT_FALSE(driver.Box(MirrorControl::cmdClear).Enabled);
        EXPECT_TRUE(driver.Box(MirrorControl::cmdSave).Enabled);
        EXPECT_EQ(driver.Engine.Inspirations, 0); // the Dialogue keeps its own

        driver.mirror->Click(MirrorControl::cmdRemove); // Continue
        EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Converse);
        EXPECT_EQ(driver.State().InspirationText, "\tAn old inspiration.");
        EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "Inspiration\r\n\tAn old inspiration.");
        EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "Finish");
    }
}

TEST(MirrorFinish, SaveOnAPriorDialogueFilesItAndStartsANewOneWithoutAsking) {
    MirrorDriver driver;
    driver.LeavePriorDialogue(2);
    driver.mirror->StartWindow();
    driver.mirror->Click(MirrorControl::cmdSave);
    EXPECT_TRUE(driver.Layer.Boxes.empty());
    EXPECT_EQ(driver.Library.Listing().LibraryCount, 1);
    EXPECT_FALSE(driver.Buffers.ReadWorkBuffers().has_value());
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::None);
    EXPECT_EQ(driver.mirror->Controls().Title,
              "Veyrant Sagrel 4.1 -- Written Dialogues of Self-Reflection");
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "Inspiration\r\n\tInspiration number 1.");
}

// The Library's limits can take a Dialogue the moment it is saved: an old Prior Dialogue, or one
// older than every Dialogue of a full Library. The user hears of it, and the Dialogue stays on
// the screen and in the buffers instead of vanishing with the New that a save clicks.
TEST(MirrorFinish, ADialogueTheLimitsTakeAtOnceStaysOnTheScreen) {
    const struct {
        std::int16_t MaxFiles, MaxDays;
        DateTime Written;
    } cases[] = {{30, 21, {2026, 10, 28, 9, 0, 0}}, // older than the days
                 {1, 21, {2026, 11, 19, 9, 0, 0}}}; // older than a full Library
    for (const auto& c : cases) {
        SCOPED_TRACE(c.MaxFiles);
        MirrorDriver driver;
        driver.App.UserSettings.MaxLibraryFiles = c.MaxFiles;
        driver.App.UserSettings.MaxLibraryDays = c.MaxDays;
        const DateTime later{2026, 11, 20, 10, 0, 0};
        for (const auto& folder : {driver.App.Folder.Isp(), driver.App.Folder.Dlg()}) {
            std::filesystem::create_directories(folder);
            WriteWholeFile(folder / MakeFileName(later), "\tA later Dialogue.");
            driver.Clock.FileDates[folder / MakeFileName(later)] = later;
        }
        driver.LeavePriorDialogue(2);
        driver.Clock.FileDates[driver.App.Folder.Exe() / "savei.tmp"] = c.Written;
        driver.mirror->StartWindow();
        const std::string dialogue = driver.State().DialogueText;

        driver.mirror->Click(MirrorControl::cmdSave);
        ASSERT_EQ(driver.Layer.Boxes.size(), 1u);
        EXPECT_EQ(driver.Layer.Boxes[0].Title, "Dialogue Not Kept in the Library");
        EXPECT_EQ(driver.Layer.Boxes[0].Text.rfind(
                      "The Library keeps up to " + std::to_string(c.MaxFiles) +
                          " Dialogues, none older than " + std::to_string(c.MaxDays) + " days.",
                      0),
                  0u);
        EXPECT_FALSE(driver.Library.Holds(MakeFileName(c.Written)));
        EXPECT_TRUE(driver.Library.Holds(MakeFileName(later)));
        const auto buffers = driver.Buffers.ReadWorkBuffers();
        ASSERT_TRUE(buffers.has_value());
        EXPECT_EQ(buffers->Buffers.DialogueText, dialogue);
        EXPECT_EQ(driver.State().DialogueText, dialogue);
        EXPECT_EQ(driver.State().DialogueSaved, 0);
        EXPECT_TRUE(driver.Box(MirrorControl::cmdSave).Enabled);
        EXPECT_FALSE(driver.Layer.Busy);
    }
}

// Buffers that outlive the Dialogue they held reopen when an empty Dialogue is cancelled, and
// a list of ideas open at that moment must not stay over them.
TEST(MirrorFinish, ACancelledListInAnEmptyDialogueClosesBeforeOldBuffersReopen) {
    MirrorDriver driver;
    driver.mirror->StartWindow();
    driver.LeavePriorDialogue(1);
    driver.mirror->Click(MirrorControl::cmdSuppose);
    driver.Engine.Judgements.push_back({1, 20});
    driver.Converse(Question);
    ASSERT_TRUE(driver.Box(MirrorControl::txtAnalyze).Visible);
    driver.mirror->Click(MirrorControl::cmdNew); // Cancel
    EXPECT_EQ(driver.Text(MirrorControl::cmdRemove), "Continue");
    EXPECT_EQ(driver.State().PairCount, 1);
    EXPECT_FALSE(driver.Box(MirrorControl::txtAnalyze).Visible);
    EXPECT_FALSE(driver.Box(MirrorControl::lblRemS).Visible);
    EXPECT_EQ(driver.mirror->Controls().Focus, MirrorControl::txtMirror);
}

// Finish writes the buffers once; when they could not take the Dialogue, the way out tries
// again instead of leaving it behind.
TEST(MirrorFinish, AFinishedDialogueTheBuffersRefusedIsKeptOnTheWayOut) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.Converse("What would I do if I were not afraid?");
    {
        FileFaults faults;
        faults.FailEvery(FileCall::Write, ENOSPC);
        driver.mirror->Click(MirrorControl::cmdNew); // Finish
    }
    ASSERT_EQ(driver.Layer.Boxes.size(), 1u);
    EXPECT_EQ(driver.Layer.Boxes[0].Title, "Error 61 Keeping the Dialogue");
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "New");
    const auto kept = driver.App.Folder.Exe() / "savem.tmp";
    EXPECT_FALSE(std::filesystem::exists(kept));

    EXPECT_TRUE(driver.mirror->Unload());
    EXPECT_EQ(ReadWholeFile(kept), driver.State().DialogueText);
}

} // namespace
} // namespace veyrant::testing
