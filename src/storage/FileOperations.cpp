#include "storage/FileOperations.h"

#include "core/ProgramError.h"
#include "core/WholeFile.h"

#include <system_error>

namespace veyrant {

void RenameFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    std::error_code error;
    std::filesystem::rename(from, to, error);
    if (error) {
        throw ProgramError(ErrorNumberFor(error));
    }
}

void RemoveFile(const std::filesystem::path& path) {
    std::error_code error;
    if (!std::filesystem::remove(path, error)) {
        throw ProgramError(error ? ErrorNumberFor(error) : ErrorNumber::FileNotFound);
    }
}

void MakeFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) {
        throw ProgramError(ErrorNumberFor(error));
    }
}

} // namespace veyrant
