#pragma once

#include <filesystem>

namespace veyrant::testing {

// A fresh folder under the system's temporary folder, removed with everything in it.
class TempFolder {
public:
    TempFolder();
    // Under that folder instead of the system's temporary folder.
    explicit TempFolder(const std::filesystem::path& base);
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(const std::filesystem::path& relative) const {
        return path_ / relative;
    }

private:
    std::filesystem::path path_;
};

// A folder in memory where the system has one, so that flushes to the disk cost nothing; the
// system's temporary folder otherwise.
std::filesystem::path MemoryFolder();

} // namespace veyrant::testing
