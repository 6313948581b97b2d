#include "core/DateFormat.h"
#include "core/DateTime.h"

#include <gtest/gtest.h>

namespace veyrant {
namespace {

TEST(DateFormat, EveryPatternOfTheProgram) {
    const DateTime pm{2005, 7, 19, 14, 30, 5};
    const DateTime am{2026, 1, 4, 0, 7, 0};
    const struct {
        DateTime When;
        const char* Pattern;
        const char* Expected;
    } cases[] = {
        {pm, "dddd, h:nn AM/PM", "Tuesday, 2:30 PM"},
        {pm, "dddd, h:nn am/pm, mmmm d, yyyy", "Tuesday, 2:30 pm, July 19, 2005"},
        {pm, "dddd, h:mm am/pm, mmmm d, yyyy", "Tuesday, 2:30 pm, July 19, 2005"},
        {pm, "mmm d yy-mm-dd", "Jul 19 05-07-19"},
        {pm, "hh:nn", "14:30"},
        {am, "dddd, h:nn am/pm, mmmm d, yyyy", "Sunday, 12:07 am, January 4, 2026"},
        {am, "ddd mmm d yy", "Sun Jan 4 26"},
        {DateTime{2026, 11, 22, 12, 0, 0}, "h:nn AM/PM", "12:00 PM"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FormatDate(c.When, c.Pattern), c.Expected) << c.Pattern;
    }
}

TEST(DateTime, DayNumbersSubtractToAgesInDays) {
    const DateTime saved{2026, 2, 27, 18, 0, 0};
    EXPECT_DOUBLE_EQ(DayNumber(DateTime{2026, 3, 1, 6, 0, 0}) - DayNumber(saved), 1.5);
    EXPECT_EQ(RoundDays(1.5), 2);
    EXPECT_EQ(RoundDays(2.5), 2);
    EXPECT_EQ(RoundDays(-0.5), 0);
    EXPECT_EQ(DayNumber(DateTime{1899, 12, 30}), 0.0);
    EXPECT_EQ(FromDayNumber(DayNumber(saved)), saved);
    EXPECT_EQ(Weekday(DateTime{2026, 11, 22}), 1); // a Sunday
    EXPECT_TRUE(IsValidDate(2024, 2, 29));
    EXPECT_FALSE(IsValidDate(2025, 2, 29));
    EXPECT_FALSE(IsValidDate(2025, 13, 1));
}

} // namespace
} // namespace veyrant
