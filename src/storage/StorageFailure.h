#pragma once

// The boxes for a file that could not be written. Every such write leaves the old file whole,
// so the boxes can promise that nothing was lost, and they say what the user can do about it.

#include "core/WindowLayer.h"

#include <filesystem>

namespace veyrant {

// Adding the Dialogue to the Library failed; the Library is as it was.
MessageBoxRequest SaveFailureBox(int number, const std::filesystem::path& file);

// Writing the work buffers failed; they still hold what they held before.
MessageBoxRequest KeepFailureBox(int number, const std::filesystem::path& file);

} // namespace veyrant
