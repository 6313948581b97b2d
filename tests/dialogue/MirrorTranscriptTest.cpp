#include "dialogue/MirrorDriver.h"
#include "dialogue/Transcript.h"

#include <gtest/gtest.h>
#include <ostream>

namespace veyrant::testing {
namespace {

const std::string Entry = "What am I still carrying from last winter?";

// Reopens a Prior Dialogue of that many items and continues it in Converse.
void ContinuePrior(MirrorDriver& driver, int pairCount) {
    driver.LeavePriorDialogue(pairCount);
    driver.mirror->StartWindow();
    driver.mirror->Click(MirrorControl::cmdRemove);
}

TEST(MirrorTranscript, PriorDialogueReopensInTheFullView) {
    MirrorDriver driver;
    driver.LeavePriorDialogue(6);
    driver.mirror->StartWindow();
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::None);
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "New");
    EXPECT_EQ(driver.Text(MirrorControl::cmdRemove), "Continue");
    EXPECT_EQ(driver.Text(MirrorControl::cmdDisplay), "File");
    EXPECT_EQ(driver.mirror->Controls().Title.substr(0, 47),
              "Veyrant Sagrel -- Dialogue, 2 Pages, 0 Days -- ");
    EXPECT_EQ(driver.Text(MirrorControl::txtSaved).substr(0, 35),
              "Inspiration\r\n\r\n\tAn old inspiration.");
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Click 'Continue' to open and continue the prior Dialogue. Or click 'New' to erase "
              "the Dialogue and begin another.");
}

struct PageCase {
    int PairCount;
    std::string Phrase;
};

void PrintTo(const PageCase& c, std::ostream* out) {
    *out << c.PairCount << " items";
}

class MirrorFullView : public ::testing::TestWithParam<PageCase> {};

TEST_P(MirrorFullView, DisplayTellsTheLengthAndWriteRestoresTheState) {
    const auto& c = GetParam();
    MirrorDriver driver;
    ContinuePrior(driver, c.PairCount);
    driver.Type("half an entry");
    const std::string before = driver.mirror->Dump();

    driver.mirror->Click(MirrorControl::cmdDisplay);
    EXPECT_EQ(driver.Text(MirrorControl::cmdDisplay), "Write");
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              c.Phrase + "Click 'Write' or the Dialogue text to restore the display to the "
                         "interactive mode.");
    EXPECT_FALSE(driver.Box(MirrorControl::cmdNew).Enabled);
    EXPECT_FALSE(driver.Box(MirrorControl::lblRem).Visible);
    EXPECT_EQ(driver.Box(MirrorControl::txtSaved).Background, Colour::EntryYellow);
    EXPECT_EQ(driver.Text(MirrorControl::txtSaved).substr(0, 13), "Inspiration\r\n");
    // Keys are not typed into the hidden entry while the full view is up.
    driver.Type("zz");
    EXPECT_EQ(driver.Text(MirrorControl::txtMirror).find("zz"), std::string::npos);

    driver.mirror->Click(MirrorControl::txtSaved);
    EXPECT_EQ(driver.mirror->Dump(), before);
}

INSTANTIATE_TEST_SUITE_P(Pages, MirrorFullView,
                         ::testing::Values(PageCase{1, "Your Dialogue is less than 1 page long. "},
                                           PageCase{4, "Your Dialogue is less than 1 page long. "},
                                           PageCase{5, "Your Dialogue is about 1 page long. "},
                                           PageCase{6, "Your Dialogue is about 2 pages long. "},
                                           PageCase{14, "Your Dialogue is about 3 pages long. "}));

TEST(MirrorTranscript, PagesOfTheTitle) {
    EXPECT_EQ(PagesTitle(4), "Dialogue, 1 Page");
    EXPECT_EQ(PagesTitle(5), "Dialogue, 1 Page");
    EXPECT_EQ(PagesTitle(6), "Dialogue, 2 Pages");
    EXPECT_EQ(PagesTitle(13), "Dialogue, 2 Pages");
    EXPECT_EQ(PagesTitle(22), "Dialogue, 4 Pages");
}

