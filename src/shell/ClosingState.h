#pragma once

// Where in its ending the program stands.

#include <cstdint>

namespace veyrant::ClosingStates {
inline constexpr std::int16_t Running = 0;
inline constexpr std::int16_t Exiting = 1;
// The Write window is hidden behind the Utilities or Library Options window.
inline constexpr std::int16_t UtilitiesUp = 2;
} // namespace veyrant::ClosingStates
