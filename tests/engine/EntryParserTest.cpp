#include "engine/EntryParser.h"

#include "core/Text.h"

#include <gtest/gtest.h>

namespace veyrant {
namespace {

TEST(ClassifyEntry, GivesTheSentenceTypeAndLeavesThePreparedForm) {
    const struct {
        const char* Sentence;
        std::int16_t EntryType;
    } cases[] = {// An auxiliary at the start with "I" behind it is the only clause start.
                 {"Will I be happy?", 1},
                 // Only the question word stands at position 1, so " is " does not compete.
                 {"What is love?", 20},
                 // Trimmed before the blanking, so the opening "I will" is not blanked.
                 {"I will go?", 1},
                 // The inner "I will" is blanked; "Do" leads.
                 {"Do you think I will go?", 1},
                 // One question word and one auxiliary, neither at a start: the question word wins.
                 {"Tell me what is love?", 20},
                 // One question word and no auxiliary: no single candidate.
                 {"I asked who knew it?", -3},
                 // The only start stands behind the comma.
                 {"If I go, will it rain?", 1},
                 // Two starts: position 1 and behind a comma.
                 {"Why me, who knows?", -2},
                 {"Can you, will you?", -2},
                 // "how" with no auxiliary behind it stores nothing.
                 {"How you feel?", 0},
                 // A word needs a blank behind it, so "why?" is no hit.
                 {"Tell me why?", 0},
                 {"Tell me about it?", 0},
                 // The leading blank of the needle guards the word: "somewhere" holds no "where".
                 {"Is it somewhere near?", 1},
                 // Letter case plays no part.
                 {"WHY DO I DREAM?", 50},
                 {"When will you know?", 30},
                 {"Where is my home?", 40},
                 {"How can I grow?", 60},
                 {"Who am I?", 10},
                 {"Whose turn is it?", 10},
                 {"Which road should I take?", 20},
                 {"What else can I do?", 20},
                 {"Where else would you go?", 40},
                 // "However," has no blank behind it; the auxiliary behind the comma leads.
                 {"However, can it work?", 1},
                 // "I was" is blanked, the lone "when" at the start does not count, "did" leads.
                 {"When I was young, did I know?", 1},
                 // A lone "how" at the start adds a candidate to the one auxiliary.
                 {"How much do you know?", -3},
                 // A lone "how" behind the start adds nothing and the grid stays empty.
                 {"Tell me how it works?", 0},
                 {"You love me, don't you?", 1},
                 // Two stored question words and no start.
                 {"Tell me who knows what it is?", -3},
                 // A fifth auxiliary hit overflows.
                 {"Is it, is it, is it, is it, is it?", -1},
                 // A fourth question word overflows.
                 {"Who knew who said who did who went?", -1},
                 // Overflow on unstored hits alone leaves the grid empty, which is looked at first.
                 {"How far how near how deep how wide?", 0}};
    for (const auto& c : cases) {
        std::string text = c.Sentence;
        auto entryType = static_cast<SentenceType>(77);
        ClassifyEntry(text, entryType);
        EXPECT_EQ(static_cast<std::int16_t>(entryType), c.EntryType) << c.Sentence;
    }
    std::string text = "  Do you think I will go?  ";
    SentenceType entryType = SentenceType::None;
    ClassifyEntry(text, entryType);
    EXPECT_EQ(text, " Do you think        go?");
}

TEST(CheckEntry, SetsStatusAndType) {
    const struct {
        std::int16_t ActiveMethod;
        std::int16_t PairCount;
        const char* Sentence;
        std::int16_t EntryStatus;
        std::int16_t EntryType; // 77 when it must stay as it was
    } cases[] = {// The first entry of a Dialogue must be longer and denser than later ones.
                 {1, 0, "Will I be happy?", -3, 77},
                 {1, 0, "Is it?", -2, 77},
                 {1, 1, "Is it?", -2, 77},
                 {1, 1, "Is it ok?", -3, 77},
                 {1, 0, "Will tomorrow bring happiness?", 1000, 1},
                 {1, 1, "Will tomorrow bring happiness?", 1000, 1},
                 // Runs of blanks are not folded: two blanks are two gaps.
                 {1, 1, "Is  it?", -3, 77},
                 {1, 1, "Will tomorrow bring happiness?   ", 1000, 1},
                 {1, 1, "Something here is wrong\"", -1, 77},
                 // No end mark: a positive type leaves the 0, a bad one replaces it.
                 {1, 1, "Will tomorrow bring happiness", 0, 1},
                 {1, 1, "Tomorrow brings happiness for everyone", -10, 0},
                 {1, 1, "Tomorrow brings happiness for everyone.", 1000, 2},
                 // A statement never reaches the classifier, whatever word it opens with.
                 {1, 1, "Why does everything feel so heavy!", 1000, 2},
                 // A comment is only checked at its end.
                 {4, 0, "Hi.", 1000, 77},
                 {4, 0, "Hi", 0, 77},
                 {4, 0, "Hi\"", -1, 77},
                 // Supposition wants a question.
                 {2, 1, "Tomorrow brings happiness for everyone.", 2, 77},
                 {2, 1, "What should I change about my work?", 1000, 20},
                 {2, 1, "What should I change about my work", 2, 77},
                 // Inner marks become commas and start clauses.
                 {1, 1, "Why me? who knows?", -12, -2},
                 {1, 1, "If I go. will it rain?", 1000, 1},
                 {1, 1, "Who knows; what matters now?", -12, -2},
                 {1, 1, "I wondered who really knew it?", -13, -3},
                 {1, 1, "Is it, is it, is it, is it, is it?", -11, -1},
                 {1, 1, "Tell me about the weather?", -10, 0}};
    for (const auto& c : cases) {
        const std::string entryText = std::string(1, Tab) + OpenQuote + c.Sentence;
        auto status = static_cast<EntryVerdict>(-500);
        auto entryType = static_cast<SentenceType>(77);
        CheckEntry(entryText, static_cast<WriteMethod>(c.ActiveMethod), c.PairCount, status,
                   entryType);
        EXPECT_EQ(static_cast<std::int16_t>(status), c.EntryStatus) << c.Sentence;
        EXPECT_EQ(static_cast<std::int16_t>(entryType), c.EntryType) << c.Sentence;
    }
}

} // namespace
} // namespace veyrant
