#include "storage/LibraryFileName.h"

#include "core/ProgramError.h"

#include <gtest/gtest.h>

namespace veyrant {
namespace {

TEST(LibraryFileName, NamesFollowTheDateAndReadBack) {
    struct Case {
        DateTime When;
        const char* Name;
        const char* FileDateText;
    };
    const Case cases[] = {
        {{2005, 7, 19, 14, 30, 59}, "55071914.300", "07/19/2005 14:30"},
        {{2026, 1, 2, 3, 4, 0}, "76010203.040", "01/02/2026 03:04"},
        {{2049, 12, 31, 23, 59, 0}, "99123123.590", "12/31/2049 23:59"},
        {{1960, 1, 1, 0, 0, 0}, "10010100.000", "01/01/1960 00:00"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Name);
        EXPECT_EQ(MakeFileName(c.When), c.Name);
        const auto parsed = ParseFileName(c.Name);
        EXPECT_EQ(parsed.FileDateText, c.FileDateText);
        EXPECT_EQ(parsed.FileTag, 0);
        DateTime minute = c.When;
        minute.Second = 0;
        EXPECT_EQ(FileDateValue(parsed.FileDateText), minute);
    }
}

// The form has no room past 2049 or before 1960: the name grows or shrinks by one character and
// every field read from it shifts, so it makes no date.
TEST(LibraryFileName, YearsOutsideTheFormShiftEveryField) {
    const std::string late = MakeFileName({2050, 7, 19, 14, 30, 0});
    EXPECT_EQ(late, "100071914.300");
    EXPECT_EQ(late.size(), 13u);
    EXPECT_EQ(ParseFileName(late).FileDateText, "00/71/1960 91:.3");

    const std::string early = MakeFileName({1955, 7, 19, 14, 30, 0});
    EXPECT_EQ(early, "5071914.300");
    EXPECT_EQ(ParseFileName(early).FileDateText, "71/91/2000 4.:00");

    for (const auto& name : {late, early, std::string("notes.txt"), std::string("")}) {
        SCOPED_TRACE(name);
        try {
            FileDateValue(ParseFileName(name).FileDateText);
            ADD_FAILURE() << "a date was made";
        } catch (const ProgramError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::TypeMismatch);
        }
    }
}

TEST(LibraryFileName, OddNamesReadWhateverStandsAtThePlaces) {
    // A name put in by hand whose fields happen to make a date counts with that date.
    const auto parsed = ParseFileName("55071914.307");
    EXPECT_EQ(parsed.FileTag, 7);
    EXPECT_EQ(FileDateValue(parsed.FileDateText), (DateTime{2005, 7, 19, 14, 30, 0}));
    EXPECT_EQ(ParseFileName("55071914.30").FileTag, 0);
    EXPECT_EQ(ParseFileName("55071914.30x").FileTag, 0);
}

TEST(LibraryFileName, SortKeyIsTheNameLessItsTagReadAsANumber) {
    EXPECT_DOUBLE_EQ(SortKey("55071914.300"), 55071914.30);
    EXPECT_DOUBLE_EQ(SortKey("55071914.301"), 55071914.30);
    EXPECT_DOUBLE_EQ(SortKey("100071914.300"), 100071914.30);
    EXPECT_DOUBLE_EQ(SortKey("12abc.txt"), 12.0);
    EXPECT_DOUBLE_EQ(SortKey("notes.txt"), 0.0);
    EXPECT_DOUBLE_EQ(SortKey("x"), 0.0);
    EXPECT_LT(SortKey("55071914.300"), SortKey("55071914.310"));
    EXPECT_LT(SortKey("99123123.590"), SortKey("100010100.000"));
}

} // namespace
} // namespace veyrant
