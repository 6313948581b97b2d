#pragma once

// Renaming, deleting, listing and making folders the way the program's routines expect to fail:
// with its numbered errors. Folders the program makes are the user's alone.

#include <filesystem>
#include <string>
#include <vector>

namespace veyrant {

inline constexpr unsigned PrivateFolderRights = 0700;

// Raises ProgramError with the number for the system's failure.
void RenameFile(const std::filesystem::path& from, const std::filesystem::path& to);

// Raises ProgramError, 53 when there is no such file.
void RemoveFile(const std::filesystem::path& path);

// Makes the folder and those above it, if missing, open to the user alone; raises ProgramError
// when it cannot.
void MakeFolder(const std::filesystem::path& folder);

// Flushes the folder's names to the disk, so that a rename or a delete in it survives a power
// loss. Raises ProgramError.
void SyncFolder(const std::filesystem::path& folder);

// The names of the plain files in the folder, in name order. Raises ProgramError.
std::vector<std::string> ListFiles(const std::filesystem::path& folder);

} // namespace veyrant
