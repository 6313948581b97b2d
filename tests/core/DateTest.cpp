#include "core/Clock.h"
#include "core/DateFormat.h"
#include "core/DateTime.h"

#include <ctime>
#include <gtest/gtest.h>
#include <string>
#include <tuple>

namespace veyrant {
namespace {

// Every pattern of the program, and day numbers that subtract to ages in days.
TEST(DateFormat, EveryPatternOfTheProgramAndDayNumbers) {
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
    const DateTime saved{2026, 2, 27, 18, 0, 0};
    EXPECT_DOUBLE_EQ(DayNumber(DateTime{2026, 3, 1, 6, 0, 0}) - DayNumber(saved), 1.5);
    EXPECT_EQ(std::tuple(RoundDays(1.5), RoundDays(2.5), RoundDays(-0.5)), std::tuple(2, 2, 0));
    EXPECT_EQ(DayNumber(DateTime{1899, 12, 30}), 0.0);
    EXPECT_EQ(FromDayNumber(DayNumber(saved)), saved);
    EXPECT_EQ(Weekday(DateTime{2026, 11, 22}), 1); // a Sunday
    EXPECT_TRUE(IsValidDate(2024, 2, 29) && !IsValidDate(2025, 2, 29) && !IsValidDate(2025, 13, 1));
}

// The one test that reads the machine's clock: it checks the clock seam against the C library on
// whatever day, hour and zone the machine (or a faked clock) says, so a wrong day across a
// daylight-saving change, a leap day or the year 2038 shows here.
// strftime's names follow the C locale, which is English whatever the machine's locale.
std::string LibraryText(std::time_t seconds) {
    std::tm parts{};
    localtime_r(&seconds, &parts);
    char text[64] = {};
    std::strftime(text, sizeof text, "%A %B %d %Y %H:%M:%S", &parts);
    return text;
}

TEST(SystemClock, AgreesWithTheMachinesLocalTimeInTheProgramsFormats) {
    const SystemClock clock;
    const std::time_t before = std::time(nullptr);
    const DateTime now = clock.Now();
    const float timer = clock.Timer();
    const std::time_t after = std::time(nullptr);
    const std::string program = FormatDate(now, "dddd mmmm dd yyyy hh:nn:ss");
    EXPECT_TRUE(program == LibraryText(before) || program == LibraryText(after))
        << program << " / " << LibraryText(before);
    const float clockSeconds = static_cast<float>(now.Hour * 3600 + now.Minute * 60 + now.Second);
    // The timer and the date are read a moment apart; midnight may fall between them.
    const bool sameMoment = timer >= clockSeconds - 2.0f && timer <= clockSeconds + 2.0f;
    const bool acrossMidnight = clockSeconds > 86398.0f || timer < 2.0f;
    EXPECT_TRUE(sameMoment || acrossMidnight) << timer << " against " << clockSeconds;
}

} // namespace
} // namespace veyrant
