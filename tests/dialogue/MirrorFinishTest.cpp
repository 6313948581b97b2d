#include "core/Text.h"
#include "core/WholeFile.h"
#include "dialogue/MirrorDriver.h"
#include "printing/ExportText.h"
#include "printing/PrintTexts.h"
#include "storage/LibraryFileName.h"
#include "support/FileFaults.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <optional>

namespace veyrant::testing {
namespace {

using MirrorFinish = MirrorTest;
using MirrorTranscript = MirrorTest;

const std::string Statement = "I want to understand why Sundays feel so heavy.";
const std::string Question = "what would make Sunday evenings lighter?";
const std::string Entry = "What am I still carrying from last winter?";
const std::string OnePair = Quoted(Statement) + "\r\n\tAnswer 1 to type 2.";

// Closes the window, or right-clicks on the Help or the Library button for the Utilities or the
// Library Options window, which puts it out of the way; true when the program went on.
bool Leave(MirrorDriver& driver, std::optional<MirrorControl> rightClick) {
    if (!rightClick) {
        return driver.mirror->Unload();
    }
    driver.mirror->MouseDown(*rightClick, MouseButton::Right);
    return driver.App.ClosingState == ClosingStates::UtilitiesUp;
}

TEST_F(MirrorFinish, FinishThenContinueThenFinishAgain) {
    // One answered statement and one Suppose pair, its first idea chosen.
    Draws.Script = {0.9f, 0.7f, 0.2f};
    StartConverse();
    Converse(Statement);
    Click(cmdSuppose);
    Engine.Judgements.push_back({1, 20});
    for (const char* entry : {Question.c_str(), "plan something small for the evening.",
                              "lay out Monday on Saturday."}) {
        Converse(entry);
    }
    Click(cmdNew); // Select
    const std::string twoPairs = "\r\n\r\n" + OnePair + "\r\n\r\n" + Quoted(Question) +
                                 "\r\n\tYour idea \x93Plan something small for the evening.\x94 "
                                 "is verdict 2.";
    ASSERT_EQ(State().DialogueText, twoPairs);

    Click(cmdNew); // Finish
    EXPECT_EQ(mirror->Controls().Title,
              "Veyrant Sagrel -- Dialogue, 1 Page -- Sunday, 12:00 pm, November 22, 2026");
    EXPECT_TRUE(Text(txtNote).starts_with("To keep your Dialogue"));
    EXPECT_EQ(Text(txtSaved),
              "Inspiration\r\n\r\n\tInspiration number 1.\r\n\r\nDialogue" + twoPairs);
    for (auto method : {cmdConverse, cmdSuppose, cmdNotate}) {
        EXPECT_FALSE(Box(method).Enabled || Box(method).PressedIn);
    }
    EXPECT_TRUE(Box(cmdSave).Enabled && Box(cmdPrint).Enabled);
    // Print sends the Dialogue without its leading blank line; only a failure shows a box. File
    // opens the full view in the editor, laid out as the export lays it out.
    Clock.Date = {2026, 11, 23, 8, 15, 0};
    for (const auto outcome : {PrintOutcome::Printed, PrintOutcome::Failed}) {
        Layer.PrintAnswer = outcome;
        Click(cmdPrint);
    }
    ASSERT_EQ(Layer.Printed.size(), 2u);
    const auto& printed = Layer.Printed[1];
    EXPECT_EQ(printed.Inspiration + "|" + printed.Dialogue + "|" + printed.Title,
              "\tInspiration number 1.|" + twoPairs.substr(4) + "|Veyrant Dialogue");
    EXPECT_EQ(printed.ShownDate, Clock.Date);
    EXPECT_TRUE(Layer.BusyWhilePrinting && !Layer.Busy && Box(cmdPrint).Enabled);
    Click(cmdDisplay); // File
    ASSERT_EQ(Layer.EditorTexts.size(), 1u);
    EXPECT_EQ(Layer.EditorTexts[0].Text, ExportText(Clock.Date, Text(txtSaved)));
    EXPECT_EQ(Layer.EditorTexts[0].ProposedFileName, "Dialogue 2026-11-23 8.15 AM.txt");
    EXPECT_EQ(Text(cmdDisplay), "File"); // the window stays as it was
    // A finished Dialogue takes no keys and answers a method button with a help box.
    const auto keys = Engine.KeyCodes.size();
    Type("more");
    EXPECT_EQ(Engine.KeyCodes.size(), keys);
    Click(cmdConverse);
    EXPECT_EQ(Titles(), "Print Error;Veyrant Sagrel Help;");
    EXPECT_EQ(Kept(), "2:" + twoPairs);

    Click(cmdRemove); // Continue
    EXPECT_TRUE(Box(cmdConverse).PressedIn);
    EXPECT_EQ(Text(cmdNew) + Text(cmdDisplay), "FinishDisplay");
    EXPECT_FALSE(Box(cmdSave).Enabled || Box(cmdPrint).Enabled);
    EXPECT_EQ(Text(txtSaved), "Dialogue" + twoPairs);
    EXPECT_EQ(State().CycleCount, 2);

    Converse("Sunday is the day I stop being busy.");
    // Finish writes the buffers once; when they could not take the Dialogue, they hold it as it
    // was last kept, and the way out tries again instead of leaving it behind.
    {
        FileFaults faults;
        faults.FailEvery(FileCall::Write, ENOSPC);
        Click(cmdNew); // Finish again
    }
    EXPECT_EQ(Titles(), "Print Error;Veyrant Sagrel Help;Error 61 Keeping the Dialogue;");
    EXPECT_EQ(Text(cmdRemove) + Text(cmdNew), "ContinueNew");
    EXPECT_EQ(Kept(), "2:" + twoPairs);
    EXPECT_TRUE(mirror->Unload());
    EXPECT_EQ(Kept(), "3:" + twoPairs + "\r\n\r\n" +
                          Quoted("Sunday is the day I stop being busy.") +
                          "\r\n\tAnswer 3 to type 2.");
}

// New asks only for an unsaved Dialogue, and resets on No.
TEST(MirrorFinishNew, NewAsksOnlyForAnUnsavedDialogueAndResetsOnNo) {
    const struct {
        const char* Name;
        bool Guest, SavedFirst;
        MessageAnswer Answer;
        bool Asked, Reset;
    } cases[] = {{"Yes", false, false, MessageAnswer::Yes, true, false},
                 {"No", false, false, MessageAnswer::No, true, true},
                 {"Guest", true, false, MessageAnswer::Yes, false, true},
                 {"Saved", false, true, MessageAnswer::Yes, false, true}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Name);
        MirrorDriver driver;
        if (c.Guest) { // the window is made in Guest Mode, as the program makes it
            driver.App.UserSettings.GuestMode = 1;
            driver.mirror = std::make_unique<Mirror>(driver.App.WriteWorld(), driver.Engine,
                                                     driver.Buffers, driver.Library);
        }
        driver.StartConverse();
        driver.Converse(Statement);
        driver.Click(cmdNew); // Finish
        EXPECT_EQ(driver.Box(cmdSave).Enabled, !c.Guest);
        driver.Layer.Answers.push_back(c.Answer);
        driver.Click(c.SavedFirst ? cmdSave : cmdNew);
        EXPECT_EQ(driver.Library.Listing().LibraryCount, c.SavedFirst ? 1 : 0);
        EXPECT_EQ(driver.Titles(), c.Asked ? "Save Finished Dialogue;" : "");
        EXPECT_TRUE(!c.Asked || driver.Layer.Boxes[0].Buttons == MessageButtons::YesNoCancel);
        EXPECT_EQ(driver.Kept(), c.Reset ? "none" : "1:\r\n\r\n" + OnePair);
        if (!c.Reset) {
            EXPECT_EQ(driver.Text(cmdNew), "New");
            continue;
        }
        EXPECT_EQ(driver.State().DialogueText, "");
        EXPECT_EQ(driver.State().PairCount + driver.State().CycleCount, 0);
        EXPECT_FALSE(driver.State().DialogueSaved);
        EXPECT_EQ(driver.Text(txtResponse), "Inspiration\r\n\tInspiration number 2.");
        EXPECT_EQ(driver.Text(txtSaved).substr(0, 12), "Suggestion 2");
        EXPECT_EQ(driver.mirror->Controls().Title,
                  "Veyrant Sagrel -- New Dialogue" + std::string(c.Guest ? " -- Guest Mode" : ""));
        EXPECT_TRUE(driver.Box(cmdConverse).Enabled);
        if (c.Guest) { // a guest reaches the Utilities through Help, the Library button disabled
            EXPECT_TRUE(driver.Box(cmdKnow).Enabled && !driver.Box(cmdRetrieve).Enabled);
            EXPECT_FALSE(Leave(driver, cmdRetrieve));
            EXPECT_TRUE(Leave(driver, cmdHelp));
        }
    }
}

// A Prior Dialogue reopens with its length, its age and the date it was written; continued, its
// full view tells the length too. The Library's limits can take it the moment it is saved: when
// it is older than the days, or than every Dialogue of a full Library. The user hears of it, and
// the Dialogue stays on the screen and in the buffers instead of vanishing with the New that a
// save clicks.
TEST(MirrorFinishPrior, APriorDialogueReopensWithItsLengthAndAgeAndStaysWhenTheLimitsTakeIt) {
    // A Dialogue of that many pairs: its pages in the title, its length in the full view.
    const std::map<int, std::pair<std::string, std::string>> lengths = {
        {4, {"1 Page", "less than 1 page"}},
        {5, {"1 Page", "about 1 page"}},
        {6, {"2 Pages", "about 2 pages"}},
        {14, {"3 Pages", "about 3 pages"}}};
    const struct {
        DateTime Written;
        std::string Age;
        int Pairs;
        std::int16_t MaxFiles = 0; // saved at once into a Library of 21 days and that many files
    } cases[] = {
        {{2026, 11, 22, 8, 30, 0}, "0 Days -- Sunday, 8:30 am, November 22, 2026", 4},
        {{2026, 11, 21, 21, 5, 0}, "1 Day -- Saturday, 9:05 pm, November 21, 2026", 5},
        // Buffers dated after now, as when the clock was set back.
        {{2026, 11, 25, 19, 0, 0}, "0 Days -- Wednesday, 7:00 pm, November 25, 2026", 6},
        // Older than the days, and older than a full Library.
        {{2026, 10, 28, 9, 0, 0}, "25 Days Old -- Wednesday, 9:00 am, October 28, 2026", 14, 30},
        {{2026, 11, 19, 9, 0, 0}, "3 Days Old -- Thursday, 9:00 am, November 19, 2026", 4, 1}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Age);
        MirrorDriver driver;
        driver.LeavePriorDialogue(c.Pairs);
        driver.Clock.FileDates[driver.App.Folder.Exe() / "savei.tmp"] = c.Written;
        driver.mirror->StartWindow();
        EXPECT_EQ(driver.mirror->Controls().Title,
                  "Veyrant Sagrel -- Dialogue, " + lengths.at(c.Pairs).first + ", " + c.Age);
        EXPECT_EQ(driver.Text(cmdRemove) + driver.Text(cmdNew) + driver.Text(cmdDisplay),
                  "ContinueNewFile");
        EXPECT_EQ(driver.Text(txtSaved).substr(0, 35), "Inspiration\r\n\r\n\tAn old inspiration.");
        EXPECT_TRUE(driver.Text(txtNote).starts_with("Click 'Continue' to open"));
        EXPECT_EQ(driver.State().PairCount, c.Pairs);
        EXPECT_FALSE(driver.Box(cmdConverse).Enabled || driver.Box(cmdClear).Enabled);
        EXPECT_EQ(driver.Engine.Inspirations, 0); // the Dialogue keeps its own
        if (c.MaxFiles == 0) {
            driver.Click(cmdRemove); // Continue
            EXPECT_EQ(driver.Text(txtResponse), "Inspiration\r\n\tAn old inspiration.");
            // The full view takes no keys and gives the window back as it was.
            driver.Type("half an entry");
            const std::string before = driver.mirror->Dump();
            driver.Click(cmdDisplay);
            EXPECT_EQ(driver.Text(cmdDisplay), "Write");
            EXPECT_TRUE(driver.Text(txtNote).starts_with("Your Dialogue is " +
                                                         lengths.at(c.Pairs).second + " long."));
            EXPECT_FALSE(driver.Box(cmdNew).Enabled || driver.Box(lblRem).Visible);
            EXPECT_EQ(driver.Box(txtSaved).Background, Colour::EntryYellow);
            driver.Type("zz");
            driver.Click(txtSaved);
            EXPECT_EQ(driver.mirror->Dump(), before);
            continue;
        }
        driver.App.UserSettings.MaxLibraryFiles = c.MaxFiles;
        driver.App.UserSettings.MaxLibraryDays = 21;
        const DateTime later{2026, 11, 20, 10, 0, 0};
        for (const auto& folder : {driver.App.Folder.Isp(), driver.App.Folder.Dlg()}) {
            std::filesystem::create_directories(folder);
            WriteWholeFile(folder / MakeFileName(later), "\tA later Dialogue.");
            driver.Clock.FileDates[folder / MakeFileName(later)] = later;
        }
        const std::string dialogue = driver.State().DialogueText;
        driver.Click(cmdSave);
        EXPECT_EQ(driver.Titles(), "Dialogue Not Kept in the Library;");
        EXPECT_TRUE(driver.Layer.Boxes[0].Text.starts_with("The Library keeps up to " +
                                                           std::to_string(c.MaxFiles) +
                                                           " Dialogues, none older than 21 days."));
        EXPECT_FALSE(driver.Library.Holds(MakeFileName(c.Written)));
        EXPECT_TRUE(driver.Library.Holds(MakeFileName(later)));
        EXPECT_EQ(driver.Kept(), std::to_string(c.Pairs) + ":" + dialogue);
        EXPECT_EQ(driver.State().DialogueText, dialogue);
        EXPECT_TRUE(driver.Box(cmdSave).Enabled && !driver.Layer.Busy);
    }
}

