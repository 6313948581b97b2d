#include "core/Text.h"

#include "core/Cp1252.h"

#include <gtest/gtest.h>
#include <tuple>

namespace veyrant {
namespace {

TEST(Text, PositionsCountFromOneCaseFollowsWindows1252AndFindNoCaseAgreesWithLowerCasedCopies) {
    EXPECT_EQ(Mid("\t\x93Hello", 3) + "|" + Mid("abcdef", 2, 3) + "|" + Mid("abc", 5) + "|" +
                  Mid("abc", 0, 2) + "|" + Left("abc", 5) + "|" + Left("abc", 0) + "|" +
                  Right("abcdef", 2) + "|" + Right("ab", 9),
              "Hello|bcd||ab|abc||ef|ab");
    EXPECT_EQ(Trim("  two  words ") + "|" + Trim("\tkept ") + "|" + LTrim("  a ") + "|" +
                  RTrim(" a  ") + "|" + Trim("    "),
              "two  words|\tkept|a | a|");
    EXPECT_EQ(Upper("caf\xE9 \x9C\x9A\x9E\xFF \xF7"), "CAF\xC9 \x8C\x8A\x8E\x9F \xF7");
    EXPECT_EQ(Lower("\xC0\xD7\xDE Z"), "\xE0\xD7\xFE z");
    EXPECT_TRUE(EqualNoCase("Parity", "pARITY"));
    std::string entry = "\t\x93what now?";
    UpperAt(entry, 3);
    EXPECT_EQ(entry, "\t\x93What now?");
    LowerAt(entry, 99); // out of range: unchanged
    EXPECT_EQ(entry, "\t\x93What now?");
    // The search's matching skips the lower-case copies; it must find exactly what comparing two
    // lower-cased copies finds, at every start, for every byte and for overlapping hits.
    const auto literal = [](std::string_view text, std::string_view needle, long start) {
        return Find(Lower(text), Lower(needle), start);
    };
    EXPECT_EQ(std::tuple(Find(" who is it", " who "), Find("somewhere there", " where "),
                         Find("abc", "c", 4), Find("abc", "", 2), FindNoCase("abc", "", 4)),
              std::tuple(1, 0, 0, 2, 4));
    // Every byte against every byte, so each has exactly the partners Lower gives it.
    for (int a = 0; a < 256; ++a) {
        for (int b = 0; b < 256; ++b) {
            const std::string text(1, static_cast<char>(a));
            const std::string needle(1, static_cast<char>(b));
            ASSERT_EQ(FindNoCase(text, needle), literal(text, needle, 1)) << a << " " << b;
        }
    }
    // Short random texts over a few letters in both cases, so that hits are many and overlap.
    const std::string letters = "aAbB \xE9\xC9\xFF\x9F";
    unsigned seed = 12345;
    const auto draw = [&](std::size_t size) {
        std::string text;
        for (std::size_t k = 0; k < size; ++k) {
            seed = seed * 1103515245u + 12345u;
            text += letters[(seed >> 16) % letters.size()];
        }
        return text;
    };
    for (int round = 0; round < 2000; ++round) {
        const std::string text = draw(static_cast<std::size_t>(round % 23));
        const std::string needle = draw(1 + static_cast<std::size_t>(round % 4));
        for (long start = 0; start <= static_cast<long>(text.size()) + 2; ++start) {
            ASSERT_EQ(FindNoCase(text, needle, start), literal(text, needle, start))
                << "\"" << text << "\" \"" << needle << "\" " << start;
        }
    }
}

// Every byte round-trips; quotation marks and dashes map to their Unicode characters; characters
// without a code are refused at their offset.
TEST(Cp1252, EveryByteRoundTripsAndCharactersWithoutACodeAreRefused) {
    std::string all;
    for (int b = 0; b < 256; ++b) {
        all += static_cast<char>(b);
    }
    EXPECT_EQ(Utf16ToCp1252(Cp1252ToUtf16(all)), all);
    EXPECT_EQ(Cp1252ToUtf16("\x93Hi\x94 \x97"), u"\u201CHi\u201D \u2014");
    EXPECT_EQ(Cp1252ToUtf8("\x93\x80"), "\u201C\u20AC");
    EXPECT_FALSE(Utf16ToCp1252(u"\u0416").has_value());     // Cyrillic
    EXPECT_FALSE(Utf16ToCp1252(u"\U0001F600").has_value()); // emoji, a surrogate pair
    const struct {
        std::string Utf8;
        bool Ok;
        std::size_t BadOffset;
    } cases[] = {
        {"plain", true, 0},     {"em \u2014 dash", true, 0}, {"caf\u00E9", true, 0},
        {"ab\u4E2D", false, 2}, {"x\xC3", false, 1}, // cut short
        {"x\xC3(", false, 1},                        // bad continuation
        {"\u0081", false, 0},                        // C1 stand-in is not authored text
    };
    for (const auto& c : cases) {
        const auto result = Utf8ToCp1252(c.Utf8);
        EXPECT_EQ(result.Ok, c.Ok) << c.Utf8;
        EXPECT_EQ(result.BadOffset, c.Ok ? result.BadOffset : c.BadOffset) << c.Utf8;
    }
    EXPECT_EQ(Utf8ToCp1252("em \u2014").Text, "em \x97");
}

} // namespace
} // namespace veyrant
