#include "dialogue/MirrorDriver.h"
#include "printing/ExportText.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

const std::string Entry = "I keep putting off the letter to my brother.";

// A Finished Dialogue of one answered statement.
void FinishOnePair(MirrorDriver& driver) {
    driver.StartConverse();
    driver.Converse(Entry);
    driver.mirror->Click(MirrorControl::cmdNew); // Finish
}

TEST(MirrorPrint, PrintsTheFinishedDialogueWithoutItsLeadingBlankLine) {
    MirrorDriver driver;
    FinishOnePair(driver);
    driver.Clock.Date = {2026, 11, 23, 8, 15, 0};

    driver.mirror->Click(MirrorControl::cmdPrint);

    ASSERT_EQ(driver.Layer.Printed.size(), 1u);
    const auto& printed = driver.Layer.Printed[0];
    EXPECT_EQ(printed.Inspiration, "\tInspiration number 1.");
    EXPECT_EQ(printed.Dialogue, Quoted(Entry) + "\r\n\tAnswer 1 to type 2.");
    EXPECT_EQ(printed.Title, "Veyrant Dialogue");
    EXPECT_EQ(printed.ShownDate, driver.Clock.Date);
    EXPECT_TRUE(driver.Layer.BusyWhilePrinting);
    EXPECT_FALSE(driver.Layer.Busy);
    EXPECT_TRUE(driver.Box(MirrorControl::cmdPrint).Enabled);
    EXPECT_TRUE(driver.Layer.Boxes.empty());
}

TEST(MirrorPrint, OnlyAFailedPrintShowsTheErrorBox) {
    for (const auto outcome : {PrintOutcome::Cancelled, PrintOutcome::Failed}) {
        MirrorDriver driver;
        FinishOnePair(driver);
        driver.Layer.PrintAnswer = outcome;
        driver.mirror->Click(MirrorControl::cmdPrint);
        if (outcome == PrintOutcome::Cancelled) {
            EXPECT_TRUE(driver.Layer.Boxes.empty());
            continue;
        }
        ASSERT_EQ(driver.Layer.Boxes.size(), 1u);
        EXPECT_EQ(driver.Layer.Boxes[0].Title, "Print Error");
        EXPECT_EQ(driver.Layer.Boxes[0].Text,
                  "The system has detected a printing error.\r\n\r\nIf your printer normally "
                  "functions properly with a word processer, you may have assigned 'Print' to a "
                  "non-printing device (such as a Fax/Modem, Print-to-File, etc.). Check the "
                  "printer setup.");
        EXPECT_TRUE(driver.Box(MirrorControl::cmdPrint).Enabled);
    }
}

TEST(MirrorPrint, FileOpensTheFullViewInTheEditor) {
    MirrorDriver driver;
    FinishOnePair(driver);
    ASSERT_EQ(driver.Text(MirrorControl::cmdDisplay), "File");
    driver.Clock.Date = {2026, 11, 23, 8, 15, 0};

    driver.mirror->Click(MirrorControl::cmdDisplay);

    ASSERT_EQ(driver.Layer.EditorTexts.size(), 1u);
    // The layout around the body is the export's own.
    EXPECT_EQ(driver.Layer.EditorTexts[0].Text,
              ExportText(driver.Clock.Date, "Inspiration\r\n\r\n\tInspiration number 1.\r\n\r\n"
                                            "Dialogue\r\n\r\n" +
                                                Quoted(Entry) + "\r\n\tAnswer 1 to type 2."));
    EXPECT_EQ(driver.Layer.EditorTexts[0].ProposedFileName, "Dialogue 2026-11-23 8.15 AM.txt");
    // The window stays as it was.
    EXPECT_EQ(driver.Text(MirrorControl::cmdDisplay), "File");
}

} // namespace
} // namespace veyrant::testing
