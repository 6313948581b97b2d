#include "printing/PrintLayout.h"

#include "core/Text.h"
#include "printing/FakePageDevice.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

// Lines of the fake's widths, each short enough to print as it stands.
std::string Lines(const std::string& word, int count) {
    std::string text;
    for (int i = 1; i <= count; ++i) {
        text += (i > 1 ? "\r\n" : "") + word + " " + std::to_string(i);
    }
    return text;
}

PrintRequest Dialogue(int inspirationLines, int dialogueLines) {
    return {Lines("Inspire", inspirationLines), Lines("Entry", dialogueLines), "Veyrant Dialogue",
            DateTime{2026, 11, 22, 21, 40, 0}};
}

// However short the Dialogue, empty lines fill the first page so its foot stands in one place.
TEST(PrintLayout, PageCountCountsLinesAndHeads) {
    struct Case {
        int Inspiration, Dialogue, Pages;
    };
    for (const auto& c : {Case{3, 0, 1}, Case{3, 1, 1}, Case{3, 24, 1}, Case{3, 25, 2},
                          Case{3, 56, 2}, Case{3, 57, 3}, Case{0, 0, 1}}) {
        SCOPED_TRACE(std::to_string(c.Inspiration) + " + " + std::to_string(c.Dialogue));
        EXPECT_EQ(PrintPageCount(c.Inspiration, c.Dialogue), c.Pages);
        FakePageDevice device;
        EXPECT_EQ(LayOutDialogue(device, Dialogue(c.Inspiration, c.Dialogue)), c.Pages);
        EXPECT_EQ(device.Pages, c.Pages);
        EXPECT_EQ(device.Ended, 1);
        // The body, then the rule, then the foot's title line.
        EXPECT_EQ(device.Find("Psychological Self-Reflection with the Veyrant Sagrel Dovrin")->Line,
                  device.Find("Inspiration")->Line + 32 + 1);
    }
}

TEST(PrintLayout, FirstPageHeadAndFoot) {
    FakePageDevice device;
    LayOutDialogue(device, Dialogue(2, 3));
    const auto* title = device.Find("Veyrant Dialogue");
    ASSERT_NE(title, nullptr);
    EXPECT_EQ(title->Line, 2);
    EXPECT_EQ(title->Font.Points, 18);
    EXPECT_TRUE(title->Font.Bold);
    EXPECT_DOUBLE_EQ(title->X, (8.5 - 16 * 18.0 / 112) / 2);

    // The rule: 22 blanks, then as many underscores as fit the page less two such indents.
    const auto rule = std::string(22, ' ') + std::string(38, '_');
    const auto* headRule = device.Find(rule);
    ASSERT_NE(headRule, nullptr);
    EXPECT_EQ(headRule->Line, 3);

    const auto* time = device.Find(std::string(22, ' ') + "Sunday, 9:40 PM");
    const auto* date = device.Find("November 22, 2026");
    ASSERT_NE(time, nullptr);
    ASSERT_NE(date, nullptr);
    EXPECT_TRUE(time->Font.Italic && date->Font.Italic);
    EXPECT_EQ(date->Line, 4);
    // The date ends where the rule ends.
    const double character = 15.0 / 112;
    EXPECT_NEAR(date->X + 17 * character, 22 * character + 38 * character / 2, 1e-9);

    const auto page = device.OnPage(1);
    ASSERT_GE(page.size(), 4u);
    const auto foot = std::vector<FakePageDevice::Drawn>(page.end() - 4, page.end());
    EXPECT_EQ(foot[0].Text, rule);
    EXPECT_EQ(foot[1].Text, "Psychological Self-Reflection with the Veyrant Sagrel Dovrin");
    EXPECT_EQ(foot[1].Font.Points, 12);
    EXPECT_EQ(foot[2].Text, OpenQuote +
                                std::string("The Power of your Inspiration Is in the Worth that "
                                            "You Give It") +
                                CloseQuote);
    EXPECT_TRUE(foot[2].Font.Italic);
    EXPECT_EQ(foot[3].Text, "Veyrant Technology, veyrant-sagrel.org");
}

TEST(PrintLayout, LaterPagesCarryOnThirtyTwoLinesEach) {
    FakePageDevice device;
    // 3 + 24 lines on the first page, 32 on the second, 1 on the third.
    LayOutDialogue(device, Dialogue(3, 57));
    ASSERT_EQ(device.Pages, 3);

    EXPECT_EQ(device.Find("Entry 24")->Page, 1);
    for (const int page : {2, 3}) {
        const auto* heading = device.Find("Page " + std::to_string(page));
        ASSERT_NE(heading, nullptr);
        EXPECT_EQ(heading->Page, page);
        EXPECT_FALSE(heading->Font.Bold);
        EXPECT_EQ(heading->Line, 2);
    }
    const auto* first = device.Find("Entry 25");
    EXPECT_EQ(first->Page, 2);
    // Head of five lines and an empty line above the body.
    EXPECT_EQ(first->Line, 6);
    EXPECT_DOUBLE_EQ(first->X, 1.25);
    EXPECT_EQ(device.Find("Entry 56")->Line, 6 + 31);
    const auto* last = device.Find("Entry 57");
    EXPECT_EQ(last->Page, 3);
    EXPECT_EQ(last->Line, 6);
    // Every later page ends with its rule in the same place, the last one filled with empty
    // lines.
    for (const int page : {2, 3}) {
        const auto drawn = device.OnPage(page);
        EXPECT_EQ(drawn.back().Text, std::string(22, ' ') + std::string(38, '_'));
        EXPECT_EQ(drawn.back().Line, 6 + 32 + 2) << page;
    }
}

} // namespace
} // namespace veyrant::testing
