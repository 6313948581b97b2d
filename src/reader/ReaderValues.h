#pragma once

// The Reader's values that outlive its window: which library shows, whether the Reader is open,
// and the row now shown in each fixed library. The open flags and marks are in ReadSettings, the
// window modes and the font step in Settings.

#include <cstdint>
#include <string>

namespace veyrant {

namespace ReadLibraries {
inline constexpr std::int16_t Dialogue = 1;
inline constexpr std::int16_t Information = 2;
inline constexpr std::int16_t Knowledge = 3;
inline constexpr std::int16_t Advanced = 4;
} // namespace ReadLibraries

namespace ReaderOpenStates {
inline constexpr std::int16_t Closed = 0;
inline constexpr std::int16_t Opening = -1; // set by the Write window while it starts opening
inline constexpr std::int16_t Open = 1;
} // namespace ReaderOpenStates

namespace OpenFlags {
inline constexpr std::int16_t None = 0;
inline constexpr std::int16_t Marked = 1;    // open it at its saved mark
inline constexpr std::int16_t Requested = 2; // the Write window asks for it
} // namespace OpenFlags

struct ReaderValues {
    std::int16_t ReadLibrary = 0;
    std::int16_t ReaderOpen = ReaderOpenStates::Closed;
    std::int16_t CurRowInfo = -1;
    std::int16_t CurRowKnow = -1;
    std::int16_t CurRowAdv = -1;
    std::string LibraryName;
};

} // namespace veyrant
