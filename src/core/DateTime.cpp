#include "core/DateTime.h"

#include <algorithm>
#include <cmath>

namespace veyrant {

namespace {

// Days from 1970-01-01 to a civil date (proleptic Gregorian).
long DaysFromCivil(long y, int m, int d) {
    y -= m <= 2 ? 1 : 0;
    const long era = (y >= 0 ? y : y - 399) / 400;
    const long yoe = y - era * 400;
    const long doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
    const long doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    return era * 146097 + doe - 719468;
}

void CivilFromDays(long z, int& y, int& m, int& d) {
    z += 719468;
    const long era = (z >= 0 ? z : z - 146096) / 146097;
    const long doe = z - era * 146097;
    const long yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const long doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const long mp = (5 * doy + 2) / 153;
    d = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
    m = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
    y = static_cast<int>(yoe + era * 400 + (m <= 2 ? 1 : 0));
}

constexpr long Epoch1899 = -25569; // 1899-12-30 counted from 1970-01-01

} // namespace

double DayNumber(const DateTime& when) {
    const long days = DaysFromCivil(when.Year, when.Month, when.Day) - Epoch1899;
    const double seconds = when.Hour * 3600.0 + when.Minute * 60.0 + when.Second;
    return static_cast<double>(days) + seconds / 86400.0;
}

DateTime FromDayNumber(double days) {
    const double whole = std::floor(days);
    long seconds = std::lround((days - whole) * 86400.0);
    long dayCount = static_cast<long>(whole);
    if (seconds >= 86400) {
        seconds -= 86400;
        ++dayCount;
    }
    DateTime result;
    CivilFromDays(dayCount + Epoch1899, result.Year, result.Month, result.Day);
    result.Hour = static_cast<int>(seconds / 3600);
    result.Minute = static_cast<int>((seconds / 60) % 60);
    result.Second = static_cast<int>(seconds % 60);
    return result;
}

int Weekday(const DateTime& when) {
    // 1970-01-01 was a Thursday (5).
    const long days = DaysFromCivil(when.Year, when.Month, when.Day);
    return static_cast<int>(((days % 7) + 7 + 4) % 7) + 1;
}

bool IsValidDate(int year, int month, int day) {
    if (month < 1 || month > 12 || day < 1) {
        return false;
    }
    static constexpr int Lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    const int length = Lengths[month - 1] + (month == 2 && leap ? 1 : 0);
    return day <= length;
}

int RoundDays(double days) {
    return static_cast<int>(std::nearbyint(days));
}

int AgeInDays(const DateTime& now, const DateTime& then) {
    return std::max(0, RoundDays(DayNumber(now) - DayNumber(then)));
}

} // namespace veyrant
