#pragma once

// The program's one command line, run before any window is made: --export-library.

#include <optional>

namespace veyrant {

// The exit code when the command line asks for the export, which has then run with no window
// and no display; nothing when the program is to start as usual.
std::optional<int> RunExportLibraryCommand(int argc, char** argv);

} // namespace veyrant
