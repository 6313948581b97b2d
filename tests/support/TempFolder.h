#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace veyrant::testing {

// A folder in memory where the system has one, so that flushes to the disk cost nothing; the
// system's temporary folder otherwise.
inline std::filesystem::path MemoryFolder() {
    std::error_code error;
    return std::filesystem::is_directory("/dev/shm", error)
               ? "/dev/shm"
               : std::filesystem::temp_directory_path();
}

// A fresh folder under the system's temporary folder, or under the folder given, removed with
// everything in it.
class TempFolder {
public:
    TempFolder() : TempFolder(std::filesystem::temp_directory_path()) {}
    explicit TempFolder(const std::filesystem::path& base) {
        std::string pattern = (base / "veyrant-test-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) {
            std::abort();
        }
        path_ = pattern;
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    std::filesystem::path operator/(const std::filesystem::path& relative) const {
        return path_ / relative;
    }

private:
    std::filesystem::path path_;
};

} // namespace veyrant::testing
