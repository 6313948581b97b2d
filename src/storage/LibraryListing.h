#pragma once

// The Library as the program knows it between scans: the saved Dialogues in date order and
// their labels. Every table counts from 1, index 0 idle. The tables keep room for 100 entries
// from the start (a save can lift the count one above a maximum of 99 until the scan after it)
// and grow beyond that if the folder holds more. Entries above LibraryCount keep whatever an
// earlier scan left there.

#include <string>
#include <vector>

namespace veyrant {

struct LibraryListing {
    static constexpr std::size_t Room = 101;

    int LibraryCount = 0;
    std::vector<std::string> LibraryFiles = std::vector<std::string>(Room);     // 1 the oldest
    std::vector<std::string> LibraryDates = std::vector<std::string>(Room);     // long label
    std::vector<std::string> LibraryLabels = std::vector<std::string>(Room);    // short label
    std::vector<std::string> LibrarySortDates = std::vector<std::string>(Room); // "yy-mm-dd"
    // List position to index in LibraryFiles, latest first.
    std::vector<int> LibraryListOrder = std::vector<int>(Room);
    std::string OldestFile;
    int OldestAge = 0; // whole days, halves to even
};

} // namespace veyrant
