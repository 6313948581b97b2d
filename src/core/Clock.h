#pragma once

// The clock seam: seconds since midnight as the program's timer reads them, the local date and
// time, and file dates. Injected everywhere so that tests choose the time.

#include "core/DateTime.h"

#include <filesystem>
#include <optional>

namespace veyrant {

class Clock {
public:
    virtual ~Clock() = default;
    // Seconds since local midnight, in single precision.
    virtual float Timer() const = 0;
    virtual DateTime Now() const = 0;
    // The local date and time a file was last written, or nothing if it does not exist.
    virtual std::optional<DateTime> FileDate(const std::filesystem::path& path) const;
};

class SystemClock final : public Clock {
public:
    float Timer() const override;
    DateTime Now() const override;
};

} // namespace veyrant
