#include "engine/Composer.h"

#include "EngineFixture.h"
#include "core/ProgramError.h"
#include "engine/KeptPlans.h"
#include "engine/MessagePlan.h"
#include "engine/PlanFileReader.h"
#include "support/Replaced.h"

#include <tuple>

namespace veyrant {
namespace {

// Two blocks: 2 x 1 x 2 x 1 x 1 x 2 = 8 combinations, then 1 x 1 x 1 x 1 x 1 x 3 = 3.
// Term 4 is empty; it stands in slot 3 and slot 6 of block 1 and in slot 6 of block 2.
const std::string TwoBlockPlan = "1, 6, 2\r\n"
                                 "\"first\"\r\n"
                                 "\"s1\", 2, 1, 2\r\n\"s2\", 1, 3\r\n\"s3\", 2, 4, 5\r\n"
                                 "\"s4\", 1, 6\r\n\"s5\", 1, 6\r\n\"s6\", 2, 6, 4\r\n"
                                 "\"second\"\r\n"
                                 "\"s1\", 1, 5\r\n\"s2\", 1, 4\r\n\"s3\", 1, 4\r\n"
                                 "\"s4\", 1, 4\r\n\"s5\", 1, 4\r\n\"s6\", 3, 1, 4, 6\r\n"
                                 "0\r\n"
                                 "1, 1, \"10\"\r\n2, 1, \"11, 12\"\r\n3, 1, \"20\"\r\n"
                                 "4, 1, \"\"\r\n5, 1, \"30 31\"\r\n6, 1, \"40\"\r\n";

MessagePlan ReadOne(const std::string& text) {
    FieldReader reader(text);
    MessagePlan plan;
    ReadPlan(reader, plan);
    return plan;
}

// The kept plans refuse a term that would not part cleanly.
TEST(KeptPlans, FaultsRaiseTheirNumber) {
    EngineTables tables;
    tables.MessageCount = 1;
    const std::tuple<std::string, std::string, int> cases[] = {
        {"\r\n0\r\n", "\r\n3\r\n", 1002},       // blocks not closed
        {"3, 1, \"20\"", "4, 1, \"20\"", 1004}, // a term out of step
        {"\"s4\", 1, 6", "\"s4\", 251, 6", 9},  // a slot too full
        {"6, 1, \"40\"\r\n", "6, 1", 62},       // cut short
        {"\"11, 12\"", "\"1,,2\"", 13},         {"\"11, 12\"", "\"1, \"", 13},
        {"\"11, 12\"", "\", 1\"", 13},          {"\"11, 12\"", "\"  \"", 13}};
    for (const auto& [from, to, number] : cases) {
        try {
            KeptPlans kept(testing::Replaced(TwoBlockPlan, from, to), tables);
            ADD_FAILURE() << "no error for " << to;
        } catch (const ProgramError& error) {
            EXPECT_EQ(error.Number(), number) << to;
        }
    }
}

// Blocks count in order, slot 6 fastest, and the kept plans agree with counting for every target.
TEST(GenMatrixSeq, CountsBlocksInOrderWithSlotSixFastestAsTheKeptPlansDo) {
    const MessagePlan plan = ReadOne(TwoBlockPlan);
    const std::pair<std::int32_t, const char*> cases[] = {
        {1, "10, 20, 40, 40, 40"}, // an empty term in slots 1 to 5 adds neither text nor ", "
        {2, "10, 20, 40, 40"},     // in slot 6 it leaves a trailing ", " that is cut
        {8, "11, 12, 20, 30 31, 40, 40"},
        {9, "30 31, 10"}, // block 2 starts at the product of block 1 plus 1, on first choices
        {11, "30 31, 40"},
        {12, ""},
        {0, ""}};
    for (const auto& [target, sequence] : cases) {
        EXPECT_EQ(GenMatrixSeq(plan, target), sequence) << target;
    }
    EngineTables tables;
    tables.MessageCount = 1;
    KeptPlans kept(TwoBlockPlan, tables);
    EXPECT_EQ(kept.TrueCombos("Message", 1), 11);
    for (std::int32_t target = -1; target <= 13; ++target) {
        std::vector<std::int16_t> sequence;
        kept.AppendSequence("Message", 1, target, sequence);
        EXPECT_EQ(sequence, ReadSequence(GenMatrixSeq(plan, target))) << target;
    }
    EXPECT_EQ(ReadSequence(" 12, 7 31\r\n4"), (std::vector<std::int16_t>{12, 7, 31, 4}));
    EXPECT_TRUE(ReadSequence("   ").empty());
    // All slots empty give an empty text.
    const MessagePlan empty = ReadOne("1, 1, 1\r\n\"b\"\r\n\"s\", 1, 1\r\n\"s\", 1, 1\r\n"
                                      "\"s\", 1, 1\r\n\"s\", 1, 1\r\n\"s\", 1, 1\r\n\"s\", 1, 1\r\n"
                                      "0\r\n1, 1, \"\"\r\n");
    EXPECT_EQ(GenMatrixSeq(empty, 1), "");
}

// Messages 1 and 2, then sections 1 and 2, told apart by the text of their first term.
std::string FourPlanFile() {
    std::string text;
    for (int plan = 1; plan <= 4; ++plan) {
        text += std::to_string(plan) + ", 2, 1\r\n\"b\"\r\n\"s\", 1, 1\r\n";
        for (int s = 2; s <= 6; ++s) {
            text += "\"s\", 1, 2\r\n";
        }
        text += "0\r\n1, 1, \"" + std::to_string(plan * 100) + "\"\r\n2, 1, \"\"\r\n";
    }
    return text;
}

TEST(LoadPlan, ScansMessagesThenSectionsAsTheKeptPlansDo) {
    testing::TempFolder temp;
    WriteWholeFile(temp / "qdr41.mtx", FourPlanFile());
    EngineTables tables;
    tables.MessageCount = 2;
    tables.SectionCount = 2;
    const KeptPlans kept(FourPlanFile(), tables);
    const std::tuple<const char*, std::int16_t, const char*> cases[] = {
        {"Message", 1, "100"},
        {"Section", 1, "300"}, // right behind the last message
        {"Section", 3, "400"}, // a scan that never meets its plan ends on the last
        {"Message", 0, "400"}};
    for (const auto& [kind, number, sequenceText] : cases) {
        SCOPED_TRACE(std::string(kind) + " " + std::to_string(number));
        MessagePlan plan;
        LoadPlan(temp / "qdr41.mtx", kind, number, tables, plan);
        EXPECT_EQ(GenMatrixSeq(plan, 1), sequenceText);
        std::vector<std::int16_t> sequence;
        KeptPlans(kept).AppendSequence(kind, number, 1, sequence);
        EXPECT_EQ(sequence, ReadSequence(sequenceText));
    }
}

// The kept plans and their arithmetic must compose exactly what the plain routines give by
// re-reading the plan file and counting up to the target.
using OnTheShippedPlans = testing::EngineFixture;

TEST_F(OnTheShippedPlans, ComposeAsThePlainRoutinesDo) {
    PlanFileReader plain(Folder.Exe() / "qdr41.mtx", TheEngine.Tables());
    Random random;
    Composer reference(TheEngine.Tables(), TheEngine.Stocks(), random, Windows);
    reference.MarkJoiners();
    for (int reply = 0; reply < 40; ++reply) {
        TheEngine.SeriesSeed = 3000.0f + 1713.37f * static_cast<float>(reply);
        TheEngine.StretchSeeds();
        for (std::int16_t message = 1; message <= 16; ++message) {
            TheEngine.Compose(static_cast<MessageNumber>(message));
            reference.BuildMessage(message, TheEngine.SeedPool, plain);
            reference.AssembleMessage();
            const Composer& fast = TheEngine.MessageComposer();
            ASSERT_EQ(fast.CompositionComponents, reference.CompositionComponents);
            ASSERT_EQ(fast.CompositionRows, reference.CompositionRows);
            ASSERT_EQ(fast.ComposedText, reference.ComposedText);
            ASSERT_GT(fast.CompositionLength, 0) << "message " << message;
        }
    }
    EXPECT_TRUE(Windows.Boxes.empty());
}

// Components 0 to 6 in stock 1, one row each: the comma (first CaseKeeper), the period, the
// dash (TightJoiner), " I am" (CaseKeeper), and three plain phrases.
enum : std::int16_t { Comma, Period, Dash, IAm, Hello, Big, Third };

class Composing : public ::testing::Test {
protected:
    void SetUp() override {
        stocks.Rows[1] = {"",      " Label",       ",",         ".",     "\x97",
                          " I am", " Hello there", " Big news", " Third"};
        tables.ComponentCount = 6;
        tables.RowCap = 1;
        tables.SysBlockCount = 14;
        tables.CaseKeepers = {0, Comma, Period, IAm};
        tables.TightJoiners = {0, Dash};
        tables.ComponentRows.assign(7, 1);
        tables.ComponentBlock.assign(7, 1);
        tables.Map.Allocate(14, tables.ComponentRows);
        for (int c = 0; c <= 6; ++c) {
            tables.Map.At(1, c, 1) = static_cast<std::int16_t>(c + 2);
        }
        composer.MarkJoiners();
    }

