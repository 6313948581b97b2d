#include "engine/EntryParser.h"

#include "core/Text.h"

#include <cctype>
#include <gtest/gtest.h>

namespace veyrant {
namespace {

// A test name from the case's sentence, which ctest lists.
std::string NameOf(const std::string& sentence, std::size_t index) {
    std::string name;
    for (const char c : sentence) {
        if (std::isalnum(static_cast<unsigned char>(c))) {
            name += c;
        }
    }
    return name + "_" + std::to_string(index);
}

struct ClassifyCase {
    const char* Sentence;
    std::int16_t EntryType;
};

// ctest lists a case by what this prints.
void PrintTo(const ClassifyCase& c, std::ostream* out) {
    *out << c.Sentence;
}

class ClassifyEntryTable : public ::testing::TestWithParam<ClassifyCase> {};

TEST_P(ClassifyEntryTable, GivesTheSentenceType) {
    std::string text = GetParam().Sentence;
    auto entryType = static_cast<SentenceType>(77);
    ClassifyEntry(text, entryType);
    EXPECT_EQ(static_cast<std::int16_t>(entryType), GetParam().EntryType) << GetParam().Sentence;
}

INSTANTIATE_TEST_SUITE_P(
    Entries, ClassifyEntryTable,
    ::testing::Values(
        // An auxiliary at the start with "I" behind it is the only clause start.
        ClassifyCase{"Will I be happy?", 1},
        // Only the question word stands at position 1, so " is " does not compete.
        ClassifyCase{"What is love?", 20},
        // Trimmed before the blanking, so the opening "I will" is not blanked.
        ClassifyCase{"I will go?", 1},
        // The inner "I will" is blanked; "Do" leads.
        ClassifyCase{"Do you think I will go?", 1},
        // One question word and one auxiliary, neither at a start: the question word wins.
        ClassifyCase{"Tell me what is love?", 20},
        // One question word and no auxiliary: no single candidate.
        ClassifyCase{"I asked who knew it?", -3},
        // The only start stands behind the comma.
        ClassifyCase{"If I go, will it rain?", 1},
        // Two starts: position 1 and behind a comma.
        ClassifyCase{"Why me, who knows?", -2}, ClassifyCase{"Can you, will you?", -2},
        // "how" with no auxiliary behind it stores nothing.
        ClassifyCase{"How you feel?", 0},
        // A word needs a blank behind it, so "why?" is no hit.
        ClassifyCase{"Tell me why?", 0}, ClassifyCase{"Tell me about it?", 0},
        // The leading blank of the needle guards the word: "somewhere" holds no "where".
        ClassifyCase{"Is it somewhere near?", 1},
        // Letter case plays no part.
        ClassifyCase{"WHY DO I DREAM?", 50}, ClassifyCase{"When will you know?", 30},
        ClassifyCase{"Where is my home?", 40}, ClassifyCase{"How can I grow?", 60},
        ClassifyCase{"Who am I?", 10}, ClassifyCase{"Whose turn is it?", 10},
        ClassifyCase{"Which road should I take?", 20}, ClassifyCase{"What else can I do?", 20},
        ClassifyCase{"Where else would you go?", 40},
        // "However," has no blank behind it; the auxiliary behind the comma leads.
        ClassifyCase{"However, can it work?", 1},
        // "I was" is blanked, the lone "when" at the start does not count, "did" leads.
        ClassifyCase{"When I was young, did I know?", 1},
        // A lone "how" at the start adds a candidate to the one auxiliary.
        ClassifyCase{"How much do you know?", -3},
        // A lone "how" behind the start adds nothing and the grid stays empty.
        ClassifyCase{"Tell me how it works?", 0}, ClassifyCase{"You love me, don't you?", 1},
        // Two stored question words and no start.
        ClassifyCase{"Tell me who knows what it is?", -3},
        // A fifth auxiliary hit overflows.
        ClassifyCase{"Is it, is it, is it, is it, is it?", -1},
        // A fourth question word overflows.
        ClassifyCase{"Who knew who said who did who went?", -1},
        // Overflow on unstored hits alone leaves the grid empty, which is looked at first.
        ClassifyCase{"How far how near how deep how wide?", 0}),
    [](const auto& info) { return NameOf(info.param.Sentence, info.index); });

TEST(ClassifyEntry, LeavesThePreparedFormInTheText) {
    std::string text = "  Do you think I will go?  ";
    SentenceType entryType = SentenceType::None;
    ClassifyEntry(text, entryType);
    EXPECT_EQ(text, " Do you think        go?");
}

struct CheckCase {
    std::int16_t ActiveMethod;
    std::int16_t PairCount;
    const char* Sentence;
    std::int16_t EntryStatus;
    std::int16_t EntryType; // 77 when it must stay as it was
};

// ctest lists a case by what this prints.
void PrintTo(const CheckCase& c, std::ostream* out) {
    *out << c.ActiveMethod << " " << c.Sentence;
}

class CheckEntryTable : public ::testing::TestWithParam<CheckCase> {};

TEST_P(CheckEntryTable, SetsStatusAndType) {
    const CheckCase& c = GetParam();
    const std::string entryText = std::string(1, Tab) + OpenQuote + c.Sentence;
    auto status = static_cast<EntryVerdict>(-500);
    auto entryType = static_cast<SentenceType>(77);
    CheckEntry(entryText, static_cast<WriteMethod>(c.ActiveMethod), c.PairCount, status, entryType);
    EXPECT_EQ(static_cast<std::int16_t>(status), c.EntryStatus) << c.Sentence;
    EXPECT_EQ(static_cast<std::int16_t>(entryType), c.EntryType) << c.Sentence;
}

INSTANTIATE_TEST_SUITE_P(
    Entries, CheckEntryTable,
    ::testing::Values(
        // The first entry of a Dialogue must be longer and denser than later ones.
        CheckCase{1, 0, "Will I be happy?", -3, 77}, CheckCase{1, 0, "Is it?", -2, 77},
        CheckCase{1, 1, "Is it?", -2, 77}, CheckCase{1, 1, "Is it ok?", -3, 77},
        CheckCase{1, 0, "Will tomorrow bring happiness?", 1000, 1},
        CheckCase{1, 1, "Will tomorrow bring happiness?", 1000, 1},
        // Runs of blanks are not folded: two blanks are two gaps.
        CheckCase{1, 1, "Is  it?", -3, 77},
        CheckCase{1, 1, "Will tomorrow bring happiness?   ", 1000, 1},
        CheckCase{1, 1, "Something here is wrong\"", -1, 77},
        // No end mark: a positive type leaves the 0, a bad one replaces it.
        CheckCase{1, 1, "Will tomorrow bring happiness", 0, 1},
        CheckCase{1, 1, "Tomorrow brings happiness for everyone", -10, 0},
        CheckCase{1, 1, "Tomorrow brings happiness for everyone.", 1000, 2},
        // A statement never reaches the classifier, whatever word it opens with.
        CheckCase{1, 1, "Why does everything feel so heavy!", 1000, 2},
        // A comment is only checked at its end.
        CheckCase{4, 0, "Hi.", 1000, 77}, CheckCase{4, 0, "Hi", 0, 77},
        CheckCase{4, 0, "Hi\"", -1, 77},
        // Supposition wants a question.
        CheckCase{2, 1, "Tomorrow brings happiness for everyone.", 2, 77},
        CheckCase{2, 1, "What should I change about my work?", 1000, 20},
        CheckCase{2, 1, "What should I change about my work", 2, 77},
        // Inner marks become commas and start clauses.
        CheckCase{1, 1, "Why me? who knows?", -12, -2},
        CheckCase{1, 1, "If I go. will it rain?", 1000, 1},
        CheckCase{1, 1, "Who knows; what matters now?", -12, -2},
        CheckCase{1, 1, "I wondered who really knew it?", -13, -3},
        CheckCase{1, 1, "Is it, is it, is it, is it, is it?", -11, -1},
        CheckCase{1, 1, "Tell me about the weather?", -10, 0}),
    [](const auto& info) {
        return "Method" + std::to_string(info.param.ActiveMethod) + "_" +
               NameOf(info.param.Sentence, info.index);
    });

TEST(LoadEntryWords, HoldsTheNumberedTables) {
    const EntryWords words = LoadEntryWords();
    EXPECT_EQ(words.AuxWords[1], "will ");
    EXPECT_EQ(words.AuxWords[23], "do ");
    EXPECT_EQ(words.AuxWords[53], "werent ");
    EXPECT_EQ(words.QueryWords[9], "where ");
    EXPECT_EQ(words.QueryWords[15], "why ");
    EXPECT_EQ(words.ElseWord, "else ");
    EXPECT_EQ(words.LinkWords[4], "But ");
}

} // namespace
} // namespace veyrant
