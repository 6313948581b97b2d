// A right-click on the Library button opens the Library Options window with the Write window
// out of the way, keeping a running Dialogue for the next start.

#include "MirrorDriver.h"
#include "core/WholeFile.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

TEST(MirrorUtilities, LibraryOptionsOpenWithTheRunningDialogueKept) {
    struct Case {
        const char* Name;
        bool DialogueRunning;
        bool BuffersWritten;
    };
    const Case cases[] = {
        {"mid-Dialogue", true, true},
        {"New Dialogue on show", false, false},
    };
    for (const Case& c : cases) {
        MirrorDriver driver;
        driver.mirror->StartWindow();
        if (c.DialogueRunning) {
            driver.StartConverse();
            driver.Converse("Why do I wait so long before I decide anything?");
        }
        driver.mirror->MouseDown(MirrorControl::cmdRetrieve, MouseButton::Right);

        EXPECT_EQ(driver.App.ClosingState, ClosingStates::UtilitiesUp) << c.Name;
        EXPECT_FALSE(driver.Box(MirrorControl::txtMirror).Enabled) << c.Name;
        EXPECT_EQ(driver.Layer.Visible.count(WindowId::Options), 1u) << c.Name;
        EXPECT_EQ(driver.Layer.WindowEvents.back(), "show Options") << c.Name;
        const auto kept = driver.App.Folder.Exe() / "savem.tmp";
        EXPECT_EQ(std::filesystem::exists(kept), c.BuffersWritten) << c.Name;
        if (c.BuffersWritten) {
            EXPECT_EQ(ReadWholeFile(kept), driver.State().DialogueText);
        }
    }
}

TEST(MirrorUtilities, GuestModeLeavesTheLibraryButtonDisabled) {
    MirrorDriver driver;
    driver.App.UserSettings.GuestMode = 1;
    Mirror guest(driver.App, driver.Engine, driver.Buffers, driver.Library);
    guest.StartWindow();
    EXPECT_FALSE(guest.Controls()[MirrorControl::cmdRetrieve].Enabled);
    EXPECT_TRUE(guest.Controls()[MirrorControl::cmdKnow].Enabled);
    guest.MouseDown(MirrorControl::cmdRetrieve, MouseButton::Right);
    EXPECT_EQ(driver.Layer.Visible.count(WindowId::Options), 0u);
    EXPECT_EQ(driver.App.ClosingState, ClosingStates::Running);
}

} // namespace
} // namespace veyrant::testing
