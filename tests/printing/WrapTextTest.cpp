#include "printing/WrapText.h"

#include "printing/FakePageDevice.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

// With the fake's widths a body line is full at 18 characters, so 17 is the most that prints.
struct WrapCase {
    const char* Name;
    std::string Text;
    std::vector<std::string> Lines;
};

TEST(WrapText, BreaksWhereTheLineIsFull) {
    const std::vector<WrapCase> cases = {
        {"at the last blank that fits",
         "Sundays feel heavy to me",
         {"Sundays feel", "heavy to me"}},
        {"after a hyphen", "good-natured-person", {"good-natured-", "person"}},
        {"inside a hyphenated word", "unexpectedly-self-made", {"unexpectedly-", "self-made"}},
        {"a word wider than the line is cut",
         "abcdefghijklmnopqrstuvwxyzabcdefghij",
         {"abcdefghijklmnopq", "rstuvwxyzabcdefgh", "ij"}},
        {"seventeen characters fit", "abcdefghijklmnopq", {"abcdefghijklmnopq"}},
        {"at a line feed, the carriage return dropped", "one\r\ntwo", {"one", "two"}},
        {"an empty line stays", "one\r\n\r\ntwo", {"one", "", "two"}},
        {"a tab is ten blanks", "\tOne two three", {"          One two", "three"}},
        {"a further tab too", "a\tb", {"a          b"}},
        {"trailing blanks go", "words   \r\nmore  ", {"words", "more"}},
        {"leading blanks are no break", "\tabcdefghijklmno", {"          abcdefg", "hijklmno"}},
        {"nothing", "", {}},
    };
    for (const auto& c : cases) {
        FakePageDevice device;
        EXPECT_EQ(WrapText(device, c.Text), c.Lines) << c.Name;
    }
}

TEST(WrapText, TakesAtMostAThousandLines) {
    std::string text;
    for (int i = 0; i < 1500; ++i) {
        text += "line\r\n";
    }
    FakePageDevice device;
    EXPECT_EQ(WrapText(device, text).size(), MaxPrintLines);
}

} // namespace
} // namespace veyrant::testing
