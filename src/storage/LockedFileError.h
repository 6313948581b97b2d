#pragma once

// A file of the locked Library that does not open: its envelope is damaged, it is not of this
// Library's key, or the key file itself is damaged or missing. The file is kept as it is, and the
// program's own box names it.

#include "core/ProgramError.h"
#include "core/WindowLayer.h"

#include <filesystem>

namespace veyrant {

namespace ErrorNumber {
inline constexpr int LockedFile = 1002;
} // namespace ErrorNumber

class LockedFileError : public ProgramError {
public:
    explicit LockedFileError(std::filesystem::path file)
        : ProgramError(ErrorNumber::LockedFile), file_(std::move(file)) {}
    const std::filesystem::path& File() const noexcept { return file_; }

private:
    std::filesystem::path file_;
};

MessageBoxRequest LockedFileBox(const std::filesystem::path& file);

} // namespace veyrant
