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

namespace veyrant::fuzz {

inline std::string_view AsText(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
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

} // namespace veyrant::fuzz
