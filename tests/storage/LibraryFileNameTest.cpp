#include "storage/LibraryFileName.h"

#include "core/ProgramError.h"

#include <gtest/gtest.h>
#include <tuple>

namespace veyrant {
namespace {

// A name holds the date to the minute and a tag, and reads back. The form has no room past 2049
// or before 1960: the name grows or shrinks by one character and every field read from it
// shifts, so it makes no date. A name put in by hand reads whatever stands at the places.
TEST(LibraryFileName, NamesFollowTheDateAndReadBack) {
    // The date (none: made by hand), the name, the date read from it, the tag, the sort key,
    // and whether the name makes a date.
    const std::tuple<DateTime, std::string, const char*, int, double, bool> cases[] = {
        {{2005, 7, 19, 14, 30, 59}, "55071914.300", "07/19/2005 14:30", 0, 55071914.30, true},
        {{2049, 12, 31, 23, 59, 0}, "99123123.590", "12/31/2049 23:59", 0, 99123123.59, true},
        {{1960, 1, 1, 0, 0, 0}, "10010100.000", "01/01/1960 00:00", 0, 10010100.0, true},
        {{2050, 7, 19, 14, 30, 0}, "100071914.300", "00/71/1960 91:.3", 0, 100071914.30, false},
        {{1955, 7, 19, 14, 30, 0}, "5071914.300", "71/91/2000 4.:00", 0, 5071914.30, false},
        {{}, "55071914.307", "07/19/2005 14:30", 7, 55071914.30, true},
        {{}, "55071914.30", "07/19/2005 14:30", 0, 55071914.30, true},
        {{}, "55071914.30x", "07/19/2005 14:30", 0, 55071914.30, true},
        {{}, "12abc.txt", nullptr, 0, 12.0, false},
        {{}, "notes.txt", nullptr, 0, 0.0, false},
        {{}, "", nullptr, 0, 0.0, false},
    };
    for (const auto& [when, name, fileDateText, tag, key, dated] : cases) {
        SCOPED_TRACE(name);
        if (when != DateTime{}) {
            EXPECT_EQ(MakeFileName(when), name);
        }
        const auto parsed = ParseFileName(name);
        if (fileDateText != nullptr) {
            EXPECT_EQ(parsed.FileDateText, fileDateText);
        }
        EXPECT_EQ(parsed.FileTag, tag);
        EXPECT_DOUBLE_EQ(SortKey(name), key);
        try {
            const DateTime date = FileDateValue(parsed.FileDateText);
            DateTime minute = when != DateTime{} ? when : DateTime{2005, 7, 19, 14, 30, 0};
            minute.Second = 0;
            EXPECT_TRUE(dated);
            EXPECT_EQ(date, minute);
        } catch (const ProgramError& error) {
            EXPECT_FALSE(dated);
            EXPECT_EQ(error.Number(), ErrorNumber::TypeMismatch);
        }
    }
    EXPECT_LT(SortKey("55071914.300"), SortKey("55071914.310"));
    EXPECT_LT(SortKey("99123123.590"), SortKey("100010100.000"));
}

} // namespace
} // namespace veyrant
