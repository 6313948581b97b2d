#pragma once

// What survives between runs besides the Dialogues: the values of Tolmira.ini, Read.ini and
// Qdrfonts.ini. A value is known by its place in its file; the reader and writer live in
// SettingsFiles.

#include <array>
#include <cstdint>
#include <string>

namespace veyrant {

struct Settings {
    std::int16_t WriteFontStep = 1;  // 1 small, 2 large
    std::int16_t ReaderFontStep = 1; // 1 to 3
    // Reader window mode per library, indexed by ReadLibrary 1 to 4 (0 split, 1 expanded);
    // index 0 is idle.
    std::array<std::int16_t, 5> WindowMode{};
    std::int16_t IntroDone = 1;
    std::int16_t IntroDone2 = 1;
    std::int16_t DisplayOption = 1; // 0 to 3
    std::int16_t MaxLibraryDays = 21;
    std::int16_t MaxLibraryFiles = 30;
    std::int16_t GuestMode = 0;
};

struct ReadSettings {
    std::int16_t OpenFlagInfo = 0;
    std::int16_t MarkRowInfo = 0;
    std::int16_t OpenFlagDialogue = 0;
    std::int16_t MarkRowDialogue = 0;
    std::int16_t OpenFlagKnow = 0;
    std::int16_t MarkRowKnow = 0;
    std::int16_t OpenFlagAdv = 0;
    std::int16_t MarkRowAdv = 0;
};

struct FontNames {
    std::string Main = "Times New Roman";
    std::string Italic = "Times New Roman Italic";
};

} // namespace veyrant
