#pragma once

// Renaming and deleting files the way the program's routines expect to fail: with its numbered
// errors.

#include <filesystem>

namespace veyrant {

// Raises ProgramError with the number for the system's failure.
void RenameFile(const std::filesystem::path& from, const std::filesystem::path& to);

// Raises ProgramError, 53 when there is no such file.
void RemoveFile(const std::filesystem::path& path);

// Makes the folder and those above it, if missing; raises ProgramError when it cannot.
void MakeFolder(const std::filesystem::path& folder);

} // namespace veyrant