    std::string Assemble(const std::vector<std::int16_t>& components) {
        composer.CompositionComponents = {0};
        composer.CompositionComponents.insert(composer.CompositionComponents.end(),
                                              components.begin(), components.end());
        composer.CompositionRows.assign(components.size() + 1, 1);
        composer.CompositionLength = static_cast<std::int16_t>(components.size());
        composer.AssembleMessage();
        return composer.ComposedText;
    }

    EngineTables tables;
    PhraseStocks stocks;
    Random random;
    testing::FakeWindowLayer windows;
    Composer composer{tables, stocks, random, windows};
};

// Row 0 of a component, its label, lies in the idle plane; the draw runs from row 1, so a label
// row marked there never shows. A component outside the stocks is reported.
TEST_F(Composing, AssembleSetsCaseAndSpacingByTheListsHidesTheLabelRowAndReportsAStrayComponent) {
    tables.Map.At(0, Hello, 0) = 1;
    const std::pair<std::vector<std::int16_t>, const char*> cases[] = {
        {{Hello}, "\t Hello there"}, // a tab and the row, lead blank included
        {{Hello, Big}, "\t Hello there big news"},
        {{Hello, Comma, Big}, "\t Hello there, big news"},  // the first CaseKeeper lowers
        {{Hello, Period, Big}, "\t Hello there. Big news"}, // any other keeps the capital
        {{Hello, IAm, Big}, "\t Hello there I am Big news"},
        {{Hello, Comma, IAm}, "\t Hello there, I am"},
        // Behind the dash the next row loses its blank, even past a CaseKeeper.
        {{Hello, Dash, Big}, "\t Hello there\227big news"},
        {{Hello, Dash, Period, Big}, "\t Hello there\x97. Big news"},
        {{}, "\t"}};
    for (const auto& [components, text] : cases) {
        EXPECT_EQ(Assemble(components), text);
    }
    EXPECT_TRUE(windows.Boxes.empty());
    // Tables that name no CaseKeeper have no comma rule: every row after the first is lowered.
    tables.CaseKeepers = {0};
    composer.MarkJoiners();
    EXPECT_EQ(Assemble({Hello, Comma, IAm, Big}), "\t Hello there, i am big news");
    tables.ComponentBlock[Big] = 0;
    EXPECT_EQ(Assemble({Hello, Big}), "\t Hello there hello there");
    ASSERT_EQ(windows.Boxes.size(), 1u);
    EXPECT_EQ(windows.Boxes[0].Title, "Coding error in Rcmp, Engine21");
    EXPECT_EQ(windows.Boxes[0].Buttons, MessageButtons::OkCancel);
}

} // namespace
} // namespace veyrant
