// A right-click on the Help or the Library button opens the Utilities or the Library Options
// window with the Write window out of the way, keeping a running Dialogue for the next start.

#include "MirrorDriver.h"
#include "core/WholeFile.h"
#include "support/FileFaults.h"

#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace veyrant::testing {
namespace {

TEST(MirrorUtilities, RightClickWindowsOpenWithTheRunningDialogueKept) {
    struct Case {
        const char* Name;
        MirrorControl Button;
        bool DialogueRunning;
        WindowId Shown;
        const char* ShownEvent;
        bool BuffersWritten;
    };
    const Case cases[] = {
        {"Library, mid-Dialogue", MirrorControl::cmdRetrieve, true, WindowId::Options,
         "show Options", true},
        {"Library, New Dialogue on show", MirrorControl::cmdRetrieve, false, WindowId::Options,
         "show Options", false},
        {"Help, mid-Dialogue", MirrorControl::cmdHelp, true, WindowId::Utility, "show Utility",
         true},
        {"Help, New Dialogue on show", MirrorControl::cmdHelp, false, WindowId::Utility,
         "show Utility", false},
    };
    for (const Case& c : cases) {
        MirrorDriver driver;
        driver.mirror->StartWindow();
        if (c.DialogueRunning) {
            driver.StartConverse();
            driver.Converse("Why do I wait so long before I decide anything?");
        }
        driver.mirror->MouseDown(c.Button, MouseButton::Right);

        EXPECT_EQ(driver.App.ClosingState, ClosingStates::UtilitiesUp) << c.Name;
        EXPECT_FALSE(driver.Box(MirrorControl::txtMirror).Enabled) << c.Name;
        EXPECT_EQ(driver.Layer.Visible.count(c.Shown), 1u) << c.Name;
        EXPECT_EQ(driver.Layer.Visible.count(WindowId::Mirror), 0u) << c.Name;
        EXPECT_EQ(driver.Layer.WindowEvents.back(), c.ShownEvent) << c.Name;
        const auto kept = driver.App.Folder.Exe() / "savem.tmp";
        EXPECT_EQ(std::filesystem::exists(kept), c.BuffersWritten) << c.Name;
        if (c.BuffersWritten) {
            EXPECT_EQ(ReadWholeFile(kept), driver.State().DialogueText);
        }
    }
}

// Closing the window or opening a right-click window ends the program; when the running
// Dialogue cannot be kept first, the program stays with it on the screen, says why, and the next
// try keeps it.
TEST(MirrorUtilities, ADialogueTheBuffersCannotTakeKeepsTheWindowOpen) {
    struct Case {
        const char* Name;
        int Error;
        const char* Title;
        std::optional<MirrorControl> RightClick; // none: the window is closed
    };
    const Case cases[] = {
        {"close, disk full", ENOSPC, "Error 61 Keeping the Dialogue", std::nullopt},
        {"close, read-only disk", EROFS, "Error 70 Keeping the Dialogue", std::nullopt},
        {"Library Options, disk failing", EIO, "Error 75 Keeping the Dialogue",
         MirrorControl::cmdRetrieve},
        {"Utilities, disk full", ENOSPC, "Error 61 Keeping the Dialogue", MirrorControl::cmdHelp},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Name);
        MirrorDriver driver;
        driver.StartConverse();
        driver.Converse("Why do I wait so long before I decide anything?");
        const std::string dialogue = driver.State().DialogueText;
        const auto leave = [&] {
            if (!c.RightClick) {
                return driver.mirror->Unload();
            }
            driver.mirror->MouseDown(*c.RightClick, MouseButton::Right);
            return driver.App.ClosingState == ClosingStates::UtilitiesUp;
        };
        {
            FileFaults faults;
            faults.FailEvery(FileCall::Write, c.Error);
            EXPECT_FALSE(leave());
        }
        EXPECT_EQ(driver.App.ClosingState, ClosingStates::Running);
        EXPECT_TRUE(driver.Box(MirrorControl::txtMirror).Enabled);
        EXPECT_EQ(driver.State().DialogueText, dialogue);
        ASSERT_EQ(driver.Layer.Boxes.size(), 1u);
        EXPECT_EQ(driver.Layer.Boxes[0].Title, c.Title);
        EXPECT_NE(driver.Layer.Boxes[0].Text.find("Your Dialogue is not lost: it stays on the "
                                                  "screen, and the program stays open."),
                  std::string::npos);
        EXPECT_FALSE(std::filesystem::exists(driver.App.Folder.Exe() / "savem.tmp"));

        EXPECT_TRUE(leave());
        EXPECT_EQ(ReadWholeFile(driver.App.Folder.Exe() / "savem.tmp"), dialogue);
    }
}

