#include "core/Text.h"
#include "dialogue/MirrorDriver.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

const std::string Question = "what could make the mornings easier for the whole family?";

TEST(MirrorSuppose, AnAcceptedQuestionOpensTheListOfIdeas) {
    MirrorDriver driver;
    driver.mirror->StartWindow();
    driver.mirror->Click(MirrorControl::cmdSuppose);
    EXPECT_TRUE(driver.Box(MirrorControl::cmdSuppose).PressedIn);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse).substr(0, 25), "Direction for Supposition");
    driver.Engine.Judgements.push_back({1, 20});
    driver.Converse(Question);

    std::string asked{Tab, OpenQuote};
    asked += Question + std::string(1, CloseQuote);
    UpperAt(asked, 3);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "Question\r\n" + asked);
    EXPECT_TRUE(driver.Box(MirrorControl::txtAnalyze).Visible);
    EXPECT_FALSE(driver.Box(MirrorControl::txtMirror).Enabled);
    EXPECT_EQ(driver.mirror->Controls().Focus, MirrorControl::txtAnalyze);
    const std::string list = driver.Text(MirrorControl::txtAnalyze);
    EXPECT_EQ(list.substr(0, 24), "Enter Your List of Ideas");
    EXPECT_EQ(list.substr(list.size() - 13), "\r\nEntry 1 >> ");
    EXPECT_EQ(driver.State().CycleCount, 1);
    EXPECT_EQ(driver.State().PairCount, 0);
    EXPECT_EQ(driver.Engine.Compositions, 0);

    // Cancel drops the question; with an empty Dialogue the window starts over.
    driver.mirror->Click(MirrorControl::cmdNew);
    EXPECT_EQ(driver.State().ActiveMethod, 0);
    EXPECT_FALSE(driver.Box(MirrorControl::txtAnalyze).Visible);
}

TEST(MirrorSuppose, ADeclinedQuestionEndsAsAResultInConverseLeftOut) {
    MirrorDriver driver;
    driver.mirror->StartWindow();
    driver.mirror->Click(MirrorControl::cmdSuppose);
    driver.Engine.Judgements.push_back({1, 20});
    driver.Engine.Rolls.push_back(0);
    driver.Converse(Question);
    EXPECT_EQ(driver.State().ActiveMethod, 1);
    EXPECT_EQ(driver.Text(MirrorControl::cmdRemove), "Keep");
    EXPECT_EQ(driver.Box(MirrorControl::txtResponse).Background, Colour::ColourOut);
    EXPECT_TRUE(driver.Box(MirrorControl::cmdConverse).PressedIn);
    EXPECT_FALSE(driver.Box(MirrorControl::cmdSuppose).PressedIn);
    EXPECT_EQ(driver.State().PairCount, 0);
    // The remark of the Suppose method, composed once and shown as the response.
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "\tRemark 1 on type 9.");
    driver.mirror->Click(MirrorControl::cmdRemove);
    EXPECT_EQ(driver.State().PairCount, 1);
    driver.Enter();
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Type your question or statement. Then press 'Enter' for the Sagrel response.");
}

} // namespace
} // namespace veyrant::testing