// The advice comes once, at the 61st pair; from 100 every fifth Enter warns, refused entries
// counted; at 121 every entry is refused.
TEST_F(MirrorTranscript, AdviceOnceThenWarningsThenTheLimitOfOneHundredTwentyOne) {
    LeavePriorDialogue(60);
    mirror->StartWindow();
    Click(cmdRemove); // Continue
    Converse(Entry);
    EXPECT_TRUE(Layer.Boxes.empty());
    Enter();
    Converse(Entry);
    EXPECT_EQ(Titles(), "Veyrant Sagrel Help -- Recommendation Regarding Conversation;");
    for (int pair = 62; pair < 100; ++pair) {
        Enter();
        Converse(Entry);
    }
    EXPECT_EQ(Layer.Boxes.size(), 1u);
    for (int enter = 1; enter <= 5; ++enter) {
        Enter();
        Engine.Judgements.push_back({-2, 2});
        Converse(Entry);
        EXPECT_EQ(Layer.Boxes.size(), enter < 5 ? 1u : 2u) << "Enter " << enter;
    }
    EXPECT_EQ(Layer.Boxes[1].Title, "Veyrant Sagrel Help -- Nearing the Dialogue Limit");
    EXPECT_NE(Layer.Boxes[1].Text.find("approximately 20 cycles"), std::string::npos);
    // A response left out does not bring the limit nearer.
    while (State().PairCount < 120) {
        Enter();
        Converse(Entry);
    }
    Enter();
    Engine.Rolls.push_back(0);
    Converse(Entry);
    ASSERT_EQ(Text(cmdRemove), "Keep");
    Enter();
    Converse(Entry);
    EXPECT_EQ(Text(cmdRemove), "Remove");
    Enter();
    Converse(Entry);
    EXPECT_TRUE(Text(txtResponse).starts_with(">> ! Your Dialogue has reached the system limit"));
    EXPECT_EQ(State().PairCount, 121);
    EXPECT_EQ(Text(cmdNew) + "|" + Text(txtNote), "Finish|Press 'Enter' to start again.");
    Enter();
    Click(cmdNotate);
    Converse("A last comment on all of it.");
    EXPECT_EQ(State().PairCount, 121);
    EXPECT_EQ(Text(txtNote), "Press 'Enter' to begin this entry again.");
}

