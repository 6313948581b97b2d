#include "TempFolder.h"

#include <cstdlib>
#include <string>
#include <system_error>

namespace veyrant::testing {

TempFolder::TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "veyrant-test-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        std::abort();
    }
    path_ = pattern;
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

} // namespace veyrant::testing
