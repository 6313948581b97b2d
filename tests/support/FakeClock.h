#pragma once

#include "core/Clock.h"

#include <map>

namespace veyrant::testing {

// A clock that stands still until a test moves it. File dates are the real ones unless a test
// names a date for a path.
class FakeClock : public Clock {
public:
    float Timer() const override { return Seconds; }
    DateTime Now() const override { return Date; }
    std::optional<DateTime> FileDate(const std::filesystem::path& path) const override {
        if (const auto named = FileDates.find(path); named != FileDates.end()) {
            return named->second;
        }
        return Clock::FileDate(path);
    }

    float Seconds = 43200.0f;
    DateTime Date{2026, 11, 22, 12, 0, 0};
    std::map<std::filesystem::path, DateTime> FileDates;
};

} // namespace veyrant::testing
