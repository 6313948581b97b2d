#pragma once

// Every file of the program is read and written whole. A write lands whole or not at all: the
// text goes to a temporary file in the same folder, is flushed to the disk, and is then renamed
// over the old file, so a crash or a full disk never leaves half a file behind.

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace veyrant {

// Far above any file the program writes or ships, so that only a damaged one meets it.
inline constexpr std::size_t WholeFileLimit = 16 * 1024 * 1024;

// Reads a regular file of at most limit bytes. Raises ProgramError: 53 when the file is
// missing, 75 when it cannot be read or is no regular file (a pipe would block the program, a
// device need never end), 7 when it holds more than limit bytes.
std::string ReadWholeFile(const std::filesystem::path& path, std::size_t limit = WholeFileLimit);

// Raises ProgramError (61 disk full, 70 permission denied, 76 path not found, 75 otherwise);
// the old file, if any, is then untouched.
void WriteWholeFile(const std::filesystem::path& path, std::string_view bytes);

// The program's error number for a failed system call.
int ErrorNumberFor(const std::error_code& error);

} // namespace veyrant
