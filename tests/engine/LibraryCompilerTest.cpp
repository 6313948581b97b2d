#include "LibrarySource.h"
#include "LibraryTally.h"
#include "support/Replaced.h"

#include <gtest/gtest.h>
#include <tuple>

namespace veyrant {
namespace {

using namespace content;
using testing::Replaced;

const std::string Catalogue = "[0] < Opening >\n[1] First Topic \n[2] Inner Topic\n";
const std::string Bodies = "# The opening Section.\n[0] < Opening >\nWelcome.\n\n[1] First Topic \n"
                           "One paragraph ends in a blank. \n* A listed item\n[2] Inner Topic\n"
                           "It’s short—and curly.\n";

LibrarySource Read(const std::string& bodies, int width = 60) {
    return ReadLibrarySource("knowledge", {"catalogue.txt", Catalogue}, {{"1-opening.txt", bodies}},
                             width);
}

// What the reader refused with, or "accepted".
template <typename Reading>
std::string Refusal(Reading reading) {
    try {
        reading();
        return "accepted";
    } catch (const ContentError& error) {
        return error.what();
    }
}

TEST(LibraryCompiler, RowsTakeTheirTabsAndParagraphsTheirRecordForm) {
    const LibrarySource library = Read(Bodies);
    ASSERT_EQ(library.Rows.size(), 3u);
    EXPECT_EQ(library.Rows[0].Title, "< Opening >");
    EXPECT_EQ(library.Rows[1].Title, "\tFirst Topic ");
    EXPECT_EQ(library.Rows[2].Title, "\t\tInner Topic");
    EXPECT_EQ(library.Rows[0].Text, "\tWelcome.\r\n");
    EXPECT_EQ(library.Rows[1].Text, "\tOne paragraph ends in a blank. \r\n\t\tA listed item\r\n");
    EXPECT_EQ(library.Rows[2].Text, "\tIt\x92s short\x97"
                                    "and curly.\r\n");
    EXPECT_EQ(library.Rows[1].Place.Line, 5);
    EXPECT_EQ(library.RecordWidth, 60);
}

// The body files of a library are read one after another as if they were one.
TEST(LibraryCompiler, ASectionMayContinueInTheNextFile) {
    const LibrarySource library =
        ReadLibrarySource("knowledge", {"catalogue.txt", Catalogue},
                          {{"1-a.txt", "[0] < Opening >\nWelcome.\n[1] First Topic \nOne.\n"},
                           {"2-b.txt", "[2] Inner Topic\nTwo.\n"}},
                          60);
    EXPECT_EQ(library.Rows[2].Place.File, "2-b.txt");
}

// Each refusal names its file and line.
TEST(LibraryCompiler, RefusalsNameFileAndLine) {
    const auto misplaced = [](const char* line, const char* title, const char* row) {
        return std::string("1-opening.txt:") + line + ": the title \"" + title +
               "\" stands where the catalogue has " + row + " with its level and blanks)";
    };
    const std::string leadBlank = "1-opening.txt:3: a paragraph begins with a blank or a tab; the "
                                  "program gives it its own tab";
    const std::string item = "1-opening.txt:7: an item is written \"* \" and its text";
    const std::tuple<std::string, int, std::string> cases[] = {
        {Replaced(Bodies, "[1] First Topic \n", "[1] First Topic\n"), 60,
         misplaced("5", "First Topic", "\"First Topic\" (row 1,")},
        {Replaced(Bodies, "[2] Inner", "[1] Inner"), 60,
         misplaced("8", "Inner Topic", "\"Inner Topic\" (row 2,")},
        {"[0] < Opening >\nA.\n[2] Inner Topic\nB.\n[1] First Topic \nC.\n", 60,
         misplaced("3", "Inner Topic", "\"First Topic\" (row 1,")},
        {Bodies + "[1] Extra\nD.\n", 60,
         "1-opening.txt:10: the title \"Extra\" is past the 3 rows of the catalogue"},
        {Replaced(Bodies, "[2] Inner Topic\nIt’s short—and curly.\n", ""), 60,
         "catalogue.txt:3: the row \"Inner Topic\" has no body in "
         "data/libraries/knowledge/"},
        {Replaced(Bodies, "[2] Inner", "[3] Inner"), 60,
         "1-opening.txt:8: a title is marked [0], [1] or [2]"},
        {Replaced(Bodies, "Welcome.\n", ""), 60,
         "1-opening.txt:2: the row \"< Opening >\" has no text"},
        {"Preface.\n" + Bodies, 60, "1-opening.txt:1: text before the first title"},
        {Bodies, 50,
         "1-opening.txt:5: the body of \"First Topic\" holds 51 characters, more than "
         "the library's width of 50 (data/libraries/widths.txt)"},
        {Replaced(Bodies, "Welcome.", " Welcome."), 60, leadBlank},
        {Replaced(Bodies, "Welcome.", "\tWelcome."), 60, leadBlank},
        {Replaced(Bodies, "Welcome.", "Wel\tcome."), 60,
         "1-opening.txt:3: a paragraph holds a tab or a control character"},
        {Replaced(Bodies, "* A listed", "*A listed"), 60, item},
        {Replaced(Bodies, "* A listed item", "* "), 60, item},
        {Replaced(Bodies, "Welcome.", "Welcome \xE2\x98\x83."), 60,
         "1-opening.txt:3: a character at byte 9 has no Windows-1252 code"}};
    for (const auto& [bodies, width, message] : cases) {
        EXPECT_EQ(Refusal([&] { Read(bodies, width); }), message);
    }
}

TEST(LibraryCompiler, WidthsNameEachLibraryOnce) {
    const auto widths = ReadLibraryWidths(
        {"widths.txt", "# records\ninformation 870\nknowledge 884\nadvanced 2842\n"});
    EXPECT_EQ(widths.at("knowledge"), 884);
    const std::pair<const char*, const char*> faults[] = {
        {"information 870\nknowledge 884\n", "widths.txt:0: no width for advanced"},
        {"information 870\nknowledge 884\nadvanced\n",
         "widths.txt:3: a width is written \"information 870\", naming information, knowledge "
         "or advanced"},
        {"information 870\nknowledge 884\nadvance 2842\n",
         "widths.txt:3: a width is written \"information 870\", naming information, knowledge "
         "or advanced"},
    };
    for (const auto& [text, message] : faults) {
        EXPECT_EQ(Refusal([&] { ReadLibraryWidths({"widths.txt", text}); }), message);
    }
}

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

// Titles with their tabs and texts sum up to the next Section.
TEST(LibraryTally, DeparturesAreNamed) {
    const std::tuple<LibrarySource, LibraryTarget, std::vector<std::string>> cases[] = {
        {Small(), Target, {}},
        {Small(), With(&LibraryTarget::Rows, 6), {"rows 5, designed 6"}},
        {Small(), With(&LibraryTarget::Sections, 3), {"Sections 2, designed 3"}},
        {Small(), With(&LibraryTarget::OneTabTopics, 1), {"one-tab Topics 2, designed 1"}},
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
    for (const auto& [library, target, departures] : cases) {
        EXPECT_EQ(TallyLibrary(library, target).Departures, departures);
    }
}

} // namespace
} // namespace veyrant
