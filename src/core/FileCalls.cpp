#include "core/FileCalls.h"

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace veyrant {

namespace {

FileFault& Fault() {
    static FileFault fault;
    return fault;
}

// True when the test's fault refuses the call; errno then says why.
bool Refused(FileCall call, const std::filesystem::path& path) {
    if (!Fault()) {
        return false;
    }
    const int error = Fault()(call, path);
    if (error == 0) {
        return false;
    }
    errno = error;
    return true;
}

std::filesystem::path Descriptor(int fd) {
    return "fd:" + std::to_string(fd);
}

} // namespace

void SetFileFault(FileFault fault) {
    Fault() = std::move(fault);
}

namespace files {

int Open(const std::filesystem::path& path, int flags, mode_t mode) {
    return Refused(FileCall::Open, path) ? -1 : ::open(path.c_str(), flags | O_CLOEXEC, mode);
}

ssize_t Read(int fd, void* buffer, std::size_t size) {
    return Refused(FileCall::Read, Descriptor(fd)) ? -1 : ::read(fd, buffer, size);
}

ssize_t Write(int fd, const void* buffer, std::size_t size) {
    return Refused(FileCall::Write, Descriptor(fd)) ? -1 : ::write(fd, buffer, size);
}

int Sync(int fd) {
    return Refused(FileCall::Sync, Descriptor(fd)) ? -1 : ::fsync(fd);
}

int Close(int fd) {
    if (Refused(FileCall::Close, Descriptor(fd))) {
        const int error = errno;
        ::close(fd);
        errno = error;
        return -1;
    }
    return ::close(fd);
}

int Rename(const std::filesystem::path& from, const std::filesystem::path& to) {
    return Refused(FileCall::Rename, to) ? -1 : ::rename(from.c_str(), to.c_str());
}

int Unlink(const std::filesystem::path& path) {
    return Refused(FileCall::Unlink, path) ? -1 : ::unlink(path.c_str());
}

int MakeFolder(const std::filesystem::path& path, mode_t mode) {
    return Refused(FileCall::MakeFolder, path) ? -1 : ::mkdir(path.c_str(), mode);
}

int Narrow(const std::filesystem::path& path, mode_t mode) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) {
        return -1;
    }
    const mode_t rights = status.st_mode & 07777;
    if ((rights & ~mode) == 0 || S_ISLNK(status.st_mode)) {
        return 0;
    }
    return Refused(FileCall::Narrow, path) ? -1 : ::chmod(path.c_str(), rights & mode);
}

bool List(const std::filesystem::path& folder, std::vector<FolderEntry>& entries) {
    if (Refused(FileCall::List, folder)) {
        return false;
    }
    DIR* dir = ::opendir(folder.c_str());
    if (dir == nullptr) {
        return false;
    }
    entries.clear();
    errno = 0;
    while (const dirent* entry = ::readdir(dir)) {
        const std::string name = entry->d_name;
        if (name == "." || name == "..") {
            continue;
        }
        struct stat status {};
        const bool isFile =
            ::fstatat(::dirfd(dir), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
            S_ISREG(status.st_mode);
        entries.push_back({name, isFile});
        errno = 0;
    }
    const int error = errno;
    ::closedir(dir);
    errno = error;
    return error == 0;
}

} // namespace files

} // namespace veyrant
