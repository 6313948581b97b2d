#include "engine/EntryParser.h"

#include "core/Text.h"

#include <gtest/gtest.h>
#include <tuple>
#include <vector>

namespace veyrant {
namespace {

// A question word or an auxiliary counts at the start or behind a comma, a question word also
// alone; "I" with an auxiliary is blanked after the trim; a word needs a blank on each side. Two
// starts give -2, no single candidate -3; a fifth auxiliary or a fourth question word
// overflows (-1), but overflow on unstored hits alone leaves the grid empty, looked at first.
TEST(ClassifyEntry, GivesTheSentenceTypeAndLeavesThePreparedForm) {
    const std::pair<std::int16_t, std::vector<const char*>> cases[] = {
        {1,
         {"Will I be happy?", "I will go?", "Do you think I will go?", "If I go, will it rain?",
          "Is it somewhere near?", "However, can it work?", "You love me, don't you?"}},
        {10, {"Who am I?"}},
        {20,
         {"What is love?", "Tell me what is love?", "Which road should I take?",
          "What else can I do?"}},
        {30, {"When will you know?"}},
        {40, {"Where is my home?"}},
        {50, {"WHY DO I DREAM?"}},
        {60, {"How can I grow?"}},
        {0,
         {"How you feel?", "Tell me why?", "Tell me about it?", "Tell me how it works?",
          "How far how near how deep how wide?"}},
        {-1, {"Is it, is it, is it, is it, is it?", "Who knew who said who did who went?"}},
        {-2, {"Why me, who knows?", "Can you, will you?"}},
        {-3, {"I asked who knew it?", "How much do you know?", "Tell me who knows what it is?"}}};
    for (const auto& [expected, sentences] : cases) {
        for (const char* sentence : sentences) {
            std::string text = sentence;
            auto entryType = static_cast<SentenceType>(77);
            ClassifyEntry(text, entryType);
            EXPECT_EQ(static_cast<std::int16_t>(entryType), expected) << sentence;
        }
    }
    std::string text = "  Do you think I will go?  ";
    SentenceType entryType = SentenceType::None;
    ClassifyEntry(text, entryType);
    EXPECT_EQ(text, " Do you think        go?");
}

TEST(CheckEntry, SetsStatusAndType) {
    // Method, pairs so far, entry, its status and its type (77: left as it was).
    const std::tuple<int, std::int16_t, const char*, int, int> cases[] = {
        {1, 0, "Will I be happy?", -3, 77}, // a first entry must be longer and denser
        {1, 1, "Is it?", -2, 77},
        {1, 1, "Is  it?", -3, 77}, // runs of blanks are not folded: two blanks are two gaps
        {1, 1, "Will tomorrow bring happiness?   ", 1000, 1},
        {1, 1, "Something here is wrong\"", -1, 77},
        {1, 1, "Will tomorrow bring happiness", 0, 1}, // no end mark: a good type leaves the 0
        {1, 1, "Tomorrow brings happiness for everyone", -10, 0}, // and a bad one replaces it
        {1, 1, "Tomorrow brings happiness for everyone.", 1000, 2},
        {1, 1, "Why does everything feel so heavy!", 1000, 2}, // a statement is not classified
        {4, 0, "Hi.", 1000, 77}, // a comment is only checked at its end
        {4, 0, "Hi", 0, 77},
        {4, 0, "Hi\"", -1, 77},
        {2, 1, "Tomorrow brings happiness for everyone.", 2, 77}, // Supposition wants a question
        {2, 1, "What should I change about my work?", 1000, 20},
        {1, 1, "Why me? who knows?", -12, -2}, // inner marks become commas and start clauses
        {1, 1, "I wondered who really knew it?", -13, -3},
        {1, 1, "Is it, is it, is it, is it, is it?", -11, -1},
        {1, 1, "Tell me about the weather?", -10, 0}};
    for (const auto& [method, pairs, sentence, wantedStatus, wantedType] : cases) {
        auto status = static_cast<EntryVerdict>(-500);
        auto entryType = static_cast<SentenceType>(77);
        CheckEntry(std::string(1, Tab) + OpenQuote + sentence, static_cast<WriteMethod>(method),
                   pairs, status, entryType);
        EXPECT_EQ(static_cast<int>(status), wantedStatus) << sentence;
        EXPECT_EQ(static_cast<int>(entryType), wantedType) << sentence;
    }
}

} // namespace
} // namespace veyrant
