#include "printing/WrapText.h"

#include "printing/FakePageDevice.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

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
        {"one\r\ntwo", {"one", "two"}},                           // the carriage return dropped
        {"one\r\n\r\ntwo", {"one", "", "two"}},                   // an empty line stays
        {"\tOne two three", {"          One two", "three"}},      // a tab is ten blanks
        {"a\tb", {"a          b"}},                               // a further tab too
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
