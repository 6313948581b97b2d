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

using MirrorGuest = MirrorTest;

const std::string Entry = "Why do I wait so long before I decide anything?";

// Closes the window, or right-clicks for a window that puts it out of the way; true when the
// program went on.
bool Leave(MirrorDriver& driver, std::optional<MirrorControl> rightClick) {
    if (!rightClick) {
        return driver.mirror->Unload();
    }
    driver.mirror->MouseDown(*rightClick, MouseButton::Right);
    return driver.App.ClosingState == ClosingStates::UtilitiesUp;
}

// When the work buffers cannot take the Dialogue on the way out, the box offers to save it as a
// text file elsewhere; the program goes on only once the Dialogue is safe in that file.
TEST(MirrorUtilities, ADialogueTheBuffersCannotTakeCanBeSavedElsewhereOnTheWayOut) {
    const struct {
        const char* Name;
        std::optional<MirrorControl> RightClick; // none: the window is closed
        MessageAnswer Answer;                    // to the box that the buffers failed
        bool NameChosen;
        int SaveError;      // 0: the chosen place takes the file
        const char* Titles; // the boxes shown
    } cases[] = {
        {"close, saved", std::nullopt, MessageAnswer::Yes, true, 0,
         "Error 61 Keeping the Dialogue;Dialogue Saved;"},
        {"Utilities, saved", cmdHelp, MessageAnswer::Yes, true, 0,
         "Error 61 Keeping the Dialogue;Dialogue Saved;"},
        {"Library Options, saved", cmdRetrieve, MessageAnswer::Yes, true, 0,
         "Error 61 Keeping the Dialogue;Dialogue Saved;"},
        {"close, save cancelled", std::nullopt, MessageAnswer::Yes, false, 0,
         "Error 61 Keeping the Dialogue;"},
        {"close, declined", std::nullopt, MessageAnswer::No, true, 0,
         "Error 61 Keeping the Dialogue;"},
        {"Library Options, the other place is full too", cmdRetrieve, MessageAnswer::Yes, true,
         ENOSPC, "Error 61 Keeping the Dialogue;Save File Error;"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Name);
        MirrorDriver driver;
        driver.StartConverse();
        driver.Converse(Entry);
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

        EXPECT_EQ(driver.Titles(), c.Titles);
        const MessageBoxRequest& offer = driver.Layer.Boxes.at(0);
        EXPECT_EQ(offer.Buttons, MessageButtons::YesNo);
        EXPECT_EQ(offer.Text.substr(offer.Text.find("The disk is full.")),
                  "The disk is full.\r\n\r\nYour Dialogue is not lost: it stays on the screen, "
                  "and the program stays open. The work buffers still hold the Dialogue as it was "
                  "last kept. Make room on the disk, then try again.\r\n\r\nOr save the Dialogue "
                  "now as a text file in a place you choose, and the program goes on without it: "
                  "the Dialogue then does not reopen at the next start.\r\n\r\nDo you wish to "
                  "save the Dialogue as a text file?");
        EXPECT_EQ(driver.State().DialogueText, dialogue);
        EXPECT_FALSE(std::filesystem::exists(driver.App.Folder.Exe() / "savem.tmp"));
        const bool saved = std::string(c.Titles).find("Dialogue Saved") != std::string::npos;
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
        EXPECT_NE(file.find("\n\t\xE2\x80\x9CWhy do I wait so long before I decide anything?"
                            "\xE2\x80\x9D\n"),
                  std::string::npos);
    }
}

// A guest leaves Guest Mode through the Utilities window, since the Library button is disabled.
TEST_F(MirrorGuest, GuestModeReachesTheUtilitiesThroughHelpOnly) {
    App.UserSettings.GuestMode = 1;
    Mirror guest(App.WriteWorld(), Engine, Buffers, Library);
    guest.StartWindow();
    EXPECT_TRUE(!guest.Controls()[cmdRetrieve].Enabled && guest.Controls()[cmdKnow].Enabled);
    guest.MouseDown(cmdRetrieve, MouseButton::Right);
    EXPECT_EQ(Layer.Visible.count(WindowId::Options), 0u);
    EXPECT_EQ(App.ClosingState, ClosingStates::Running);
    guest.MouseDown(cmdHelp, MouseButton::Right);
    EXPECT_EQ(Layer.Visible.count(WindowId::Utility), 1u);
    EXPECT_EQ(App.ClosingState, ClosingStates::UtilitiesUp);
}

} // namespace
} // namespace veyrant::testing
