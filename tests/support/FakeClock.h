#pragma once

#include "core/Clock.h"

namespace veyrant::testing {

// A clock that stands still until a test moves it. File dates are the real ones, which tests
// set with std::filesystem::last_write_time.
class FakeClock : public Clock {
public:
    float Timer() const override { return Seconds; }
    DateTime Now() const override { return Date; }

    float Seconds = 43200.0f;
    DateTime Date{2026, 11, 22, 12, 0, 0};
};

} // namespace veyrant::testing
