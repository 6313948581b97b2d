#include "core/WholeFile.h"

#include "core/FileCallError.h"
#include "core/FileCalls.h"
#include "core/FileOperations.h"
#include "core/ProgramError.h"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace veyrant {

int ErrorNumberFor(const std::error_code& error) {
    switch (error.value()) {
    case ENOENT:
        return ErrorNumber::FileNotFound;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return ErrorNumber::DiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
        return ErrorNumber::PermissionDenied;
    case ENOTDIR:
        return ErrorNumber::PathNotFound;
    case ENOMEM:
        return ErrorNumber::OutOfMemory;
    default:
        return ErrorNumber::PathFileAccess;
    }
}

void RaiseFromErrno() {
    const int cause = errno;
    throw FileCallError(ErrorNumberFor(std::error_code(cause, std::generic_category())), cause);
}

namespace {

constexpr std::size_t StagedSuffix = 6;
// Between the name and the letters, so that no file of the user's reads as one of ours.
constexpr std::string_view StagedMark = ".veyrant-staged.";

class FileDescriptor {
public:
    explicit FileDescriptor(int fd) : fd_(fd) {}
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() {
        if (fd_ >= 0) {
            files::Close(fd_);
        }
    }
    int Get() const { return fd_; }
    int Release() {
        const int fd = fd_;
        fd_ = -1;
        return fd;
    }

private:
    int fd_;
};

// Six letters that no other write of this process has used; the exclusive open catches the rest.
std::string StagedLetters() {
    static std::atomic<unsigned long> counter{static_cast<unsigned long>(::getpid()) * 7919UL};
    constexpr std::string_view letters =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    unsigned long value = counter.fetch_add(104729UL);
    std::string text;
    for (std::size_t i = 0; i < StagedSuffix; ++i) {
        text += letters[value % letters.size()];
        value /= letters.size();
    }
    return text;
}

void WriteAll(int fd, std::string_view bytes) {
    std::size_t written = 0;
    while (written < bytes.size()) {
        const auto put = files::Write(fd, bytes.data() + written, bytes.size() - written);
        if (put < 0) {
            if (errno == EINTR) {
                continue;
            }
            RaiseFromErrno();
        }
        written += static_cast<std::size_t>(put);
    }
}

// The rights the user's file-creation mask leaves of these.
constexpr unsigned UserFileRights = 0666;

std::filesystem::path StageWithRights(const std::filesystem::path& path, std::string_view bytes,
                                      unsigned rights) {
    const auto folder = path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
    std::filesystem::path staged;
    int opened = -1;
    do {
        staged =
            folder / ("." + path.filename().string() + std::string(StagedMark) + StagedLetters());
        opened = files::Open(staged, O_WRONLY | O_CREAT | O_EXCL, rights);
    } while (opened < 0 && errno == EEXIST);
    FileDescriptor fd(opened);
    if (fd.Get() < 0) {
        RaiseFromErrno();
    }
    try {
        WriteAll(fd.Get(), bytes);
        if (files::Sync(fd.Get()) != 0 || files::Close(fd.Release()) != 0) {
            RaiseFromErrno();
        }
    } catch (const ProgramError&) {
        files::Unlink(staged);
        throw;
    }
    return staged;
}

void WriteWithRights(const std::filesystem::path& path, std::string_view bytes, unsigned rights,
                     bool syncFolder = true) {
    const auto staged = StageWithRights(path, bytes, rights);
    if (files::Rename(staged, path) != 0) {
        const int error = errno;
        files::Unlink(staged);
        errno = error;
        RaiseFromErrno();
    }
    if (syncFolder) {
        SyncFolder(staged.parent_path());
    }
}

} // namespace

std::string ReadWholeFile(const std::filesystem::path& path, std::size_t limit) {
    // Without O_NONBLOCK the open itself would wait for a writer to come to a pipe.
    FileDescriptor fd(files::Open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (fd.Get() < 0) {
        RaiseFromErrno();
    }
    struct stat status {};
    if (::fstat(fd.Get(), &status) != 0) {
        RaiseFromErrno();
    }
    if (!S_ISREG(status.st_mode)) {
        throw ProgramError(ErrorNumber::PathFileAccess);
    }
    std::string bytes;
    char buffer[65536];
    for (;;) {
        const auto got = files::Read(fd.Get(), buffer, sizeof buffer);
        if (got < 0) {
            if (errno == EINTR) {
                continue;
            }
            RaiseFromErrno();
        }
        if (got == 0) {
            break;
        }
        // Counted as it is read: the file may grow while it is read.
        if (static_cast<std::size_t>(got) > limit - bytes.size()) {
            throw ProgramError(ErrorNumber::OutOfMemory);
        }
        bytes.append(buffer, static_cast<std::size_t>(got));
    }
    return bytes;
}

bool IsStagedName(const std::string& name) {
    const std::size_t tail = StagedMark.size() + StagedSuffix;
    return name.size() > tail + 1 && name.front() == '.' &&
           name.compare(name.size() - tail, StagedMark.size(), StagedMark) == 0;
}

void RemoveStagedFiles(const std::filesystem::path& folder) {
    std::error_code error;
    if (!std::filesystem::is_directory(folder, error)) {
        return;
    }
    for (const auto& name : ListFiles(folder)) {
        if (IsStagedName(name)) {
            RemoveFile(folder / name);
        }
    }
}

std::filesystem::path StageWholeFile(const std::filesystem::path& path, std::string_view bytes) {
    return StageWithRights(path, bytes, PrivateFileRights);
}

void WriteWholeFile(const std::filesystem::path& path, std::string_view bytes) {
    WriteWithRights(path, bytes, PrivateFileRights);
}

void WriteUserFile(const std::filesystem::path& path, std::string_view bytes) {
    WriteWithRights(path, bytes, UserFileRights);
}

void PlaceUserFile(const std::filesystem::path& path, std::string_view bytes) {
    WriteWithRights(path, bytes, UserFileRights, false);
}

} // namespace veyrant
