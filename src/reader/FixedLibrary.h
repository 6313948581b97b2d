#pragma once

// The three fixed reading libraries: rows of a title and a text, compiled into the program's
// image and copied into these stores at start-up, with the index derived from the titles.
// Text is Windows-1252 bytes, as everywhere in the core.

#include "shell/LibraryId.h"

#include <cstdint>
#include <string>
#include <vector>

namespace veyrant {

namespace RowKinds {
inline constexpr std::int16_t Topic = 0;
inline constexpr std::int16_t Section = 2;
} // namespace RowKinds

struct FixedLibrary {
    std::int16_t LastRow = -1;
    // Titles exactly as authored: no tab for a Section, one or two leading tabs for a Topic.
    std::vector<std::string> Titles;
    // Each row's text with the record's padding left off; ComposeRowText gives the same text a
    // padded record would.
    std::vector<std::string> Texts;
    // Characters in one record: ten more than the library's longest text.
    int RecordWidth = 0;

    // Derived by BuildLibraryIndex. Readers test RowKind below 2 for a Topic and equal to 2 for
    // a Section.
    std::vector<std::int16_t> RowKind;
    std::int16_t LastSection = -1;
    std::vector<std::string> SectionTitle;
    std::vector<std::int16_t> SectionRow;
    std::vector<std::int16_t> SectionEnd;
};

using FixedLibraries = PerFixedLibrary<FixedLibrary>;

// Fills titles, texts and widths of the three stores from the program's constant data.
void LoadLibraries(FixedLibraries& libraries);
void BuildLibraryIndex(FixedLibrary& library);
// Raises ProgramError 1001 when the last title of the Information or the Knowledge Library, or
// the last Suggestion, is empty. The Advanced Knowledge Library is not tested.
void CheckLibraryContent(const FixedLibraries& libraries);
std::string CleanTitle(const std::string& title);
// The row's record as a fixed-width record holds it, trailing spaces left off.
std::string TrimmedRecord(const FixedLibrary& library, int row);
// The title, two line ends, and the row's text without trailing spaces.
std::string ComposeRowText(const FixedLibrary& library, int row);
// The same into the caller's string, whose storage a walk through the rows keeps.
void ComposeRowText(const FixedLibrary& library, int row, std::string& text);

} // namespace veyrant
