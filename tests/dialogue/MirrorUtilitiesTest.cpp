// A right-click on the Help or the Library button opens the Utilities or the Library Options
// window with the Write window out of the way, keeping a running Dialogue for the next start.

#include "MirrorDriver.h"
#include "core/WholeFile.h"
#include "support/FileFaults.h"

#include <gtest/gtest.h>
#include <optional>

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
