#include "LibraryTally.h"

#include "core/Text.h"

#include <algorithm>

namespace veyrant::content {

namespace {

bool IsSection(const LibraryRowSource& row) {
    return row.Title.find(Tab) == std::string::npos;
}

int Length(const std::string& text) {
    return static_cast<int>(text.size());
}

// The Reader's size pass before a merge: every row after the Section, title with its tabs and
// text, up to and including the next Section's row, which is counted though not merged.
int MergeSum(const std::vector<LibraryRowSource>& rows, std::size_t section) {
    int sum = 0;
    for (std::size_t row = section + 1; row < rows.size(); ++row) {
        sum += Length(rows[row].Title) + Length(RTrim(rows[row].Text));
        if (IsSection(rows[row])) {
            break;
        }
    }
    return sum;
}

void Compare(std::vector<std::string>& departures, const char* what, int found, int wanted) {
    if (found != wanted) {
        departures.push_back(std::string(what) + " " + std::to_string(found) + ", designed " +
                             std::to_string(wanted));
    }
}

} // namespace

LibraryTally TallyLibrary(const LibrarySource& library, const LibraryTarget& target) {
    LibraryTally tally;
    tally.Rows = static_cast<int>(library.Rows.size());
    tally.RecordWidth = library.RecordWidth;
    for (std::size_t row = 0; row < library.Rows.size(); ++row) {
        const LibraryRowSource& source = library.Rows[row];
        const int body = Length(source.Text);
        tally.Longest = std::max(tally.Longest, body);
        if (IsSection(source)) {
            tally.ShortestSectionBody =
                tally.Sections == 0 ? body : std::min(tally.ShortestSectionBody, body);
            tally.LongestSectionBody = std::max(tally.LongestSectionBody, body);
            ++tally.Sections;
            tally.Merges.push_back({source.Title, MergeSum(library.Rows, row)});
        } else if (source.Title.starts_with("\t\t")) {
            ++tally.TwoTabTopics;
        } else {
            ++tally.OneTabTopics;
        }
    }

    auto& departures = tally.Departures;
    Compare(departures, "rows", tally.Rows, target.Rows);
    Compare(departures, "Sections", tally.Sections, target.Sections);
    Compare(departures, "one-tab Topics", tally.OneTabTopics, target.OneTabTopics);
    Compare(departures, "two-tab Topics", tally.TwoTabTopics, target.TwoTabTopics);
    const int slack = target.Longest / 10;
    if (tally.Longest < target.Longest - slack || tally.Longest > target.Longest + slack) {
        departures.push_back("longest body " + std::to_string(tally.Longest) + ", designed " +
                             std::to_string(target.Longest) + " within a tenth");
    }
    if (tally.RecordWidth != tally.Longest + 10) {
        departures.push_back("RecordWidth " + std::to_string(tally.RecordWidth) +
                             " in data/libraries/widths.txt, designed " +
                             std::to_string(tally.Longest + 10) + " (longest body + 10)");
    }
    if (target.SectionBodyHigh > 0 && (tally.ShortestSectionBody < target.SectionBodyLow ||
                                       tally.LongestSectionBody > target.SectionBodyHigh)) {
        departures.push_back("Section bodies " + std::to_string(tally.ShortestSectionBody) + "-" +
                             std::to_string(tally.LongestSectionBody) + ", designed " +
                             std::to_string(target.SectionBodyLow) + "-" +
                             std::to_string(target.SectionBodyHigh));
    }
    for (const SectionMerge& merge : tally.Merges) {
        const bool unmergeable = merge.Title == UnmergeableSection;
        if (unmergeable != (merge.Sum > MergeLimit)) {
            departures.push_back("merge sum of " + merge.Title + " " + std::to_string(merge.Sum) +
                                 (unmergeable ? ", designed above " : ", more than ") +
                                 std::to_string(MergeLimit));
        }
    }
    return tally;
}

} // namespace veyrant::content
