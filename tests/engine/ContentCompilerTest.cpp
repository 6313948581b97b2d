#include "ContentSources.h"
#include "EngineData.h"
#include "core/WholeFile.h"
#include "engine/EngineTables.h"
#include "engine/KeptPlans.h"
#include "support/Replaced.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

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

struct RefusalCase {
    const char* Name;
    std::string Stock1;
    std::string Plans;
    std::string Suggestions;
    std::string Message;
};

// ctest lists a case by what this prints.
void PrintTo(const RefusalCase& c, std::ostream* out) {
    *out << c.Name;
}

class ContentRefusals : public ::testing::TestWithParam<RefusalCase> {};

TEST_P(ContentRefusals, NameFileAndLine) {
    const RefusalCase& c = GetParam();
    try {
        Compile(c.Stock1, c.Plans, c.Suggestions);
        FAIL() << "accepted";
    } catch (const ContentError& error) {
        EXPECT_EQ(std::string(error.what()).substr(0, c.Message.size()), c.Message);
    }
}

const std::string Ok = "= Heading\nA short text.\n";

INSTANTIATE_TEST_SUITE_P(
    Faults, ContentRefusals,
    ::testing::Values(
        RefusalCase{"LowerCaseRow", SmallStock1 + "of course\n", SmallPlans(), Ok,
                    "01.txt:11: a row must begin with a capital letter"},
        RefusalCase{"RowEndsInPunctuation", SmallStock1 + "Of course.\n", SmallPlans(), Ok,
                    "01.txt:11: a row may not end in punctuation"},
        RefusalCase{"TwoBlanks", SmallStock1 + "Of  course\n", SmallPlans(), Ok,
                    "01.txt:11: a row may not hold two blanks"},
        RefusalCase{"GroupWithoutRows", Replaced(SmallStock1, "[.]\n.\n", "[.]\n"), SmallPlans(),
                    Ok, "01.txt:5: the group . has no rows"},
        RefusalCase{"NoWindowsCode", SmallStock1 + "Of course \xE2\x98\x83\n", SmallPlans(), Ok,
                    "01.txt:11: a character at byte 11 has no Windows-1252 code"},
        RefusalCase{"GroupInAnotherStock", SmallStock1 + "[No]\nNo\n", SmallPlans(), Ok,
                    "01.txt:11: the group No belongs in stock 2"},
        RefusalCase{"GroupOutOfOrder", SmallStock1 + "[Sure]\nSure\n", SmallPlans(), Ok,
                    "01.txt:11: the group Sure belongs before Yes"},
        RefusalCase{"LabelTwice", SmallStock1 + "[Yes]\nYes\n", SmallPlans(), Ok,
                    "01.txt:11: the label Yes is used by another group"},
        RefusalCase{"UnknownLabel", SmallStock1, Replaced(SmallPlans(), "Yes | Maybe", "Yes | No"),
                    Ok, "plans.txt:6: unknown label No"},
        RefusalCase{"UnknownSection", SmallStock1,
                    Replaced(SmallPlans(), "2: Verdict | -", "2: Verdict | Verdit"), Ok,
                    "plans.txt:11: unknown section Verdit"},
        RefusalCase{"SlotWithNoChoice", SmallStock1, Replaced(SmallPlans(), "2: .", "2:"), Ok,
                    "plans.txt:7: slot 2 has no choice"},
        RefusalCase{"EmptyChoice", SmallStock1, Replaced(SmallPlans(), "Yes | Maybe", "Yes | "), Ok,
                    "plans.txt:6: a slot has a choice with nothing in it"},
        RefusalCase{"SlotTooFull", SmallStock1,
                    Replaced(SmallPlans(), "2: .\n",
                             [] {
                                 std::string slot = "2: .";
                                 for (int i = 0; i < 250; ++i) {
                                     slot += "\n| .";
                                 }
                                 return slot + "\n";
                             }()),
                    Ok, "plans.txt:7: slot 2 holds 251 choices, more than 250"},
        RefusalCase{"CaseKeepersNotLedByTheComma", SmallStock1,
                    Replaced(SmallPlans(), "CaseKeepers , .", "CaseKeepers . ,"), Ok,
                    "plans.txt:3: the first of the CaseKeepers must be the comma"},
        RefusalCase{"TooManyComponents", SmallStock1,
                    Replaced(SmallPlans(), "MaxComponents 4", "MaxComponents 3"), Ok,
                    "plans.txt:8: message 1 can hold 4 components, more than MaxComponents 3"},
        RefusalCase{"TooManySections", SmallStock1,
                    Replaced(SmallPlans(), "MaxSections 2", "MaxSections 1"), Ok,
                    "plans.txt:8: message 1 can hold 2 sections, more than MaxSections 1"},
        RefusalCase{"MessageTwice", SmallStock1,
                    Replaced(SmallPlans(), "message 16 Other", "message 1 Other"), Ok,
                    "plans.txt:54: message 1 has a second plan"},
        RefusalCase{"MissingMessage", SmallStock1,
                    Replaced(SmallPlans(), "message 16 Other\nblock\n1: Verdict\n", ""), Ok,
                    "data/plans:0: message 16 has no plan"},
        RefusalCase{"SlotsOutOfOrder", SmallStock1, Replaced(SmallPlans(), "2: .", "1: ."), Ok,
                    "plans.txt:7: slots of a block stand in order 1 to 6"},
        RefusalCase{"SuggestionTooLong", SmallStock1, SmallPlans(),
                    "= Heading\n" + std::string(200, 'x') + "\n",
                    "suggestions.txt:1: the Suggestion \"Heading\" is longer than 209"}),
    [](const auto& info) { return std::string(info.param.Name); });

} // namespace
} // namespace veyrant
