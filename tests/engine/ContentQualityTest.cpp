// What a reader would meet in composed replies, where a rule can be checked by machine: too
// little variety, a word said twice, the user's "I" put in the Sagrel's mouth, a claim about
// what the user feels, believes or has not realised, and replies that all begin alike. Each
// message is drawn at many moments of the day, as the Write window draws it.

#include "EngineFixture.h"
#include "core/Cp1252.h"
#include "core/FieldReader.h"
#include "core/Text.h"
#include "engine/MessagePlan.h"

#include <algorithm>
#include <cctype>
#include <gmock/gmock.h>
#include <iterator>
#include <map>
#include <set>

namespace veyrant {
namespace {

constexpr int DrawnReplies = 10'000;
constexpr char EmDash = '\x97';

// The replies a plan allows, given what each number of its terms allows: the product
// distributes over the slots, so a block counts the product over its slots of the sum over
// their choices. Counted in floating point, as counts grow past 64 bits when sections multiply.
double PlanVariety(const MessagePlan& plan, const std::vector<double>& byNumber) {
    double total = 0;
    for (std::size_t b = 1; b <= static_cast<std::size_t>(plan.BlockCount); ++b) {
        double block = 1;
        for (int s = 1; s <= SlotsPerBlock; ++s) {
            double slot = 0;
            for (int c = 1; c <= plan.SlotCount[b][s]; ++c) {
                double term = 1;
                const auto choice = static_cast<std::size_t>(plan.SlotChoice[b][s][c]);
                for (const std::int16_t number : ReadSequence(plan.TermText[choice])) {
                    term *= byNumber.at(static_cast<std::size_t>(number));
                }
                slot += term;
            }
            block *= slot;
        }
        total += block;
    }
    return total;
}

// The words of a text split at blanks and dashes, each with whatever marks cling to it, so
// that "you, you" is two different words and "through through" the same one twice.
std::vector<std::string> BlankWords(std::string text) {
    std::replace(text.begin(), text.end(), EmDash, ' ');
    std::istringstream words(Lower(text));
    return {std::istream_iterator<std::string>(words), std::istream_iterator<std::string>()};
}

// The user's own voice may stand only as words offered to try, which the content frames
// behind a dash in the same sentence ("Try saying—I can rest now.").
bool HasUnframedFirstPerson(const std::string& text) {
    static const std::set<std::string> firstPerson = {"i",  "i'm",    "i've", "me",
                                                      "my", "myself", "mine"};
    bool framed = false;
    std::string word;
    for (const char c : text + ".") {
        if (std::isalpha(static_cast<unsigned char>(c)) != 0 || c == '\'') {
            word += c;
            continue;
        }
        // Only the capital "I" is the pronoun.
        if (!framed && word != "i" && firstPerson.contains(Lower(word))) {
            return true;
        }
        word.clear();
        framed = c == EmDash || (framed && c != '.' && c != '?' && c != '!');
    }
    return false;
}

// Frames that tell the user what they feel, believe or have not realised, or shapes that read
// as machine-made, one a line in lower case; comments begin with '#'.
bool HasFaultyFrame(const std::string& text) {
    static const std::vector<std::string> frames = testing::ListedLines(
        std::filesystem::path(VEYRANT_TEST_DATA) / "engine" / "faulty-frames.txt");
    const std::string lower = Lower(text);
    return std::any_of(frames.begin(), frames.end(), [&](const std::string& frame) {
        return lower.find(frame) != std::string::npos;
    });
}

class ContentQuality : public testing::EngineFixture,
                       public ::testing::WithParamInterface<std::int16_t> {
protected:
    // The replies a message allows: each section counted over its components' rows, then the
    // message over its sections. The plan file holds the messages first, then the sections.
    double MessageVariety(std::int16_t message) {
        const EngineTables& tables = TheEngine.Tables();
        const std::string planFile(ShippedPlanFile());
        FieldReader reader(planFile);
        std::vector<MessagePlan> messages(static_cast<std::size_t>(tables.MessageCount) + 1);
        for (std::size_t m = 1; m < messages.size(); ++m) {
            ReadPlan(reader, messages[m]);
        }
        std::vector<double> rows(tables.ComponentRows.begin(), tables.ComponentRows.end());
        std::vector<double> sections(static_cast<std::size_t>(tables.SectionCount) + 1);
        for (std::size_t s = 1; s < sections.size(); ++s) {
            MessagePlan section;
            ReadPlan(reader, section);
            sections[s] = PlanVariety(section, rows);
        }
        return PlanVariety(messages.at(static_cast<std::size_t>(message)), sections);
    }
};

TEST_P(ContentQuality, VariedRepliesWithNoDoubledWordUnframedFirstPersonOrBeliefClaim) {
    const std::int16_t message = GetParam();
    EXPECT_GE(MessageVariety(message), 1'000'000);
    // The verdicts on an idea, the remarks and the interjection open with the set verdicts their
    // groups are made of ("That question ..."), so only the answers and the Inspiration must
    // vary their openings. The first person is the user's own only in the answers and in the
    // remark on a question; elsewhere the Sagrel may say what it does and does not answer.
    const bool mustVaryOpening = message <= 8 || message == 15;
    const bool keepsFirstPersonFramed = message <= 8 || message == 12;
    TheEngine.SeedSeries();
    std::set<std::string> texts;
    std::map<std::string, std::set<std::string>> faulty; // the replies with each fault
    std::map<std::string, int> openings;
    for (int k = 0; k < DrawnReplies; ++k) {
        TheClock.Seconds = 120.0f + 8.5f * static_cast<float>(k);
        TheEngine.SeriesSeed = TheClock.Timer();
        TheEngine.StretchSeeds();
        const std::string text = Composed(message);
        ASSERT_GT(text.size(), 2u) << "reply " << k << " came out empty";
        texts.insert(text);
        const auto words = BlankWords(text);
        for (const auto& [fault, found] :
             {std::pair{"doubled word",
                        std::adjacent_find(words.begin(), words.end()) != words.end()},
              {"unframed first person", keepsFirstPersonFramed && HasUnframedFirstPerson(text)},
              {"belief claim", HasFaultyFrame(text)}}) {
            if (found) {
                faulty[fault].insert(Cp1252ToUtf8(text));
            }
        }
        std::string opening;
        for (std::size_t i = 0; i < std::min<std::size_t>(words.size(), 3); ++i) {
            opening += words[i] + " ";
        }
        ++openings[opening];
    }
    EXPECT_GE(static_cast<double>(texts.size()), 0.99 * DrawnReplies);
    EXPECT_THAT(faulty, ::testing::IsEmpty());
    EXPECT_TRUE(Windows.Boxes.empty());
    const auto most =
        std::max_element(openings.begin(), openings.end(),
                         [](const auto& a, const auto& b) { return a.second < b.second; });
    // At most a tenth of the replies may share their first three words.
    EXPECT_TRUE(!mustVaryOpening || most->second <= DrawnReplies / 10)
        << "\"" << Cp1252ToUtf8(most->first) << "...\" opens " << most->second << " of "
        << DrawnReplies;
}

// Messages 1 to 8 answer, 9 and 10 give the verdict on an idea, 11 to 14 remark, 15 is the
// Inspiration and 16 the interjection.
INSTANTIATE_TEST_SUITE_P(Messages, ContentQuality, ::testing::Range<std::int16_t>(1, 17),
                         [](const auto& info) { return "Message" + std::to_string(info.param); });

} // namespace
} // namespace veyrant