// When the work buffers cannot take the Dialogue on the way out, the box offers to save it as a
// text file elsewhere; the program goes on only once the Dialogue is safe in that file.
TEST(MirrorUtilities, ADialogueTheBuffersCannotTakeCanBeSavedElsewhereOnTheWayOut) {
    struct Case {
        const char* Name;
        std::optional<MirrorControl> RightClick; // none: the window is closed
        MessageAnswer Answer;                    // to the box that the buffers failed
        bool NameChosen;
        int SaveError;           // 0: the chosen place takes the file
        const char* SecondTitle; // the box after the offer, if any
        bool GoesOn;
    };
    const Case cases[] = {
        {"close, saved", std::nullopt, MessageAnswer::Yes, true, 0, "Dialogue Saved", true},
        {"Utilities, saved", MirrorControl::cmdHelp, MessageAnswer::Yes, true, 0, "Dialogue Saved",
         true},
        {"close, save cancelled", std::nullopt, MessageAnswer::Yes, false, 0, nullptr, false},
        {"close, declined", std::nullopt, MessageAnswer::No, true, 0, nullptr, false},
        {"Library Options, the other place is full too", MirrorControl::cmdRetrieve,
         MessageAnswer::Yes, true, ENOSPC, "Save File Error", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Name);
        MirrorDriver driver;
        driver.StartConverse();
        driver.Converse("Why do I wait so long before I decide anything?");
        const MirrorState before = driver.State();
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
        bool wentOn = false;
        if (c.RightClick) {
            driver.mirror->MouseDown(*c.RightClick, MouseButton::Right);
            wentOn = driver.App.ClosingState == ClosingStates::UtilitiesUp;
        } else {
            wentOn = driver.mirror->Unload();
        }
        SetFileFault({});

        std::string titles;
        for (const auto& box : driver.Layer.Boxes) {
            titles += box.Title + ";";
        }
        EXPECT_EQ(titles, "Error 61 Keeping the Dialogue;" +
                              std::string(c.SecondTitle ? c.SecondTitle + std::string(";") : ""));
        const MessageBoxRequest& offer = driver.Layer.Boxes.at(0);
        EXPECT_EQ(offer.Buttons, MessageButtons::YesNo);
        EXPECT_NE(offer.Text.find("The disk is full.\r\n\r\nYour Dialogue is not lost: it stays "
                                  "on the screen, and the program stays open."),
                  std::string::npos);
        EXPECT_EQ(offer.Text.substr(offer.Text.find("\r\n\r\nOr save")),
                  "\r\n\r\nOr save the Dialogue now as a text file in a place you choose, and "
                  "the program goes on without it: the Dialogue then does not reopen at the next "
                  "start.\r\n\r\nDo you wish to save the Dialogue as a text file?");
        EXPECT_EQ(wentOn, c.GoesOn);
        EXPECT_EQ(driver.State().DialogueText, before.DialogueText);
        EXPECT_FALSE(std::filesystem::exists(driver.App.Folder.Exe() / "savem.tmp"));
        if (!c.GoesOn) {
            EXPECT_TRUE(driver.Box(MirrorControl::txtMirror).Enabled);
            EXPECT_EQ(driver.App.ClosingState, ClosingStates::Running);
            EXPECT_FALSE(std::filesystem::exists(chosen));
            EXPECT_TRUE(std::filesystem::is_empty(elsewhere.Path()));
            continue;
        }
        EXPECT_EQ(driver.Layer.ProposedSaveNames,
                  std::vector<std::string>{"Dialogue 2026-11-22 12.00 PM.txt"});
        EXPECT_EQ(driver.Layer.Boxes.back().Text,
                  "Your Dialogue is saved in the file " + chosen.string() + ".");
        // The export in UTF-8 with this system's line ends; its layout is the export's own.
        EXPECT_EQ(ReadWholeFile(chosen).substr(0, 53),
                  "Veyrant Sagrel\nSunday, 12:00 PM, November 22, 2026\n\n\n");
        EXPECT_NE(ReadWholeFile(chosen).find("\n\t\xE2\x80\x9CWhy do I wait so long before I "
                                             "decide anything?\xE2\x80\x9D\n"),
                  std::string::npos);
    }
}

// A guest leaves Guest Mode through the Utilities window, since the Library button is disabled.
TEST(MirrorUtilities, GuestModeReachesTheUtilitiesThroughHelpOnly) {
    MirrorDriver driver;
    driver.App.UserSettings.GuestMode = 1;
    Mirror guest(driver.App.WriteWorld(), driver.Engine, driver.Buffers, driver.Library);
    guest.StartWindow();
    EXPECT_FALSE(guest.Controls()[MirrorControl::cmdRetrieve].Enabled);
    EXPECT_TRUE(guest.Controls()[MirrorControl::cmdKnow].Enabled);
    guest.MouseDown(MirrorControl::cmdRetrieve, MouseButton::Right);
    EXPECT_EQ(driver.Layer.Visible.count(WindowId::Options), 0u);
    EXPECT_EQ(driver.App.ClosingState, ClosingStates::Running);
    guest.MouseDown(MirrorControl::cmdHelp, MouseButton::Right);
    EXPECT_EQ(driver.Layer.Visible.count(WindowId::Utility), 1u);
    EXPECT_EQ(driver.App.ClosingState, ClosingStates::UtilitiesUp);
}

} // namespace
} // namespace veyrant::testing
