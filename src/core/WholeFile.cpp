#include "core/WholeFile.h"

#include "core/ProgramError.h"

#include <cerrno>
#include <cstdio>
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

namespace {

[[noreturn]] void RaiseFromErrno() {
    throw ProgramError(ErrorNumberFor(std::error_code(errno, std::generic_category())));
}

class FileDescriptor {
public:
    explicit FileDescriptor(int fd) : fd_(fd) {}
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() {
        if (fd_ >= 0) {
            ::close(fd_);
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

} // namespace

std::string ReadWholeFile(const std::filesystem::path& path, std::size_t limit) {
    // Without O_NONBLOCK the open itself would wait for a writer to come to a pipe.
    FileDescriptor fd(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
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
        const auto got = ::read(fd.Get(), buffer, sizeof buffer);
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

void WriteWholeFile(const std::filesystem::path& path, std::string_view bytes) {
    const auto folder = path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
    std::string pattern = (folder / ("." + path.filename().string() + ".XXXXXX")).string();
    FileDescriptor fd(::mkstemp(pattern.data()));
    if (fd.Get() < 0) {
        RaiseFromErrno();
    }
    const auto discard = [&pattern](int savedErrno) {
        ::unlink(pattern.c_str());
        errno = savedErrno;
        RaiseFromErrno();
    };
    std::size_t written = 0;
    while (written < bytes.size()) {
        const auto put = ::write(fd.Get(), bytes.data() + written, bytes.size() - written);
        if (put < 0) {
            if (errno == EINTR) {
                continue;
            }
            discard(errno);
        }
        written += static_cast<std::size_t>(put);
    }
    // Plain text files, readable as any file the user makes.
    if (::fchmod(fd.Get(), 0644) != 0 || ::fsync(fd.Get()) != 0) {
        discard(errno);
    }
    if (::close(fd.Release()) != 0) {
        discard(errno);
    }
    if (::rename(pattern.c_str(), path.c_str()) != 0) {
        discard(errno);
    }
}

} // namespace veyrant
