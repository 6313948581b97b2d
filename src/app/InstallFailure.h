#pragma once

// The start could not lay the program's folder down: a read-only disk, a full one, a file where a
// folder should be. That is no unknown error, so the user is told which folder and why.

#include "core/ProgramError.h"
#include "core/WindowLayer.h"

#include <filesystem>
#include <utility>

namespace veyrant {

class InstallFailure : public ProgramError {
public:
    // cause: the system's errno.
    InstallFailure(int number, int cause, std::filesystem::path folder)
        : ProgramError(number), cause_(cause), folder_(std::move(folder)) {}
    int Cause() const noexcept { return cause_; }
    // The folder the program could not make or write.
    const std::filesystem::path& Folder() const noexcept { return folder_; }

private:
    int cause_;
    std::filesystem::path folder_;
};

// The folder a failure on the way to path met: the first on the way down that is missing or no
// folder, else path itself.
std::filesystem::path FailedFolder(const std::filesystem::path& path);

MessageBoxRequest InstallFailureBox(const InstallFailure& failure);

// A change an earlier run began could not be finished: the file the disk refuses, and why.
MessageBoxRequest UnfinishedChangeBox(int cause, const std::filesystem::path& file);

} // namespace veyrant
