#pragma once

// Every file of the program is read and written whole. A write lands whole or not at all: the
// text goes to a hidden temporary file in the same folder, is flushed to the disk, and is then
// renamed over the old file, and the folder is flushed so that the new name survives a power
// loss. A crash or a full disk never leaves half a file behind.
//
// The program's files hold the user's most private writing: they are readable and writable by
// the user alone.

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace veyrant {

inline constexpr unsigned PrivateFileRights = 0600;

// Far above any file the program writes or ships, so that only a damaged one meets it.
inline constexpr std::size_t WholeFileLimit = 16 * 1024 * 1024;

// Reads a regular file of at most limit bytes. Raises ProgramError: 53 when the file is
// missing, 75 when it cannot be read or is no regular file (a pipe would block the program, a
// device need never end), 7 when it holds more than limit bytes.
std::string ReadWholeFile(const std::filesystem::path& path, std::size_t limit = WholeFileLimit);

// Raises ProgramError (61 disk full, 70 permission denied, 76 path not found, 75 otherwise);
// the old file, if any, is then whole: old, or new when only the flush of the folder failed.
void WriteWholeFile(const std::filesystem::path& path, std::string_view bytes);

// The same for a file the user saves outside the program's folder, an export: it takes the rights
// the user gives a new file, not the program's private ones.
void WriteUserFile(const std::filesystem::path& path, std::string_view bytes);

// The same for one of the many files an export writes into one folder, but the folder's names are
// left for the caller to flush once, with SyncFolder, after the last file: half the flushes. Until
// then a power loss may leave a file under its hidden staged name, still whole.
void PlaceUserFile(const std::filesystem::path& path, std::string_view bytes);

// Lays the text down, flushed, under a hidden name beside the path ("." + name +
// ".veyrant-staged." + six letters) and returns that name; the caller renames it into place. Raises
// ProgramError as WriteWholeFile does, and then leaves no file behind.
std::filesystem::path StageWholeFile(const std::filesystem::path& path, std::string_view bytes);

// True for a name StageWholeFile makes, and for no other: the hidden leftover of a write that
// never landed, which alone the start may remove.
bool IsStagedName(const std::string& name);

// Deletes the leftovers of interrupted writes in the folder, if there is one. Raises ProgramError.
void RemoveStagedFiles(const std::filesystem::path& folder);

// The program's error number for a failed system call.
int ErrorNumberFor(const std::error_code& error);

// The same, from errno.
[[noreturn]] void RaiseFromErrno();

} // namespace veyrant
