#include "printing/ExportText.h"

#include "printing/SaveFolder.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

TEST(ExportText, HeadingTextClosingLinesAndTheFailureBox) {
    const DateTime morning{2026, 11, 22, 9, 5, 0};
    EXPECT_EQ(ExportText(morning, "Inspiration\r\n\r\n\tBe still.\r\n\r\nDialogue"),
              "Veyrant Sagrel\r\nSunday, 9:05 AM, November 22, 2026\r\n\r\n\r\n"
              "Inspiration\r\n\r\n\tBe still.\r\n\r\nDialogue\r\n\r\n\r\n"
              "Psychological Self-Reflection with the Veyrant Sagrel Dovrin\r\n"
              "\"The Power of Your Inspiration is in the Worth that You Give It\"\r\n"
              "Veyrant Technology, veyrant-sagrel.org\r\n");
    EXPECT_EQ(ExportFileName({2026, 11, 22, 21, 40, 0}), "Dialogue 2026-11-22 9.40 PM.txt");
    const auto box = SaveFileErrorBox(70, "/home/ana/Dialogue.txt");
    EXPECT_EQ(box.Title + "|" + box.Text,
              "Save File Error|Error 70 encountered attempting to save /home/ana/Dialogue.txt.");
    EXPECT_EQ(box.Icon, MessageIcon::Warning);
}

// Save As never proposes a folder that is not there: a missing documents folder gives home, and
// the folder of the last save is kept only while it exists.
TEST(SaveFolder, ProposesOnlyAFolderThatExists) {
    TempFolder home;
    const auto documents = home / "Documents";
    const auto chosen = home / "Letters";
    SaveFolder folder;
    EXPECT_EQ(folder.Proposed(documents, home.Path()), home.Path());
    std::filesystem::create_directory(documents);
    EXPECT_EQ(folder.Proposed(documents, home.Path()), documents);
    folder.Saved(chosen / "Dialogue.txt");
    EXPECT_EQ(folder.Proposed(documents, home.Path()), documents);
    std::filesystem::create_directory(chosen);
    EXPECT_EQ(folder.Proposed(documents, home.Path()), chosen);
}

} // namespace
} // namespace veyrant::testing
