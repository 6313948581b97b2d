#pragma once

#include <filesystem>

namespace veyrant::testing {

// A fresh folder under the system's temporary folder, removed with everything in it.
class TempFolder {
public:
    TempFolder();
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

} // namespace veyrant::testing
