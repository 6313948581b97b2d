#include "core/DateFormat.h"

#include <array>
#include <cstdio>

namespace veyrant {

namespace {

constexpr std::array<const char*, 7> DayNames = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                 "Thursday", "Friday", "Saturday"};
constexpr std::array<const char*, 12> MonthNames = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

std::string TwoDigits(int value) {
    char text[16];
    std::snprintf(text, sizeof text, "%02d", value);
    return text;
}

std::size_t RunLength(std::string_view pattern, std::size_t at) {
    std::size_t end = at;
    while (end < pattern.size() && (pattern[end] | 0x20) == (pattern[at] | 0x20)) {
        ++end;
    }
    return end - at;
}

} // namespace

std::string FormatDate(const DateTime& when, std::string_view pattern) {
    const bool twelveHour = pattern.find("AM/PM") != std::string_view::npos ||
                            pattern.find("am/pm") != std::string_view::npos;
    int hour = when.Hour;
    if (twelveHour) {
        hour = hour % 12 == 0 ? 12 : hour % 12;
    }
    std::string out;
    bool afterHour = false; // an m right after an hour means minutes
    std::size_t i = 0;
    while (i < pattern.size()) {
        const std::string_view rest = pattern.substr(i);
        if (rest.substr(0, 5) == "AM/PM" || rest.substr(0, 5) == "am/pm") {
            const bool upper = rest[0] == 'A';
            out += when.Hour < 12 ? (upper ? "AM" : "am") : (upper ? "PM" : "pm");
            i += 5;
            continue;
        }
        const char c = static_cast<char>(pattern[i] | 0x20);
        const std::size_t run = RunLength(pattern, i);
        switch (c) {
        case 'd':
            if (run >= 4) {
                out += DayNames[static_cast<std::size_t>(Weekday(when) - 1)];
            } else if (run == 3) {
                out +=
                    std::string(DayNames[static_cast<std::size_t>(Weekday(when) - 1)]).substr(0, 3);
            } else {
                out += run == 2 ? TwoDigits(when.Day) : std::to_string(when.Day);
            }
            afterHour = false;
            break;
        case 'm':
            if (afterHour && run <= 2) {
                out += run == 2 ? TwoDigits(when.Minute) : std::to_string(when.Minute);
            } else if (run >= 4) {
                out += MonthNames[static_cast<std::size_t>(when.Month - 1)];
            } else if (run == 3) {
                out +=
                    std::string(MonthNames[static_cast<std::size_t>(when.Month - 1)]).substr(0, 3);
            } else {
                out += run == 2 ? TwoDigits(when.Month) : std::to_string(when.Month);
            }
            afterHour = false;
            break;
        case 'y':
            if (run >= 3) {
                out += std::to_string(when.Year);
            } else {
                out += TwoDigits(when.Year % 100);
            }
            afterHour = false;
            break;
        case 'h':
            out += run >= 2 ? TwoDigits(hour) : std::to_string(hour);
            afterHour = true;
            break;
        case 'n':
            out += run >= 2 ? TwoDigits(when.Minute) : std::to_string(when.Minute);
            afterHour = false;
            break;
        case 's':
            out += run >= 2 ? TwoDigits(when.Second) : std::to_string(when.Second);
            afterHour = false;
            break;
        default:
            out.append(pattern.substr(i, run));
            // A separator between the hour and its minutes keeps the minute reading.
            if (!(afterHour && pattern[i] == ':' && run == 1)) {
                afterHour = false;
            }
            break;
        }
        i += run;
    }
    return out;
}

} // namespace veyrant
