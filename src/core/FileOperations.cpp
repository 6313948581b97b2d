#include "core/FileOperations.h"

#include "core/FileCallError.h"
#include "core/FileCalls.h"
#include "core/ProgramError.h"
#include "core/WholeFile.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>

namespace veyrant {

void RenameFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    if (files::Rename(from, to) != 0) {
        RaiseFromErrno();
    }
}

void RemoveFile(const std::filesystem::path& path) {
    if (files::Unlink(path) != 0) {
        RaiseFromErrno();
    }
}

void MakeFolder(const std::filesystem::path& folder) {
    std::error_code error;
    if (folder.empty() || std::filesystem::is_directory(folder, error)) {
        return;
    }
    if (folder.has_parent_path() && folder.parent_path() != folder) {
        MakeFolder(folder.parent_path());
    }
    if (files::MakeFolder(folder, PrivateFolderRights) != 0 && errno != EEXIST) {
        RaiseFromErrno();
    }
    if (!std::filesystem::is_directory(folder, error)) {
        // Something that is no folder stands in its place.
        throw FileCallError(ErrorNumber::PathNotFound, ENOTDIR);
    }
}

void SyncFolder(const std::filesystem::path& folder) {
    const int fd = files::Open(folder, O_RDONLY | O_DIRECTORY);
    if (fd < 0) {
        RaiseFromErrno();
    }
    if (files::Sync(fd) != 0) {
        const int error = errno;
        files::Close(fd);
        errno = error;
        RaiseFromErrno();
    }
    if (files::Close(fd) != 0) {
        RaiseFromErrno();
    }
}

std::vector<std::string> ListFiles(const std::filesystem::path& folder) {
    std::vector<files::FolderEntry> entries;
    if (!files::List(folder, entries)) {
        RaiseFromErrno();
    }
    std::vector<std::string> names;
    for (const auto& entry : entries) {
        if (entry.IsFile) {
            names.push_back(entry.Name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace veyrant
