#include "ContentSources.h"
#include "EngineData.h"
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
    EXPECT_EQ(tables.ComponentCount, 3);
    EXPECT_EQ(tables.ComponentRows[2], 3);
    EXPECT_EQ(tables.Map.At(1, 2, 3), 8);
    // The label row lies in the idle plane only.
    EXPECT_EQ(tables.Map.At(0, 2, 0), 5);
    EXPECT_EQ(tables.Map.At(1, 2, 0), 0);
    EXPECT_EQ(tables.CaseKeepers.size(), 3u); // a blank first, then the comma and the period
    EXPECT_EQ(tables.ComponentBlock[3], 2);
    EXPECT_EQ(tables.MessageCombos[1], 2);
    const KeptPlans plans(data.PlanFile, tables);
    EXPECT_EQ(plans.TrueCombos("Message", 1), 2);
    EXPECT_EQ(plans.TrueCombos("Section", 1), tables.SectionCombos[1]);
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
        {'s', end, end + "Of course \xE2\x98\x83\n",
         "01.txt:11: a character at byte 11 has no Windows-1252 code"},
        {'s', end, end + "[No]\nNo\n", "01.txt:11: the group No belongs in stock 2"},
        {'s', end, end + "[Sure]\nSure\n", "01.txt:11: the group Sure belongs before Yes"},
        {'s', end, end + "[Yes]\nYes\n", "01.txt:11: the label Yes is used by another group"},
        {'p', "Yes | Maybe", "Yes | No", "plans.txt:6: unknown label No"},
        {'p', "2: Verdict | -", "2: Verdict | Verdit", "plans.txt:11: unknown section Verdit"},
        {'p', "2: .", "2:", "plans.txt:7: slot 2 has no choice"},
        {'p', "Yes | Maybe", "Yes | ", "plans.txt:6: a slot has a choice with nothing in it"},
        {'p', "2: .", manyChoices, "plans.txt:7: slot 2 holds 251 choices, more than 250"},
        {'p', "CaseKeepers , .", "CaseKeepers . ,",
         "plans.txt:3: the first of the CaseKeepers must be the comma"},
        {'p', "MaxComponents 4", "MaxComponents 3",
         "plans.txt:8: message 1 can hold 4 components, more than MaxComponents 3"},
        {'p', "MaxSections 2", "MaxSections 1",
         "plans.txt:8: message 1 can hold 2 sections, more than MaxSections 1"},
        {'p', "message 16 Other", "message 1 Other", "plans.txt:54: message 1 has a second plan"},
        {'p', "message 16 Other\nblock\n1: Verdict\n", "", "data/plans:0: message 16 has no plan"},
        {'p', "2: .", "1: .", "plans.txt:7: slots of a block stand in order 1 to 6"},
        {'g', "A short text.", std::string(200, 'x'),
         "suggestions.txt:1: the Suggestion \"Heading\" is longer than 209"}};
    for (const auto& [source, from, to, message] : cases) {
        const auto replacedIn = [&](char in, const std::string& text) {
            return source == in ? Replaced(text, from, to) : text;
        };
        try {
            Compile(replacedIn('s', SmallStock1), replacedIn('p', SmallPlans()),
                    replacedIn('g', "= Heading\nA short text.\n"));
            ADD_FAILURE() << "accepted: " << message;
        } catch (const ContentError& error) {
            EXPECT_EQ(std::string(error.what()).substr(0, message.size()), message);
        }
    }
}

const char* const InOrder =
    "[Alpha]\n(3) One\nTwo\n[Own-group]\nTwo\n[Beta]\nThree\n[Gamma]\nFour\n";

// The table asks for Alpha, Beta and Gamma; a stock may hold groups of its own between them.
TEST(StockTally, CountsRowsAndChecksTheLabelTable) {
    // The source, the rows it should have, its rows, distinct rows and repeats, the labels missing
    // and out of order, and whether it fits within a tenth.
    const std::tuple<const char*, int, std::array<int, 3>, std::vector<std::string>,
                     std::vector<std::string>, bool>
        cases[] = {{InOrder, 11, {11, 4, 3}, {}, {}, true},
                   {InOrder, 10, {11, 4, 3}, {}, {}, true},
                   {InOrder, 12, {11, 4, 3}, {}, {}, true},
                   {InOrder, 9, {11, 4, 3}, {}, {}, false},
                   {InOrder, 13, {11, 4, 3}, {}, {}, false},
                   {"[Alpha]\n(5) One\n[Gamma]\n(3) Three\n", 10, {10, 2, 6}, {"Beta"}, {}, false},
                   {"[Beta]\n(3) Two\n[Alpha]\n(2) One\n[Gamma]\nThree\n",
                    10,
                    {9, 3, 3},
                    {},
                    {"Beta"},
                    false}};
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

} // namespace
} // namespace veyrant
