#pragma once

// A Dialogue saved as a text file where the user chooses, for when the program's own folder
// cannot take it. The file holds the text export in UTF-8 with this system's line ends, as the
// program's editor saves it, so that any editor opens it.

#include "core/DateTime.h"
#include "core/WindowLayer.h"

#include <string>
#include <string_view>

namespace veyrant {

// The bytes of the file for an export text in the program's code page.
std::string TextFileBytes(std::string_view exportText);

// Asks for the file, proposing the export's name, writes the export there and says in a box
// whether that worked. True once the file is written; false when the user cancelled or the
// write failed, and then nothing of it is left on the disk.
bool SaveTextFile(WindowLayer& windows, const DateTime& date, std::string_view text);

} // namespace veyrant
