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

// The body files are read one after another as if they were one, so a Section may go on in the
// next file.
TEST(LibraryCompiler, RowsTakeTheirTabsAndParagraphsTheirRecordForm) {
    const auto split = Bodies.find("[2]");
    const LibrarySource library = ReadLibrarySource(
        "knowledge", {"catalogue.txt", Catalogue},
        {{"1-opening.txt", Bodies.substr(0, split)}, {"2-b.txt", Bodies.substr(split)}}, 60);
    std::vector<std::string> rows;
    for (const auto& row : library.Rows) {
        rows.push_back(row.Title + "|" + row.Text + "|" + row.Place.File + ":" +
                       std::to_string(row.Place.Line));
    }
    EXPECT_EQ(rows, (std::vector<std::string>{
                        "< Opening >|\tWelcome.\r\n|1-opening.txt:2",
                        "\tFirst Topic |\tOne paragraph ends in a blank. \r\n\t\tA listed item\r\n"
                        "|1-opening.txt:5",
                        "\t\tInner Topic|\tIt\x92s short\x97" "and curly.\r\n|2-b.txt:1"}));
    EXPECT_EQ(library.RecordWidth, 60);
}

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
         "catalogue.txt:3: the row \"Inner Topic\" has no body in data/libraries/knowledge/"},
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
    const std::string unnamed = "widths.txt:3: a width is written \"information 870\", naming "
                                "information, knowledge or advanced";
    const std::pair<const char*, std::string> faults[] = {
        {"information 870\nknowledge 884\n", "widths.txt:0: no width for advanced"},
        {"information 870\nknowledge 884\nadvanced\n", unnamed},
        {"information 870\nknowledge 884\nadvance 2842\n", unnamed}};
    for (const auto& [text, message] : faults) {
        EXPECT_EQ(Refusal([&] { ReadLibraryWidths({"widths.txt", text}); }), message);
    }
}

// A body of the given length as the compiler writes it: a tab, text, CR LF.
std::string Body(int length) {
    return "\t" + std::string(static_cast<std::size_t>(length - 3), 'x') + "\r\n";
}

// Two Sections: the first with a one-tab and a two-tab Topic, the second with one Topic. A last
// Topic of 62000 characters makes the merge of its Section too long for the Reader.
LibrarySource Small(const std::string& secondSection = "< Second >", int longest = 100,
                    int width = 110, int last = 30) {
    return {"knowledge",
            {{"< First >", Body(50), {}},
             {"\tTopic", Body(longest), {}},
             {"\t\tInner", Body(20), {}},
             {secondSection, Body(60), {}},
             {"\tLast", Body(last), {}}},
            width};
}

const LibraryTarget Target{"knowledge", "Knowledge Library", 5, 2, 2, 1, 100, 40, 70};

LibraryTarget With(int LibraryTarget::*field, int value) {
    LibraryTarget target = Target;
    target.*field = value;
    return target;
}

TEST(LibraryTally, DeparturesAreNamed) {
    using T = LibraryTarget;
    const std::string widths = "RecordWidth 110 in data/libraries/widths.txt, designed 62010 "
                               "(longest body + 10)";
    const std::tuple<LibrarySource, LibraryTarget, std::vector<std::string>> cases[] = {
        {Small(), Target, {}},
        {Small(), With(&T::Rows, 6), {"rows 5, designed 6"}},
        {Small(), With(&T::Sections, 3), {"Sections 2, designed 3"}},
        {Small(), With(&T::OneTabTopics, 1), {"one-tab Topics 2, designed 1"}},
        {Small(), With(&T::TwoTabTopics, 0), {"two-tab Topics 1, designed 0"}},
        {Small("< Second >", 111, 121), Target, {"longest body 111, designed 100 within a tenth"}},
        {Small("< Second >", 110, 120), Target, {}},
        {Small("< Second >", 100, 120),
         Target,
         {"RecordWidth 120 in data/libraries/widths.txt, designed 110 (longest body + 10)"}},
        {Small(), With(&T::SectionBodyHigh, 55), {"Section bodies 50-60, designed 40-55"}},
        {Small("< Second >", 100, 110, 62000),
         Target,
         {"longest body 62000, designed 100 within a tenth", widths,
          "merge sum of < Second > 62005, more than 62000"}},
        {Small("< The Ambrel >", 100, 110, 62000), With(&T::Longest, 62000), {widths}},
        {Small("< The Ambrel >"),
         Target,
         {"merge sum of < The Ambrel > 35, designed above 62000"}}};
    for (const auto& [library, target, departures] : cases) {
        EXPECT_EQ(TallyLibrary(library, target).Departures, departures);
    }
}

} // namespace
} // namespace veyrant
