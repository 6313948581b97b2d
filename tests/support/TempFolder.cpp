#include "TempFolder.h"

#include <cstdlib>
#include <string>
#include <system_error>

namespace veyrant::testing {

TempFolder::TempFolder() : TempFolder(std::filesystem::temp_directory_path()) {}

TempFolder::TempFolder(const std::filesystem::path& base) {
    std::string pattern = (base / "veyrant-test-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        std::abort();
    }
    path_ = pattern;
}

std::filesystem::path MemoryFolder() {
    std::error_code error;
    if (std::filesystem::is_directory("/dev/shm", error)) {
        return "/dev/shm";
    }
    return std::filesystem::temp_directory_path();
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

} // namespace veyrant::testing
