#include "printing/PrintLayout.h"

#include "core/Text.h"
#include "printing/FakePageDevice.h"
#include "printing/PrintTexts.h"
#include "printing/WrapText.h"

#include <gtest/gtest.h>
#include <tuple>

namespace veyrant::testing {
namespace {

// A Dialogue of numbered lines, each short enough with the fake's widths to print as it stands.
PrintRequest Dialogue(int inspirationLines, int dialogueLines) {
    const auto lines = [](const std::string& word, int count) {
        std::string text;
        for (int i = 1; i <= count; ++i) {
            text += (i > 1 ? "\r\n" : "") + word + " " + std::to_string(i);
        }
        return text;
    };
    return {lines("Inspire", inspirationLines), lines("Entry", dialogueLines), "Veyrant Dialogue",
            DateTime{2026, 11, 22, 21, 40, 0}};
}

// However short the Dialogue, empty lines fill the first page so its foot stands in one place.
// The first page carries the title, the rule and the date above and the foot below; the later
// pages a page number and thirty-two lines each, every page ending on the rule in one place.
TEST(PrintLayout, PagesCountTheirLinesAndCarryTheirHeadsAndFeet) {
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
        EXPECT_EQ(device.Find(std::string(PrintTexts::TitleLine)).Line,
                  device.Find("Inspiration").Line + 32 + 1);
    }
    FakePageDevice device;
    // 3 + 24 lines on the first page, 32 on the second, 1 on the third.
    LayOutDialogue(device, Dialogue(3, 57));
    const auto& title = device.Find("Veyrant Dialogue");
    EXPECT_EQ(std::tuple(title.Line, title.Font.Points, title.Font.Bold), std::tuple(2, 18, true));
    EXPECT_DOUBLE_EQ(title.X, (8.5 - 16 * 18.0 / 112) / 2);
    // The rule: 22 blanks, then as many underscores as fit the page less two such indents.
    const auto rule = std::string(22, ' ') + std::string(38, '_');
    EXPECT_EQ(device.Find(rule).Line, 3);
    const auto& date = device.Find("November 22, 2026");
    EXPECT_TRUE(device.Find(std::string(22, ' ') + "Sunday, 9:40 PM").Font.Italic &&
                date.Font.Italic && date.Line == 4);
    // The date ends where the rule ends.
    const double character = 15.0 / 112;
    EXPECT_NEAR(date.X + 17 * character, 22 * character + 38 * character / 2, 1e-9);
    const auto page = device.OnPage(1);
    ASSERT_GE(page.size(), 4u);
    std::vector<std::string> foot;
    for (auto drawn = page.end() - 4; drawn != page.end(); ++drawn) {
        foot.push_back(drawn->Text);
    }
    EXPECT_EQ(foot, (std::vector<std::string>{rule, std::string(PrintTexts::TitleLine),
                                              OpenQuote + std::string(PrintTexts::PrintedMotto) +
                                                  CloseQuote,
                                              std::string(PrintTexts::MakerLine)}));
    EXPECT_TRUE(page[page.size() - 3].Font.Points == 12 && page[page.size() - 2].Font.Italic);
    for (const int later : {2, 3}) {
        const auto& heading = device.Find("Page " + std::to_string(later));
        EXPECT_EQ(std::tuple(heading.Page, heading.Font.Bold, heading.Line),
                  std::tuple(later, false, 2));
        const auto drawn = device.OnPage(later);
        EXPECT_EQ(drawn.back().Text, rule);
        EXPECT_EQ(drawn.back().Line, 6 + 32 + 2) << later;
    }
    // Head of five lines and an empty line above the body.
    EXPECT_EQ(device.Find("Entry 24").Page, 1);
    const auto& first = device.Find("Entry 25");
    EXPECT_EQ(std::tuple(first.Page, first.Line, first.X), std::tuple(2, 6, 1.25));
    EXPECT_EQ(device.Find("Entry 56").Line, 6 + 31);
    EXPECT_EQ(std::tuple(device.Find("Entry 57").Page, device.Find("Entry 57").Line),
              std::tuple(3, 6));
}

// With the fake's widths a body line is full at 18 characters, so 17 is the most that prints; a
// text of more lines than a print takes is cut at the thousandth.
TEST(WrapText, BreaksWhereTheLineIsFull) {
    std::string many;
    for (int i = 0; i < 1500; ++i) {
        many += "line\r\n";
    }
    const struct {
        std::string Text;
        std::vector<std::string> Lines;
    } cases[] = {
        {"Sundays feel heavy to me", {"Sundays feel", "heavy to me"}}, // the last blank that fits
        {"good-natured-person", {"good-natured-", "person"}},          // after a hyphen
        {"unexpectedly-self-made", {"unexpectedly-", "self-made"}},    // inside a hyphenated word
        // A word wider than the line is cut.
        {"abcdefghijklmnopqrstuvwxyzabcdefghij", {"abcdefghijklmnopq", "rstuvwxyzabcdefgh", "ij"}},
        {"abcdefghijklmnopq", {"abcdefghijklmnopq"}},             // seventeen characters fit
        {"one\r\n\r\ntwo", {"one", "", "two"}},                   // an empty line stays, no CR
        {"\tOne two three", {"          One two", "three"}},      // a tab is ten blanks
        {"words   \r\nmore  ", {"words", "more"}},                // trailing blanks go
        {"\tabcdefghijklmno", {"          abcdefg", "hijklmno"}}, // leading blanks are no break
        {"", {}},
        {many, std::vector<std::string>(MaxPrintLines, "line")},
    };
    for (const auto& c : cases) {
        FakePageDevice device;
        EXPECT_EQ(WrapText(device, c.Text), c.Lines) << c.Text.substr(0, 40);
    }
}

} // namespace
} // namespace veyrant::testing
