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
    EXPECT_EQ(tables.ComponentBlock[3], 2);
    EXPECT_EQ(tables.MessageCombos[1], 2);
    const KeptPlans plans(data.PlanFile, tables);
    EXPECT_EQ(plans.TrueCombos("Message", 1), 2);
    EXPECT_EQ(plans.TrueCombos("Section", 1), tables.SectionCombos[1]);
}

// Each refusal names its file and line.
TEST(ContentCompiler, RefusalsNameFileAndLine) {
    struct Case {
        std::string Stock1, Plans, Message;
        std::string Suggestions = "= Heading\nA short text.\n";
    };
    std::string manyChoices = "2: .";
    for (int i = 0; i < 250; ++i) {
        manyChoices += " | .";
    }
    const Case cases[] = {
        {SmallStock1 + "of course\n", SmallPlans(),
         "01.txt:11: a row must begin with a capital letter"},
        {SmallStock1 + "Of course.\n", SmallPlans(), "01.txt:11: a row may not end in punctuation"},
        {SmallStock1 + "Of  course\n", SmallPlans(), "01.txt:11: a row may not hold two blanks"},
        {Replaced(SmallStock1, "[.]\n.\n", "[.]\n"), SmallPlans(),
         "01.txt:5: the group . has no rows"},
        {SmallStock1 + "Of course \xE2\x98\x83\n", SmallPlans(),
         "01.txt:11: a character at byte 11 has no Windows-1252 code"},
        {SmallStock1 + "[No]\nNo\n", SmallPlans(), "01.txt:11: the group No belongs in stock 2"},
        {SmallStock1 + "[Sure]\nSure\n", SmallPlans(),
         "01.txt:11: the group Sure belongs before Yes"},
        {SmallStock1 + "[Yes]\nYes\n", SmallPlans(),
         "01.txt:11: the label Yes is used by another group"},
        {SmallStock1, Replaced(SmallPlans(), "Yes | Maybe", "Yes | No"),
         "plans.txt:6: unknown label No"},
        {SmallStock1, Replaced(SmallPlans(), "2: Verdict | -", "2: Verdict | Verdit"),
         "plans.txt:11: unknown section Verdit"},
        {SmallStock1, Replaced(SmallPlans(), "2: .", "2:"), "plans.txt:7: slot 2 has no choice"},
        {SmallStock1, Replaced(SmallPlans(), "Yes | Maybe", "Yes | "),
         "plans.txt:6: a slot has a choice with nothing in it"},
        {SmallStock1, Replaced(SmallPlans(), "2: .", manyChoices),
         "plans.txt:7: slot 2 holds 251 choices, more than 250"},
        {SmallStock1, Replaced(SmallPlans(), "CaseKeepers , .", "CaseKeepers . ,"),
         "plans.txt:3: the first of the CaseKeepers must be the comma"},
        {SmallStock1, Replaced(SmallPlans(), "MaxComponents 4", "MaxComponents 3"),
         "plans.txt:8: message 1 can hold 4 components, more than MaxComponents 3"},
        {SmallStock1, Replaced(SmallPlans(), "MaxSections 2", "MaxSections 1"),
         "plans.txt:8: message 1 can hold 2 sections, more than MaxSections 1"},
        {SmallStock1, Replaced(SmallPlans(), "message 16 Other", "message 1 Other"),
         "plans.txt:54: message 1 has a second plan"},
        {SmallStock1, Replaced(SmallPlans(), "message 16 Other\nblock\n1: Verdict\n", ""),
         "data/plans:0: message 16 has no plan"},
        {SmallStock1, Replaced(SmallPlans(), "2: .", "1: ."),
         "plans.txt:7: slots of a block stand in order 1 to 6"},
        {SmallStock1, SmallPlans(),
         "suggestions.txt:1: the Suggestion \"Heading\" is longer than 209",
         "= Heading\n" + std::string(200, 'x') + "\n"}};
    for (const Case& c : cases) {
        try {
            Compile(c.Stock1, c.Plans, c.Suggestions);
            ADD_FAILURE() << "accepted: " << c.Message;
        } catch (const ContentError& error) {
            EXPECT_EQ(std::string(error.what()).substr(0, c.Message.size()), c.Message);
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
