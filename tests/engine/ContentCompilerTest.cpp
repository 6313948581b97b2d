#include "ContentSources.h"
#include "EngineData.h"
#include "LibrarySource.h"
#include "LibraryTally.h"
#include "StockReport.h"
#include "core/WholeFile.h"
#include "engine/EngineTables.h"
#include "engine/KeptPlans.h"
#include "support/Replaced.h"
#include "support/TempFolder.h"

#include <array>
#include <gtest/gtest.h>
#include <tuple>

namespace veyrant {
namespace {

using namespace content;
using testing::Replaced;

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

const std::string SmallStock1 = "# answers\n[,]\n,\n\n[.]\n.\n\n[Yes]\nYes\n(2) Of course\n";
const std::string SmallStock2 = "[Maybe]\nMaybe\nPerhaps not\n";

std::string SmallPlans() {
    std::string text = "MaxSections 2\nMaxComponents 4\nCaseKeepers , .\n"
                       "section Verdict\nblock\n1: Yes | Maybe\n2: .\n"
                       "message 1 Answer\nblock\n1: Verdict\n2: Verdict | -\n";
    for (int m = 2; m <= 16; ++m) {
        text += "message " + std::to_string(m) + " Other\nblock\n1: Verdict\n";
    }
    return text;
}

EngineData Compile(const std::string& stock1, const std::string& plans,
                   const std::string& suggestions = "= Heading\nA short text.\n") {
    ContentSources sources;
    ReadGroupOrder("order.txt", "1: Sure Yes\n2: Maybe No\n", sources);
    sources.Stocks[1] = ReadStockSource("01.txt", stock1);
    sources.Stocks[2] = ReadStockSource("02.txt", SmallStock2);
    ReadPlanSource("plans.txt", plans, sources);
    sources.Suggestions = ReadSuggestionSource("suggestions.txt", suggestions);
    return CompileEngine(sources);
}

std::string Golden(const std::string& name) {
    return ReadWholeFile(std::filesystem::path(VEYRANT_TEST_DATA) / "engine" / name);
}

TEST(ContentCompiler, WritesTheEngineFilesOfTheSmallContent) {
    const EngineData data = Compile(SmallStock1, SmallPlans());
    EXPECT_EQ(data.SystemFile, Golden("small.sys"));
    EXPECT_EQ(data.PlanFile, Golden("small.mtx"));
    EXPECT_EQ(data.StockRows[1], (std::vector<std::string>{"", ",", ",", ".", ".", " Yes", " Yes",
                                                           " Of course", " Of course"}));
    EXPECT_EQ(data.Suggestions, std::vector<std::string>{"Heading\r\n\tA short text."});
    // The engine's own readers take what the compiler wrote.
    testing::TempFolder temp;
    WriteWholeFile(temp / "qdr41.sys", data.SystemFile);
    EngineTables tables;
    ASSERT_EQ(ReadEngineTables(temp / "qdr41.sys", tables), 0);
    EXPECT_EQ(KeptPlans(data.PlanFile, tables).TrueCombos("Message", 1), 2);
}

// Each refusal names its file and line. A case replaces a text in the stock (s), the plans (p) or
// the Suggestions (g).
TEST(ContentCompiler, RefusalsNameFileAndLine) {
    std::string manyChoices = "2: .";
    for (int i = 0; i < 250; ++i) {
        manyChoices += " | .";
    }
    const std::string end = "Of course\n";
    const std::tuple<char, std::string, std::string, std::string> cases[] = {
        {'s', end, end + "of course\n", "01.txt:11: a row must begin with a capital letter"},
        {'s', end, end + "Of course.\n", "01.txt:11: a row may not end in punctuation"},
        {'s', end, end + "Of  course\n", "01.txt:11: a row may not hold two blanks"},
        {'s', "[.]\n.\n", "[.]\n", "01.txt:5: the group . has no rows"},
        {'s', end, end + "Of course \xE2\x98\x83\n", "01.txt:11: a character at byte 11"},
        {'s', end, end + "[No]\nNo\n", "01.txt:11: the group No belongs in stock 2"},
        {'s', end, end + "[Sure]\nSure\n", "01.txt:11: the group Sure belongs before Yes"},
        {'s', end, end + "[Yes]\nYes\n", "01.txt:11: the label Yes is used by another group"},
        {'p', "Yes | Maybe", "Yes | No", "plans.txt:6: unknown label No"},
        {'p', "2: Verdict | -", "2: Verdict | Verdit", "plans.txt:11: unknown section Verdit"},
        {'p', "2: .", "2:", "plans.txt:7: slot 2 has no choice"},
        {'p', "Yes | Maybe", "Yes | ", "plans.txt:6: a slot has a choice with nothing in it"},
        {'p', "2: .", manyChoices, "plans.txt:7: slot 2 holds 251 choices, more than 250"},
        {'p', "CaseKeepers , .", "CaseKeepers . ,", "plans.txt:3: the first of the CaseKeepers"},
        {'p', "MaxComponents 4", "MaxComponents 3", "plans.txt:8: message 1 can hold 4 components"},
        {'p', "MaxSections 2", "MaxSections 1", "plans.txt:8: message 1 can hold 2 sections"},
        {'p', "message 16 Other", "message 1 Other", "plans.txt:54: message 1 has a second plan"},
        {'p', "message 16 Other\nblock\n1: Verdict\n", "", "data/plans:0: message 16 has no plan"},
        {'p', "2: .", "1: .", "plans.txt:7: slots of a block stand in order 1 to 6"},
        {'g', "A short text.", std::string(200, 'x'),
         "suggestions.txt:1: the Suggestion \"Heading\""}};
    for (const auto& [source, from, to, message] : cases) {
        const auto replacedIn = [&](char in, const std::string& text) {
            return source == in ? Replaced(text, from, to) : text;
        };
        const auto compile = [&] {
            Compile(replacedIn('s', SmallStock1), replacedIn('p', SmallPlans()),
                    replacedIn('g', "= Heading\nA short text.\n"));
        };
        EXPECT_EQ(Refusal(compile).substr(0, message.size()), message);
    }
}

const char* const InOrder =
    "[Alpha]\n(3) One\nTwo\n[Own-group]\nTwo\n[Beta]\nThree\n[Gamma]\nFour\n";
const char* const BetaFirst = "[Beta]\n(3) Two\n[Alpha]\n(2) One\n[Gamma]\nThree\n";

// The table asks for Alpha, Beta and Gamma; a stock may hold groups of its own between them.
TEST(StockTally, CountsRowsAndChecksTheLabelTable) {
    // The source, the rows it should have, its rows, distinct rows and repeats, the labels missing
    // and out of order, and whether it fits within a tenth.
    using Labels = std::vector<std::string>;
    const std::tuple<const char*, int, std::array<int, 3>, Labels, Labels, bool> cases[] = {
        {InOrder, 10, {11, 4, 3}, {}, {}, true},
        {InOrder, 13, {11, 4, 3}, {}, {}, false},
        {"[Alpha]\n(5) One\n[Gamma]\n(3) Three\n", 10, {10, 2, 6}, {"Beta"}, {}, false},
        {BetaFirst, 10, {9, 3, 3}, {}, {"Beta"}, false}};
    for (const auto& [source, rows, counts, missing, outOfOrder, fits] : cases) {
        SCOPED_TRACE(std::string(source) + " of " + std::to_string(rows));
        const StockTally tally =
            TallyStock(ReadStockSource("07.txt", source), {rows, {"Alpha", "Beta", "Gamma"}});
        EXPECT_EQ((std::array<int, 3>{tally.Rows, tally.DistinctRows, tally.Repeats}), counts);
        EXPECT_EQ(tally.MissingLabels, missing);
        EXPECT_EQ(tally.LabelsOutOfOrder, outOfOrder);
        EXPECT_EQ(tally.Fits(), fits);
    }
}

const std::string Catalogue = "[0] < Opening >\n[1] First Topic \n[2] Inner Topic\n";
const std::string Bodies = "# The opening Section.\n[0] < Opening >\nWelcome.\n\n[1] First Topic \n"
                           "One paragraph ends in a blank. \n* A listed item\n[2] Inner Topic\n"
                           "It’s short—and curly.\n";

LibrarySource Read(const std::string& bodies, int width = 60) {
    return ReadLibrarySource("knowledge", {"catalogue.txt", Catalogue}, {{"1-opening.txt", bodies}},
                             width);
}

// The body files are read as one, so a Section may go on in the next file.
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
                        "\t\tInner Topic|\tIt\x92s short\x97"
                        "and curly.\r\n|2-b.txt:1"}));
    EXPECT_EQ(library.RecordWidth, 60);
}

