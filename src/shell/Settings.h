#pragma once

// What survives between runs besides the Dialogues: the values of Tolmira.ini, Read.ini and
// Qdrfonts.ini. A value is known by its place in its file; the reader and writer live in
// SettingsFiles.

#include "shell/LibraryId.h"

#include <cstdint>
#include <string>

namespace veyrant {

struct Settings {
    std::int16_t WriteFontStep = 1;  // 1 small, 2 large
    std::int16_t ReaderFontStep = 1; // 1 to 3
    // Reader window mode per library (0 split, 1 expanded).
    PerLibrary<std::int16_t> WindowMode{};
    std::int16_t IntroDone = 1;
    std::int16_t IntroDone2 = 1;
    std::int16_t DisplayOption = 1; // 0 to 3
    std::int16_t MaxLibraryDays = 21;
    std::int16_t MaxLibraryFiles = 30;
    std::int16_t GuestMode = 0;
};

// How a library waits to be opened by the Reader; Read.ini keeps the number.
enum class OpenFlag : std::int16_t {
    None = 0,
    Marked = 1,    // open it at its saved mark
    Requested = 2, // the Write window asks for it
};

struct ReadSettings {
    PerLibrary<OpenFlag> OpenFlags{};
    PerLibrary<std::int16_t> MarkRows{};
};

struct FontNames {
    std::string Main = "Times New Roman";
    std::string Italic = "Times New Roman Italic";
};

} // namespace veyrant
