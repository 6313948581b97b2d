// A right-click on the Help or the Library button opens the Utilities or the Library Options
// window with the Write window out of the way, keeping a running Dialogue for the next start.

#include "MirrorDriver.h"
#include "core/WholeFile.h"

#include <gtest/gtest.h>

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
