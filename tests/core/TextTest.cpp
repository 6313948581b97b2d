#include "core/Text.h"

#include <gtest/gtest.h>

namespace veyrant {
namespace {

TEST(Text, PositionsCountFromOneAndNeverFail) {
    struct Case {
        std::string Got;
        std::string Expected;
    };
    const Case cases[] = {
        {Mid("\t\x93Hello", 3), "Hello"},
        {Mid("abcdef", 2, 3), "bcd"},
        {Mid("abc", 5), ""},
        {Mid("abc", 0, 2), "ab"},
        {Left("abc", 5), "abc"},
        {Left("abc", 0), ""},
        {Right("abcdef", 2), "ef"},
        {Right("ab", 9), "ab"},
        {Trim("  two  words "), "two  words"},
        {Trim("\tkept "), "\tkept"},
        {LTrim("  a "), "a "},
        {RTrim(" a  "), " a"},
        {Trim("    "), ""},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.Got, c.Expected);
    }
}

TEST(Text, FindsWithAndWithoutCase) {
    EXPECT_EQ(Find(" who is it", " who "), 1);
    EXPECT_EQ(Find("somewhere there", " where "), 0);
    EXPECT_EQ(FindNoCase(" WHY me", " why "), 1);
    EXPECT_EQ(FindNoCase("a, b, c", ", ", 3), 5);
    EXPECT_EQ(Find("abc", "c", 4), 0);
    EXPECT_EQ(Find("abc", "", 2), 2);
}

TEST(Text, CaseOfWindows1252Letters) {
    EXPECT_EQ(Upper("caf\xE9 \x9C\x9A\x9E\xFF \xF7"), "CAF\xC9 \x8C\x8A\x8E\x9F \xF7");
    EXPECT_EQ(Lower("\xC0\xD7\xDE Z"), "\xE0\xD7\xFE z");
    EXPECT_TRUE(EqualNoCase("Parity", "pARITY"));
    std::string entry = "\t\x93what now?";
    UpperAt(entry, 3);
    EXPECT_EQ(entry, "\t\x93What now?");
    LowerAt(entry, 99); // out of range: unchanged
    EXPECT_EQ(entry, "\t\x93What now?");
}

} // namespace
} // namespace veyrant
