#include "engine/MessagePlan.h"

#include "core/ProgramError.h"
#include "core/WholeFile.h"
#include "engine/KeptPlans.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

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

TEST(ReadPlan, KeepsEveryTermWithItsTextAndEmptyTermsEmpty) {
    const MessagePlan plan = ReadOne(TwoBlockPlan);
    EXPECT_EQ(plan.TermCount, 6);
    EXPECT_EQ(plan.BlockCount, 2);
    EXPECT_EQ(plan.SlotCount[2][6], 3);
    EXPECT_EQ(plan.SlotChoice[2][6][3], 6);
    EXPECT_EQ(plan.TermText[4], "");
    EXPECT_EQ(plan.TermText[6], "40");
}

struct FaultCase {
    const char* Name;
    std::string From;
    std::string To;
    int Error;
};

// ctest lists a case by what this prints.
void PrintTo(const FaultCase& c, std::ostream* out) {
    *out << c.Name;
}

class ReadPlanFaults : public ::testing::TestWithParam<FaultCase> {};

TEST_P(ReadPlanFaults, RaiseTheirNumber) {
    std::string text = TwoBlockPlan;
    text.replace(text.find(GetParam().From), GetParam().From.size(), GetParam().To);
    try {
        ReadOne(text);
        FAIL() << "no error";
    } catch (const ProgramError& error) {
        EXPECT_EQ(error.Number(), GetParam().Error);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Plans, ReadPlanFaults,
    ::testing::Values(FaultCase{"BlocksNotClosed", "\r\n0\r\n", "\r\n3\r\n", 1002},
                      FaultCase{"TermOutOfStep", "3, 1, \"20\"", "4, 1, \"20\"", 1004},
                      FaultCase{"SlotTooFull", "\"s4\", 1, 6", "\"s4\", 251, 6", 9},
                      FaultCase{"CutShort", "6, 1, \"40\"\r\n", "6, 1", 62}),
    [](const auto& info) { return std::string(info.param.Name); });

struct SequenceCase {
    std::int32_t Target;
    const char* Sequence;
};

// ctest lists a case by what this prints.
void PrintTo(const SequenceCase& c, std::ostream* out) {
    *out << c.Target;
}

class GenMatrixSeqTable : public ::testing::TestWithParam<SequenceCase> {};

TEST_P(GenMatrixSeqTable, CountsBlocksInOrderWithSlotSixFastest) {
    const MessagePlan plan = ReadOne(TwoBlockPlan);
    EXPECT_EQ(GenMatrixSeq(plan, GetParam().Target), GetParam().Sequence);
}

INSTANTIATE_TEST_SUITE_P(
    Targets, GenMatrixSeqTable,
    ::testing::Values(
        // An empty term in slots 1 to 5 adds neither text nor separator.
        SequenceCase{1, "10, 20, 40, 40, 40"},
        // An empty term in slot 6 leaves a trailing ", " that is cut.
        SequenceCase{2, "10, 20, 40, 40"}, SequenceCase{3, "10, 20, 30 31, 40, 40, 40"},
        SequenceCase{5, "11, 12, 20, 40, 40, 40"}, SequenceCase{8, "11, 12, 20, 30 31, 40, 40"},
        // The product of block 1 plus 1 is the first choice of each slot in block 2.
        SequenceCase{9, "30 31, 10"},
        // All slots empty give an empty text.
        SequenceCase{10, "30 31"}, SequenceCase{11, "30 31, 40"}, SequenceCase{12, ""},
        SequenceCase{0, ""}),
    [](const auto& info) { return "Target" + std::to_string(info.param.Target); });

TEST(GenMatrixSeq, AllEmptySlotsGiveAnEmptySequence) {
    const MessagePlan plan = ReadOne("1, 1, 1\r\n\"b\"\r\n\"s\", 1, 1\r\n\"s\", 1, 1\r\n"
                                     "\"s\", 1, 1\r\n\"s\", 1, 1\r\n\"s\", 1, 1\r\n\"s\", 1, 1\r\n"
                                     "0\r\n1, 1, \"\"\r\n");
    EXPECT_EQ(GenMatrixSeq(plan, 1), "");
}

TEST(ReadSequence, PartsNumbersAtCommasBlanksAndLineEnds) {
    EXPECT_EQ(ReadSequence(" 12, 7 31\r\n4"), (std::vector<std::int16_t>{12, 7, 31, 4}));
    EXPECT_TRUE(ReadSequence("").empty());
    EXPECT_TRUE(ReadSequence("   ").empty());
}

// Four plans: messages 1 and 2, then sections 1 and 2, told apart by the text of their
// first term.
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

struct LoadCase {
    const char* Kind;
    std::int16_t Number;
    const char* Sequence;
};

// ctest lists a case by what this prints.
void PrintTo(const LoadCase& c, std::ostream* out) {
    *out << c.Kind << " " << c.Number;
}

class LoadPlanTable : public ::testing::TestWithParam<LoadCase> {};

TEST_P(LoadPlanTable, ScansMessagesThenSections) {
    testing::TempFolder temp;
    WriteWholeFile(temp / "qdr41.mtx", FourPlanFile());
    EngineTables tables;
    tables.MessageCount = 2;
    tables.SectionCount = 2;
    MessagePlan plan;
    LoadPlan(temp / "qdr41.mtx", GetParam().Kind, GetParam().Number, tables, plan);
    EXPECT_EQ(GenMatrixSeq(plan, 1), GetParam().Sequence);

    // The kept plans pick the same plan for the same request.
    const KeptPlans kept(FourPlanFile(), tables);
    std::vector<std::int16_t> sequence;
    KeptPlans(kept).AppendSequence(GetParam().Kind, GetParam().Number, 1, sequence);
    EXPECT_EQ(sequence, ReadSequence(GetParam().Sequence));
}

INSTANTIATE_TEST_SUITE_P(
    Requests, LoadPlanTable,
    ::testing::Values(LoadCase{"Message", 1, "100"}, LoadCase{"Message", 2, "200"},
                      // Section 1 stands right behind the last message.
                      LoadCase{"Section", 1, "300"}, LoadCase{"Section", 2, "400"},
                      // A scan that never meets its plan ends on the last.
                      LoadCase{"Section", 3, "400"}, LoadCase{"Message", 0, "400"},
                      LoadCase{"message", 1, "400"}),
    [](const auto& info) { return info.param.Kind + std::to_string(info.param.Number); });

TEST(KeptPlans, AgreeWithCountingForEveryTarget) {
    EngineTables tables;
    tables.MessageCount = 1;
    const std::string file = TwoBlockPlan;
    KeptPlans kept(file, tables);
    const MessagePlan plan = ReadOne(file);
    EXPECT_EQ(kept.TrueCombos("Message", 1), 11);
    for (std::int32_t target = -1; target <= 13; ++target) {
        std::vector<std::int16_t> sequence;
        kept.AppendSequence("Message", 1, target, sequence);
        EXPECT_EQ(sequence, ReadSequence(GenMatrixSeq(plan, target))) << target;
    }
}

TEST(KeptPlans, RefuseATermThatWouldNotPartCleanly) {
    EngineTables tables;
    tables.MessageCount = 1;
    for (const std::string bad : {"1,,2", "1, ", ", 1", "  "}) {
        std::string file = TwoBlockPlan;
        file.replace(file.find("\"11, 12\""), 8, "\"" + bad + "\"");
        try {
            KeptPlans kept(file, tables);
            ADD_FAILURE() << bad;
        } catch (const ProgramError& error) {
            EXPECT_EQ(error.Number(), 13) << bad;
        }
    }
}

} // namespace
} // namespace veyrant
