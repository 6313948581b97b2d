#include "core/Clock.h"
#include "core/DateFormat.h"

#include <ctime>
#include <gtest/gtest.h>
#include <string>

namespace veyrant {
namespace {

// The one test that reads the machine's clock: it checks the clock seam against the C library on
// whatever day, hour and zone the machine (or a faked clock) says, so a wrong day across a
// daylight-saving change, a leap day or the year 2038 shows here.
std::string LibraryText(std::time_t seconds, const char* format) {
    std::tm parts{};
    localtime_r(&seconds, &parts);
    char text[64] = {};
    std::strftime(text, sizeof text, format, &parts);
    return text;
}

TEST(SystemClock, AgreesWithTheMachinesLocalTimeInTheProgramsFormats) {
    const SystemClock clock;
    const std::time_t before = std::time(nullptr);
    const DateTime now = clock.Now();
    const float timer = clock.Timer();
    const std::time_t after = std::time(nullptr);

    // strftime's names follow the C locale, which is English whatever the machine's locale.
    const std::string program = FormatDate(now, "dddd mmmm dd yyyy hh:nn:ss");
    const char* libraryFormat = "%A %B %d %Y %H:%M:%S";
    EXPECT_TRUE(program == LibraryText(before, libraryFormat) ||
                program == LibraryText(after, libraryFormat))
        << program << " / " << LibraryText(before, libraryFormat);

    const float clockSeconds = static_cast<float>(now.Hour * 3600 + now.Minute * 60 + now.Second);
    // The timer and the date are read a moment apart; midnight may fall between them.
    const bool sameMoment = timer >= clockSeconds - 2.0f && timer <= clockSeconds + 2.0f;
    const bool acrossMidnight = clockSeconds > 86398.0f || timer < 2.0f;
    EXPECT_TRUE(sameMoment || acrossMidnight) << timer << " against " << clockSeconds;
}

} // namespace
} // namespace veyrant
