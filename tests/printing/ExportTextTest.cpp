#include "printing/ExportText.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

TEST(ExportText, HeadingTextAndClosingLines) {
    const DateTime morning{2026, 11, 22, 9, 5, 0};
    EXPECT_EQ(ExportText(morning, "Inspiration\r\n\r\n\tBe still.\r\n\r\nDialogue"),
              "Veyrant Sagrel\r\n"
              "Sunday, 9:05 AM, November 22, 2026\r\n"
              "\r\n"
              "\r\n"
              "Inspiration\r\n\r\n\tBe still.\r\n\r\nDialogue\r\n"
              "\r\n"
              "\r\n"
              "Psychological Self-Reflection with the Veyrant Sagrel Dovrin\r\n"
              "\"The Power of Your Inspiration is in the Worth that You Give It\"\r\n"
              "Veyrant Sagrel for Linux\r\n");
    EXPECT_EQ(ExportFileName({2026, 11, 22, 21, 40, 0}), "Dialogue 2026-11-22 9.40 PM.txt");
}

TEST(ExportText, SaveFailureNamesNumberAndFile) {
    const auto box = SaveFileErrorBox(70, "/home/ana/Dialogue.txt");
    EXPECT_EQ(box.Title, "Save File Error");
    EXPECT_EQ(box.Text, "Error 70 encountered attempting to save /home/ana/Dialogue.txt.");
    EXPECT_EQ(box.Icon, MessageIcon::Warning);
}

} // namespace
} // namespace veyrant::testing
