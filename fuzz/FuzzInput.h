#pragma once

// What the fuzz targets share: the fuzzer's bytes as text, and one scratch folder for the whole
// run, into which a target lays its bytes down as files where the program would find them.

#include "TempFolder.h"
#include "core/WholeFile.h"
#include "shell/AppFolder.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace veyrant::fuzz {

inline std::string_view AsText(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// What the file system can hold as a name of its own in one folder, with room for the longer
// name under which the program's writer stages a file before it renames it into place.
inline bool IsFileName(std::string_view name) {
    return !name.empty() && name.size() <= 200 && name != "." && name != ".." &&
           name.find_first_of(std::string_view("/\0", 2)) == std::string_view::npos;
}

// The next part of the bytes up to the separator, which is dropped; the rest stays in text.
inline std::string_view TakePart(std::string_view& text, char separator) {
    const auto end = text.find(separator);
    const auto part = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    return part;
}

// The application folder of the run, with its exe/ made.
inline const AppFolder& ScratchFolder() {
    static const testing::TempFolder temp;
    static const AppFolder folder = [] {
        AppFolder made{temp.Path()};
        std::filesystem::create_directories(made.Exe());
        return made;
    }();
    return folder;
}

// The same with isp/ and dlg/ empty, for a Dialogue Library of the input's own.
inline const AppFolder& EmptyLibraryFolder() {
    const AppFolder& folder = ScratchFolder();
    std::error_code ignored;
    std::filesystem::remove_all(folder.Isp(), ignored);
    std::filesystem::remove_all(folder.Dlg(), ignored);
    std::filesystem::create_directories(folder.Isp());
    std::filesystem::create_directories(folder.Dlg());
    return folder;
}

} // namespace veyrant::fuzz
