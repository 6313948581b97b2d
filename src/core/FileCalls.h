#pragma once

// Every system call the program makes on its files passes through here, so that a test can make
// any one of them fail as a full disk, a failing disk or a read-only disk would, or stop the
// program dead at that call as a kill would. Each returns what the system call returns, with
// errno set on a failure.

#include <filesystem>
#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace veyrant {

enum class FileCall { Open, Read, Write, Sync, Close, Rename, Unlink, MakeFolder, List, Narrow };

// Answers 0 to let the call run, or the errno with which it fails instead. A failed call does not
// touch the disk, except that a failed close still releases the descriptor.
using FileFault = std::function<int(FileCall call, const std::filesystem::path& path)>;

// Puts a test's fault in place; an empty one lets every call run.
void SetFileFault(FileFault fault);

namespace files {

int Open(const std::filesystem::path& path, int flags, mode_t mode = 0);
ssize_t Read(int fd, void* buffer, std::size_t size);
ssize_t Write(int fd, const void* buffer, std::size_t size);
int Sync(int fd);
int Close(int fd);
int Rename(const std::filesystem::path& from, const std::filesystem::path& to);
int Unlink(const std::filesystem::path& path);
int MakeFolder(const std::filesystem::path& path, mode_t mode);
// Takes rights away (never adds any): a folder or file wider than the mode is narrowed to it.
int Narrow(const std::filesystem::path& path, mode_t mode);

struct FolderEntry {
    std::string Name;
    bool IsFile = false; // a plain file, not a folder or anything else
};

// The folder's entries without "." and "..", in no set order; false with errno on a failure.
bool List(const std::filesystem::path& folder, std::vector<FolderEntry>& entries);

} // namespace files

} // namespace veyrant
