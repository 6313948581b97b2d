#include "dialogue/MirrorDriver.h"
#include "dialogue/Transcript.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

const std::string Entry = "What am I still carrying from last winter?";

// Reopens a Prior Dialogue of that many items and continues it in Converse.
void ContinuePrior(MirrorDriver& driver, int pairCount) {
    driver.LeavePriorDialogue(pairCount);
    driver.mirror->StartWindow();
    driver.Click(cmdRemove);
}

TEST(MirrorTranscript, DisplayTellsTheLengthAndWriteRestoresTheState) {
    const std::pair<int, std::string> cases[] = {{1, "less than 1 page"},
                                                 {4, "less than 1 page"},
                                                 {5, "about 1 page"},
                                                 {6, "about 2 pages"},
                                                 {14, "about 3 pages"}};
    for (const auto& [pairCount, length] : cases) {
        SCOPED_TRACE(pairCount);
        MirrorDriver driver;
        ContinuePrior(driver, pairCount);
        driver.Type("half an entry");
        const std::string before = driver.mirror->Dump();
        driver.Click(cmdDisplay);
        EXPECT_EQ(driver.Text(cmdDisplay), "Write");
        EXPECT_EQ(driver.Text(txtNote), "Your Dialogue is " + length +
                                            " long. Click 'Write' or the Dialogue text to restore "
                                            "the display to the interactive mode.");
        EXPECT_FALSE(driver.Box(cmdNew).Enabled || driver.Box(lblRem).Visible);
        EXPECT_EQ(driver.Box(txtSaved).Background, Colour::EntryYellow);
        EXPECT_EQ(driver.Text(txtSaved).substr(0, 13), "Inspiration\r\n");
        // Keys are not typed into the hidden entry while the full view is up.
        driver.Type("zz");
        driver.Click(txtSaved);
        EXPECT_EQ(driver.mirror->Dump(), before);
    }
}

TEST(MirrorTranscript, PagesOfTheTitle) {
    EXPECT_EQ(PagesTitle(4), "Dialogue, 1 Page");
    EXPECT_EQ(PagesTitle(5), "Dialogue, 1 Page");
    EXPECT_EQ(PagesTitle(6), "Dialogue, 2 Pages");
    EXPECT_EQ(PagesTitle(13), "Dialogue, 2 Pages");
    EXPECT_EQ(PagesTitle(22), "Dialogue, 4 Pages");
}

// The advice comes once, at the 61st pair; from 100 every fifth Enter warns, refused entries
// counted; at 121 every entry is refused.
TEST(MirrorTranscript, AdviceOnceThenWarningsThenTheLimit) {
    MirrorDriver driver;
    ContinuePrior(driver, 60);
    driver.Converse(Entry);
    EXPECT_TRUE(driver.Layer.Boxes.empty());
    driver.Enter();
    driver.Converse(Entry);
    EXPECT_EQ(driver.Titles(), "Veyrant Sagrel Help -- Recommendation Regarding Conversation;");
    EXPECT_EQ(driver.Layer.Boxes[0].Icon, MessageIcon::Information);
    for (int pair = 62; pair < 100; ++pair) {
        driver.Enter();
        driver.Converse(Entry);
    }
    EXPECT_EQ(driver.Layer.Boxes.size(), 1u);
    for (int enter = 1; enter <= 5; ++enter) {
        driver.Enter();
        driver.Engine.Judgements.push_back({-2, 2});
        driver.Converse(Entry);
        EXPECT_EQ(driver.Layer.Boxes.size(), enter < 5 ? 1u : 2u) << "Enter " << enter;
    }
    EXPECT_EQ(driver.Layer.Boxes[1].Title, "Veyrant Sagrel Help -- Nearing the Dialogue Limit");
    EXPECT_EQ(driver.Layer.Boxes[1].Text,
              "The length of your Dialogue is nearing the system limit. You have approximately 20 "
              "cycles of interaction available.");
    EXPECT_EQ(driver.Layer.Boxes[1].Icon, MessageIcon::Warning);
}

// A response left out does not bring the limit nearer; at 121 every entry is refused.
TEST(MirrorTranscript, AtOneHundredTwentyOneEveryEntryIsRefused) {
    MirrorDriver driver;
    ContinuePrior(driver, 120);
    driver.Engine.Rolls.push_back(0);
    driver.Converse(Entry);
    ASSERT_EQ(driver.Text(cmdRemove), "Keep");
    driver.Enter();
    driver.Converse(Entry);
    EXPECT_EQ(driver.Text(cmdRemove), "Remove");
    driver.Enter();
    driver.Converse(Entry);
    EXPECT_EQ(driver.Text(txtResponse),
              ">> ! Your Dialogue has reached the system limit, and no more text can be added. "
              "Click 'Finish' to end the Dialogue. Then you may print it if you prefer.");
    EXPECT_EQ(driver.State().PairCount, 121);
    EXPECT_EQ(driver.Text(cmdNew), "Finish");
    EXPECT_EQ(driver.Text(txtNote), "Press 'Enter' to start again.");

    driver.Enter();
    driver.Click(cmdNotate);
    driver.Converse("A last comment on all of it.");
    EXPECT_EQ(driver.State().PairCount, 121);
    EXPECT_EQ(driver.Text(txtNote), "Press 'Enter' to begin this entry again.");
}

TEST(MirrorTranscript, ClickOnTheNewDialoguePanelDrawsAnotherSuggestion) {
    MirrorDriver driver;
    driver.mirror->StartWindow();
    driver.Click(txtSaved);
    EXPECT_EQ(driver.Text(txtSaved).substr(0, 12), "Suggestion 2");
    driver.Click(txtResponse);
    EXPECT_EQ(driver.Text(txtResponse), "Inspiration\r\n\tInspiration number 2.");
}

} // namespace
} // namespace veyrant::testing