TEST(MirrorTranscript, AdviceComesOnceFromSixtyOne) {
    MirrorDriver driver;
    ContinuePrior(driver, 60);
    driver.Converse(Entry);
    EXPECT_TRUE(driver.Layer.Boxes.empty());
    EXPECT_EQ(driver.State().PairCount, 61);
    driver.Enter();
    driver.Converse(Entry);
    ASSERT_EQ(driver.Layer.Boxes.size(), 1u);
    EXPECT_EQ(driver.Layer.Boxes[0].Title,
              "Veyrant Sagrel Help -- Recommendation Regarding Conversation");
    EXPECT_EQ(driver.Layer.Boxes[0].Icon, MessageIcon::Information);
    driver.Enter();
    driver.Converse(Entry);
    EXPECT_EQ(driver.Layer.Boxes.size(), 1u);
}

TEST(MirrorTranscript, WarningEveryFifthEnterFromOneHundred) {
    MirrorDriver driver;
    ContinuePrior(driver, 99);
    driver.Converse(Entry); // the advice, and the Dialogue reaches 100
    ASSERT_EQ(driver.Layer.Boxes.size(), 1u);
    // Refused entries count as Enters too, and keep the count where it is.
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

TEST(MirrorTranscript, AtOneHundredTwentyOneEveryEntryIsRefused) {
    MirrorDriver driver;
    ContinuePrior(driver, 121);
    driver.Converse(Entry);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse),
              ">> ! Your Dialogue has reached the system limit, and no more text can be added. "
              "Click 'Finish' to end the Dialogue. Then you may print it if you prefer.");
    EXPECT_EQ(driver.State().PairCount, 121);
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "Finish");
    EXPECT_EQ(driver.Text(MirrorControl::txtNote), "Press 'Enter' to start again.");

    driver.Enter();
    driver.mirror->Click(MirrorControl::cmdNotate);
    driver.Converse("A last comment on all of it.");
    EXPECT_EQ(driver.State().PairCount, 121);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote), "Press 'Enter' to begin this entry again.");
}

TEST(MirrorTranscript, AResponseLeftOutDoesNotBringTheLimitNearer) {
    MirrorDriver driver;
    ContinuePrior(driver, 120);
    driver.Engine.Rolls.push_back(0);
    driver.Converse(Entry);
    ASSERT_EQ(driver.Text(MirrorControl::cmdRemove), "Keep");
    driver.Enter();
    driver.Converse(Entry);
    EXPECT_EQ(driver.Text(MirrorControl::cmdRemove), "Remove");
    EXPECT_EQ(driver.State().PairCount, 121);
    driver.Enter();
    driver.Converse(Entry);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse).substr(0, 4), ">> !");
}

TEST(MirrorTranscript, ClickOnTheNewDialoguePanelDrawsAnotherSuggestion) {
    MirrorDriver driver;
    driver.mirror->StartWindow();
    driver.mirror->Click(MirrorControl::txtSaved);
    EXPECT_EQ(driver.Text(MirrorControl::txtSaved).substr(0, 12), "Suggestion 2");
    driver.mirror->Click(MirrorControl::txtResponse);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "Inspiration\r\n\tInspiration number 2.");
}

TEST(MirrorTranscript, NewAsksBeforeErasingAnUnsavedDialogue) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.Converse(Entry);
    driver.mirror->Click(MirrorControl::cmdNew); // Finish
    driver.Layer.Answers.push_back(MessageAnswer::Cancel);
    driver.mirror->Click(MirrorControl::cmdNew);
    EXPECT_EQ(driver.Layer.Boxes.back().Title, "Save Finished Dialogue");
    EXPECT_EQ(driver.State().PairCount, 1);
    driver.Layer.Answers.push_back(MessageAnswer::No);
    driver.mirror->Click(MirrorControl::cmdNew);
    EXPECT_EQ(driver.State().PairCount, 0);
    EXPECT_FALSE(driver.Buffers.ReadWorkBuffers().has_value());
    EXPECT_EQ(driver.mirror->Controls().Title, "Veyrant Sagrel -- New Dialogue");
}

} // namespace
} // namespace veyrant::testing
