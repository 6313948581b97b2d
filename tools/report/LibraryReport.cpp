// library-report [DATA_DIR]
//
// Prints, for each fixed library, its rows, Sections, one-tab and two-tab Topics, longest body,
// record width, the range of the Sections' own bodies and each Section's merge sum, against the
// library's design. Reading the content checks every title against the catalogue. Exits with 1
// on any departure or a fault in the content, with 2 on a bad call. Without DATA_DIR it reads
// the data/ of this source tree.

#include "LibrarySource.h"
#include "LibraryTally.h"
#include "core/Cp1252.h"

#include <cstdio>
#include <iostream>
#include <string>

using namespace veyrant::content;

namespace {

void PrintTally(const LibraryTarget& target, const LibraryTally& tally) {
    std::printf("%s (data/libraries/%s)\n", std::string(target.Name).c_str(),
                std::string(target.Folder).c_str());
    std::printf("  %-16s %6d  designed %d\n", "rows", tally.Rows, target.Rows);
    std::printf("  %-16s %6d  designed %d\n", "Sections", tally.Sections, target.Sections);
    std::printf("  %-16s %6d  designed %d\n", "one-tab Topics", tally.OneTabTopics,
                target.OneTabTopics);
    std::printf("  %-16s %6d  designed %d\n", "two-tab Topics", tally.TwoTabTopics,
                target.TwoTabTopics);
    std::printf("  %-16s %6d  designed %d, allowed %d-%d\n", "longest body", tally.Longest,
                target.Longest, target.Longest - target.Longest / 10,
                target.Longest + target.Longest / 10);
    std::printf("  %-16s %6d  designed longest body + 10 = %d\n", "RecordWidth", tally.RecordWidth,
                tally.Longest + 10);
    std::printf("  %-16s %d-%d", "Section bodies", tally.ShortestSectionBody,
                tally.LongestSectionBody);
    if (target.SectionBodyHigh > 0) {
        std::printf("  designed %d-%d", target.SectionBodyLow, target.SectionBodyHigh);
    }
    std::printf("\n  merge sums (at most %d, \"%s\" above it):\n", MergeLimit,
                std::string(UnmergeableSection).c_str());
    for (const SectionMerge& merge : tally.Merges) {
        std::printf("    %6d  %s\n", merge.Sum, veyrant::Cp1252ToUtf8(merge.Title).c_str());
    }
    for (const std::string& departure : tally.Departures) {
        std::printf("  DEPARTS: %s\n", veyrant::Cp1252ToUtf8(departure).c_str());
    }
    std::printf("  %s\n\n", tally.Fits() ? "fits" : "departs from its design");
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 2) {
        std::cerr << "usage: library-report [DATA_DIR]\n";
        return 2;
    }
    std::vector<LibrarySource> libraries;
    try {
        libraries = ReadLibraryFolder(argc == 2 ? argv[1] : VEYRANT_DATA_DIR);
    } catch (const std::exception& error) {
        std::cerr << "library-report: " << error.what() << "\n";
        return 1;
    }
    bool allFit = true;
    for (std::size_t i = 0; i < libraries.size(); ++i) {
        const LibraryTally tally = TallyLibrary(libraries[i], LibraryTargets[i]);
        PrintTally(LibraryTargets[i], tally);
        allFit = allFit && tally.Fits();
    }
    std::printf("Titles match the catalogue. %s\n",
                allFit ? "Every library fits." : "A library departs from its design.");
    return allFit ? 0 : 1;
}
