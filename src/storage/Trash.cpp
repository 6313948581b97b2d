#include "storage/Trash.h"

#include "core/DateFormat.h"
#include "core/FileCalls.h"
#include "core/FileOperations.h"
#include "core/ProgramError.h"
#include "core/WholeFile.h"

#include <cctype>
#include <cerrno>
#include <string_view>
#include <sys/stat.h>

namespace veyrant {

namespace {

// The move into the trash must be a rename: across disks it would copy the Dialogue.
void RequireOneDisk(const std::filesystem::path& file, const std::filesystem::path& folder) {
    struct stat fileStatus {};
    struct stat folderStatus {};
    if (::stat(file.c_str(), &fileStatus) == 0 && ::stat(folder.c_str(), &folderStatus) == 0 &&
        fileStatus.st_dev != folderStatus.st_dev) {
        errno = EXDEV;
        RaiseFromErrno();
    }
}

std::string InfoText(const std::filesystem::path& file, const DateTime& deleted) {
    return "[Trash Info]\nPath=" + PercentEncoded(std::filesystem::absolute(file).string()) +
           "\nDeletionDate=" + FormatDate(deleted, "yyyy-mm-dd") + "T" +
           FormatDate(deleted, "hh:nn:ss") + "\n";
}

// An info without its file that names the same file.
bool ClaimedFor(const std::filesystem::path& info, const std::string& text) {
    try {
        return ReadWholeFile(info).starts_with(text.substr(0, text.find("\nDeletionDate=")));
    } catch (const ProgramError&) {
        return false;
    }
}

} // namespace

std::filesystem::path TrashInfoPath(const std::filesystem::path& trashed) {
    return trashed.parent_path().parent_path() / "info" /
           (trashed.filename().string() + ".trashinfo");
}

std::string PercentEncoded(const std::string& path) {
    static constexpr std::string_view Unreserved = "-_.!~*'()/";
    static constexpr char Hex[] = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        if (std::isalnum(byte) != 0 || Unreserved.find(c) != std::string_view::npos) {
            encoded += c;
        } else {
            encoded += '%';
            encoded += Hex[byte >> 4];
            encoded += Hex[byte & 15];
        }
    }
    return encoded;
}

TrashPlace ClaimTrashPlace(const std::filesystem::path& trash, const std::filesystem::path& file,
                           const DateTime& deleted) {
    MakeFolder(trash / "files");
    MakeFolder(trash / "info");
    RequireOneDisk(file, trash / "files");
    const std::string text = InfoText(file, deleted);
    for (int copy = 1;; ++copy) {
        const std::string name =
            file.filename().string() + (copy > 1 ? "." + std::to_string(copy) : "");
        TrashPlace place{trash / "files" / name, {}};
        place.Info = TrashInfoPath(place.Trashed);
        std::error_code error;
        if (std::filesystem::exists(std::filesystem::symlink_status(place.Trashed, error))) {
            continue;
        }
        if (std::filesystem::exists(std::filesystem::symlink_status(place.Info, error))) {
            // A claim for this very file that a crash cut short is taken up again.
            if (ClaimedFor(place.Info, text)) {
                return place;
            }
            continue;
        }
        // Staged and renamed, so that a crash leaves no torn .trashinfo under the name.
        const auto staged = StageWholeFile(place.Info, text);
        if (files::Rename(staged, place.Info) != 0) {
            const int cause = errno;
            files::Unlink(staged);
            errno = cause;
            RaiseFromErrno();
        }
        SyncFolder(trash / "info");
        return place;
    }
}

} // namespace veyrant
