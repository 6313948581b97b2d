#pragma once

// How the fixed libraries stand against their design: rows and Sections, Topics at each level,
// the longest body and the record width it sets, the lengths of the Sections' own bodies, and
// what merging each Section's Topics into one text would sum to.

#include "LibrarySource.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace veyrant::content {

struct LibraryTarget {
    std::string_view Folder;
    std::string_view Name;
    int Rows = 0;
    int Sections = 0;
    int OneTabTopics = 0;
    int TwoTabTopics = 0;
    int Longest = 0; // the longest body, met within a tenth
    // The range of the Sections' own bodies; none where both are 0.
    int SectionBodyLow = 0;
    int SectionBodyHigh = 0;
};

inline constexpr std::array<LibraryTarget, 3> LibraryTargets = {{
    {"information", "Information Library", 185, 6, 27, 152, 860, 240, 540},
    {"knowledge", "Knowledge Library", 175, 7, 29, 139, 874, 0, 0},
    {"advanced", "Advanced Knowledge Library", 61, 3, 58, 0, 2832, 290, 600},
}};

// The most a merged Section may sum to; the one Section that must stay above it.
inline constexpr int MergeLimit = 62000;
inline constexpr std::string_view UnmergeableSection = "< The Ambrel >";

struct SectionMerge {
    std::string Title;
    int Sum = 0;
};

struct LibraryTally {
    int Rows = 0;
    int Sections = 0;
    int OneTabTopics = 0;
    int TwoTabTopics = 0;
    int Longest = 0;
    int RecordWidth = 0;
    int ShortestSectionBody = 0;
    int LongestSectionBody = 0;
    std::vector<SectionMerge> Merges;
    std::vector<std::string> Departures; // each in words; none when the library fits

    bool Fits() const { return Departures.empty(); }
};

LibraryTally TallyLibrary(const LibrarySource& library, const LibraryTarget& target);

} // namespace veyrant::content
