#pragma once

#include "core/Clock.h"

#include <map>

namespace veyrant::testing {

// A clock that stands still until a test moves it. It answers every file date too, so that no test
// meets the real clock: a file a test named has that date, any other file that exists was written
// "now", at the fake clock's date.
class FakeClock : public Clock {
public:
    float Timer() const override { return Seconds; }
    DateTime Now() const override { return Date; }
    std::optional<DateTime> FileDate(const std::filesystem::path& path) const override {
        if (const auto named = FileDates.find(path); named != FileDates.end()) {
            return named->second;
        }
        std::error_code error;
        if (!std::filesystem::exists(path, error)) {
            return std::nullopt;
        }
        return Date;
    }

    float Seconds = 43200.0f;
    DateTime Date{2026, 11, 22, 12, 0, 0};
    std::map<std::filesystem::path, DateTime> FileDates;
};

} // namespace veyrant::testing
