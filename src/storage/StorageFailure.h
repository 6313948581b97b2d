#pragma once

// The storage's failure boxes. A write that fails leaves the old file whole, so its box can
// promise that nothing was lost, and it says what the user can do about it.

#include "core/WindowLayer.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace veyrant {

// A box with the warning icon and only OK, as the program's failures show.
MessageBoxRequest WarningBox(std::string title, std::string text);

// A Library file could not be read or deleted: "Error n attempting to <attempt> from the Dialogue
// Library." and where the user finds how to repair it.
MessageBoxRequest LibraryCorruptedBox(std::string title, int number, std::string_view attempt);

// Adding the Dialogue to the Library failed; the Library is as it was.
MessageBoxRequest SaveFailureBox(int number, const std::filesystem::path& file);

// Writing the work buffers failed; they still hold what they held before.
MessageBoxRequest KeepFailureBox(int number, const std::filesystem::path& file);

// The same on the way out of the program, which must not end with the Dialogue unkept: it asks
// whether to save the Dialogue as a text file elsewhere (Yes) or stay open (No).
MessageBoxRequest LeavingKeepFailureBox(int number, const std::filesystem::path& file);

// Storing the settings on the way out failed; the program ends without them.
MessageBoxRequest SettingsFailureBox(int number, const std::filesystem::path& file);

// Storing the Reader's marked places (Read.ini) failed; nothing else is at stake, so the program
// goes on.
MessageBoxRequest PlacesFailureBox(int number, const std::filesystem::path& file);

} // namespace veyrant
