#pragma once

// Every file of the program is read and written whole. A write lands whole or not at all: the
// text goes to a temporary file in the same folder, is flushed to the disk, and is then renamed
// over the old file, so a crash or a full disk never leaves half a file behind.

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace veyrant {

// Raises ProgramError (53 when the file is missing, 75 when it cannot be read).
std::string ReadWholeFile(const std::filesystem::path& path);

// Raises ProgramError (61 disk full, 70 permission denied, 76 path not found, 75 otherwise);
// the old file, if any, is then untouched.
void WriteWholeFile(const std::filesystem::path& path, std::string_view bytes);

// The program's error number for a failed system call.
int ErrorNumberFor(const std::error_code& error);

} // namespace veyrant
