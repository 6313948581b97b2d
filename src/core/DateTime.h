#pragma once

// A local calendar date and time, and the day arithmetic the program does on it. Day numbers
// count days since 30 December 1899, with the time of day as the fraction, so that "now minus a
// date" is a plain subtraction in days.

namespace veyrant {

struct DateTime {
    int Year = 1899;
    int Month = 12;
    int Day = 30;
    int Hour = 0;
    int Minute = 0;
    int Second = 0;

    friend bool operator==(const DateTime&, const DateTime&) = default;
};

double DayNumber(const DateTime& when);
DateTime FromDayNumber(double days);

// 1 Sunday to 7 Saturday.
int Weekday(const DateTime& when);

bool IsValidDate(int year, int month, int day);

// Whole days from a difference, halves to even, as the program rounds ages.
int RoundDays(double days);

// Whole days from then to now, rounded as above. A date later than now (the clock was set back,
// or the file came from another time zone) is 0 days old, never a negative age.
int AgeInDays(const DateTime& now, const DateTime& then);

} // namespace veyrant