// When the work buffers cannot take the Dialogue on the way out, the box offers to save it as a
// text file elsewhere; the program goes on only once the Dialogue is safe in that file.
TEST(MirrorUtilities, ADialogueTheBuffersCannotTakeCanBeSavedElsewhereOnTheWayOut) {
    const struct {
        const char* Name;
        std::optional<MirrorControl> RightClick; // none: the window is closed
        MessageAnswer Answer;                    // to the box that the buffers failed
        bool NameChosen;
        int SaveError; // 0: the chosen place takes the file
    } cases[] = {
        {"Utilities, saved", cmdHelp, MessageAnswer::Yes, true, 0},
        {"Library Options, saved", cmdRetrieve, MessageAnswer::Yes, true, 0},
        {"close, save cancelled", std::nullopt, MessageAnswer::Yes, false, 0},
        {"close, declined", std::nullopt, MessageAnswer::No, true, 0},
        {"Library Options, the other place is full too", cmdRetrieve, MessageAnswer::Yes, true,
         ENOSPC},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Name);
        MirrorDriver driver;
        driver.StartConverse();
        driver.Converse(Statement);
        const std::string dialogue = driver.State().DialogueText;
        const TempFolder elsewhere;
        const auto chosen = elsewhere / "my dialogue.txt";
        driver.Layer.Answers = {c.Answer};
        if (c.NameChosen) {
            driver.Layer.SaveNameAnswers = {chosen};
        }
        // The program's folder is full; the other place takes the file, or fails as it says.
        const std::string programFolder = driver.App.Folder.Root.string();
        SetFileFault([&](FileCall call, const std::filesystem::path& path) {
            if (call != FileCall::Open) {
                return 0;
            }
            return path.string().rfind(programFolder, 0) == 0 ? ENOSPC : c.SaveError;
        });
        const bool wentOn = Leave(driver, c.RightClick);
        SetFileFault({});

        const bool saved = c.Answer == MessageAnswer::Yes && c.NameChosen && c.SaveError == 0;
        EXPECT_EQ(driver.Titles(),
                  "Error 61 Keeping the Dialogue;" + std::string(saved         ? "Dialogue Saved;"
                                                                 : c.SaveError ? "Save File Error;"
                                                                               : ""));
        const MessageBoxRequest& offer = driver.Layer.Boxes.at(0);
        EXPECT_EQ(offer.Buttons, MessageButtons::YesNo);
        EXPECT_NE(offer.Text.find("The disk is full."), std::string::npos);
        EXPECT_EQ(driver.State().DialogueText, dialogue);
        EXPECT_FALSE(std::filesystem::exists(driver.App.Folder.Exe() / "savem.tmp"));
        EXPECT_EQ(wentOn, saved);
        if (!saved) {
            EXPECT_TRUE(driver.Box(txtMirror).Enabled);
            EXPECT_EQ(driver.App.ClosingState, ClosingStates::Running);
            EXPECT_TRUE(std::filesystem::is_empty(elsewhere.Path()));
            continue;
        }
        if (c.RightClick) { // the window asked for, with this one out of the way
            EXPECT_EQ(driver.Layer.Visible.count(WindowId::Mirror), 0u);
            EXPECT_EQ(driver.Layer.WindowEvents.back(),
                      *c.RightClick == cmdHelp ? "show Utility" : "show Options");
        }
        EXPECT_EQ(driver.Layer.ProposedSaveNames[0], "Dialogue 2026-11-22 12.00 PM.txt");
        EXPECT_EQ(driver.Layer.Boxes.back().Text,
                  "Your Dialogue is saved in the file " + chosen.string() + ".");
        // The export in UTF-8 with this system's line ends; its layout is the export's own.
        const std::string file = ReadWholeFile(chosen);
        EXPECT_EQ(file.substr(0, 53), "Veyrant Sagrel\nSunday, 12:00 PM, November 22, 2026\n\n\n");
        EXPECT_NE(file.find("\n\t\xE2\x80\x9C" + Statement + "\xE2\x80\x9D\n"), std::string::npos);
        EXPECT_TRUE(file.ends_with("\n\n\n" + std::string(PrintTexts::TitleLine) + "\n\"" +
                                   std::string(PrintTexts::ExportedMotto) + "\"\n" +
                                   std::string(PrintTexts::MakerLine) + "\n"))
            << file;
    }
}

} // namespace
} // namespace veyrant::testing
