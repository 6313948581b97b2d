#pragma once

// Whether the Reader is on screen; the Write window asks it before it steps aside or comes back.

#include <cstdint>

namespace veyrant {

enum class ReaderOpenState : std::int16_t {
    Closed = 0,
    Opening = -1, // set by the Write window while it starts opening
    Open = 1,
};

} // namespace veyrant
