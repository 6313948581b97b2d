#include "LibraryTally.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace veyrant::content {
namespace {

// A body of the given length as the compiler writes it: a tab, text, CR LF.
std::string Body(int length) {
    return "\t" + std::string(static_cast<std::size_t>(length - 3), 'x') + "\r\n";
}

// Two Sections: the first with a one-tab and a two-tab Topic, the second with one Topic.
LibrarySource Small(const std::string& secondSection = "< Second >", int longest = 100,
                    int width = 110) {
    return {"knowledge",
            {{"< First >", Body(50), {}},
             {"\tTopic", Body(longest), {}},
             {"\t\tInner", Body(20), {}},
             {secondSection, Body(60), {}},
             {"\tLast", Body(30), {}}},
            width};
}

const LibraryTarget Target{"knowledge", "Knowledge Library", 5, 2, 2, 1, 100, 40, 70};

TEST(LibraryTally, CountsRowsByKindAndSumsEachMergeUpToTheNextSection) {
    const LibraryTally tally = TallyLibrary(Small(), Target);
    EXPECT_EQ(tally.Rows, 5);
    EXPECT_EQ(tally.Sections, 2);
    EXPECT_EQ(tally.OneTabTopics, 2);
    EXPECT_EQ(tally.TwoTabTopics, 1);
    EXPECT_EQ(tally.Longest, 100);
    EXPECT_EQ(tally.ShortestSectionBody, 50);
    EXPECT_EQ(tally.LongestSectionBody, 60);
    // Titles with their tabs and texts: 6 + 100, 7 + 20, and the next Section's 10 + 60.
    ASSERT_EQ(tally.Merges.size(), 2u);
    EXPECT_EQ(tally.Merges[0].Sum, 203);
    EXPECT_EQ(tally.Merges[1].Sum, 35);
    EXPECT_TRUE(tally.Fits()) << tally.Departures.front();
}

LibraryTarget With(int LibraryTarget::*field, int value) {
    LibraryTarget target = Target;
    target.*field = value;
    return target;
}

// A Topic of 62000 characters makes the merge of its Section too long for the Reader.
LibrarySource WithLongMerge(const std::string& section) {
    LibrarySource library = Small(section);
    library.Rows[4].Text = Body(62000);
    return library;
}

TEST(LibraryTally, DeparturesAreNamed) {
    const struct {
        LibrarySource Library;
        LibraryTarget Target;
        std::vector<std::string> Departures;
    } cases[] = {
        {Small(), With(&LibraryTarget::Rows, 6), {"rows 5, designed 6"}},
        {Small(), With(&LibraryTarget::TwoTabTopics, 0), {"two-tab Topics 1, designed 0"}},
        {Small("< Second >", 111, 121), Target, {"longest body 111, designed 100 within a tenth"}},
        {Small("< Second >", 110, 120), Target, {}},
        {Small("< Second >", 100, 120),
         Target,
         {"RecordWidth 120 in data/libraries/widths.txt, designed 110 (longest body + 10)"}},
        {Small(),
         With(&LibraryTarget::SectionBodyHigh, 55),
         {"Section bodies 50-60, designed 40-55"}},
        {WithLongMerge("< Second >"),
         Target,
         {"longest body 62000, designed 100 within a tenth",
          "RecordWidth 110 in data/libraries/widths.txt, designed 62010 (longest body + 10)",
          "merge sum of < Second > 62005, more than 62000"}},
        {WithLongMerge("< The Ambrel >"),
         With(&LibraryTarget::Longest, 62000),
         {"RecordWidth 110 in data/libraries/widths.txt, designed 62010 (longest body + 10)"}},
        {Small("< The Ambrel >"),
         Target,
         {"merge sum of < The Ambrel > 35, designed above 62000"}}};
    for (const auto& c : cases) {
        EXPECT_EQ(TallyLibrary(c.Library, c.Target).Departures, c.Departures);
    }
}

} // namespace
} // namespace veyrant::content