TEST(LibraryCompiler, RefusalsNameFileAndLine) {
    const std::tuple<std::string, int, std::string> cases[] = {
        {"[0] < Opening >\nA.\n[2] Inner Topic\nB.\n[1] First Topic \nC.\n", 60,
         "1-opening.txt:3: the title \"Inner Topic\" stands where"},
        {Bodies + "[1] Extra\nD.\n", 60,
         "1-opening.txt:10: the title \"Extra\" is past the 3 rows of the catalogue"},
        {Replaced(Bodies, "[2] Inner Topic\nIt’s short—and curly.\n", ""), 60,
         "catalogue.txt:3: the row \"Inner Topic\" has no body"},
        {Replaced(Bodies, "[2] Inner", "[3] Inner"), 60, "1-opening.txt:8: a title is marked"},
        {Replaced(Bodies, "Welcome.\n", ""), 60, "1-opening.txt:2: the row \"< Opening >\" has no"},
        {"Preface.\n" + Bodies, 60, "1-opening.txt:1: text before the first title"},
        {Bodies, 50, "1-opening.txt:5: the body of \"First Topic\" holds 51 characters"},
        {Replaced(Bodies, "Welcome.", "\tWelcome."), 60, "1-opening.txt:3: a paragraph begins"},
        {Replaced(Bodies, "Welcome.", "Wel\tcome."), 60, "1-opening.txt:3: a paragraph holds"},
        {Replaced(Bodies, "* A listed", "*A listed"), 60, "1-opening.txt:7: an item is written"}};
    for (const auto& [bodies, width, message] : cases) {
        EXPECT_EQ(Refusal([&] { Read(bodies, width); }).substr(0, message.size()), message);
    }
}

TEST(LibraryCompiler, WidthsNameEachLibraryOnce) {
    const auto widths = ReadLibraryWidths(
        {"widths.txt", "# records\ninformation 870\nknowledge 884\nadvanced 2842\n"});
    EXPECT_EQ(widths.at("knowledge"), 884);
    const std::pair<const char*, std::string> faults[] = {
        {"information 870\nknowledge 884\n", "widths.txt:0: no width for advanced"},
        {"information 870\nknowledge 884\nadvance 2842\n", "widths.txt:3: a width is written"}};
    for (const auto& [text, message] : faults) {
        const auto refusal = Refusal([&] { ReadLibraryWidths({"widths.txt", text}); });
        EXPECT_EQ(refusal.substr(0, message.size()), message);
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
        {Small(), With(&T::Sections, 3), {"Sections 2, designed 3"}},
        {Small("< Second >", 111, 121), Target, {"longest body 111, designed 100 within a tenth"}},
        {Small("< Second >", 110, 120), Target, {}},
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
