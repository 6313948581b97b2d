#include "core/Cp1252.h"

#include <gtest/gtest.h>

namespace veyrant {
namespace {

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
    struct Case {
        std::string Utf8;
        bool Ok;
        std::size_t BadOffset;
    };
    const Case cases[] = {
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
