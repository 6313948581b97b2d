#include "EngineFixture.h"
#include "MessageRequests.h"
#include "core/FieldReader.h"
#include "engine/MessagePlan.h"

#include <cstdint>
#include <limits>
#include <set>
#include <string>
#include <vector>

namespace veyrant {
namespace {

// The variety a reply needs: the plans and stocks must allow a million different replies, and
// replies composed at different moments must seldom repeat one another.
constexpr std::uint64_t LeastReplies = 1'000'000;
constexpr int DrawnReplies = 10'000;
constexpr double LeastDistinctShare = 0.99;

// Counts of replies grow past 64 bits when sections multiply; above that they stay at the cap,
// which is still far above what the test asks for.
constexpr std::uint64_t CountCap = std::numeric_limits<std::uint64_t>::max();

std::uint64_t Times(std::uint64_t a, std::uint64_t b) {
    std::uint64_t product = 0;
    return __builtin_mul_overflow(a, b, &product) ? CountCap : product;
}

std::uint64_t Plus(std::uint64_t a, std::uint64_t b) {
    std::uint64_t sum = 0;
    return __builtin_add_overflow(a, b, &sum) ? CountCap : sum;
}

// The replies a plan allows, given what each number of its terms allows: the sum over its
// combinations of the product over the numbers they name. The product distributes over the
// slots, so a block counts the product over its slots of the sum over their choices.
std::uint64_t PlanVariety(const MessagePlan& plan, const std::vector<std::uint64_t>& byNumber) {
    std::uint64_t total = 0;
    for (int b = 1; b <= plan.BlockCount; ++b) {
        std::uint64_t block = 1;
        for (int s = 1; s <= SlotsPerBlock; ++s) {
            std::uint64_t slot = 0;
            const auto& choices = plan.SlotChoice[static_cast<std::size_t>(b)][s];
            for (int c = 1; c <= plan.SlotCount[static_cast<std::size_t>(b)][s]; ++c) {
                std::uint64_t term = 1;
                const auto& text = plan.TermText[static_cast<std::size_t>(choices[c])];
                for (const std::int16_t number : ReadSequence(text)) {
                    term = Times(term, byNumber.at(static_cast<std::size_t>(number)));
                }
                slot = Plus(slot, term);
            }
            block = Times(block, slot);
        }
        total = Plus(total, block);
    }
    return total;
}

using testing::Compose;
using testing::MessageRequest;
using testing::Messages;

class ContentVariety : public testing::EngineFixture,
                       public ::testing::WithParamInterface<MessageRequest> {
protected:
    // The replies a message allows: each section counted over its components' rows, then the
    // message over its sections. The plan file holds the messages first, then the sections.
    std::uint64_t MessageVariety(std::int16_t message) {
        const EngineTables& tables = TheEngine.Tables();
        const std::string planFile(ShippedPlanFile());
        FieldReader reader(planFile);
        std::vector<MessagePlan> messages(static_cast<std::size_t>(tables.MessageCount) + 1);
        for (int m = 1; m <= tables.MessageCount; ++m) {
            ReadPlan(reader, messages[static_cast<std::size_t>(m)]);
        }
        std::vector<std::uint64_t> rows(tables.ComponentRows.begin(), tables.ComponentRows.end());
        std::vector<std::uint64_t> sections(static_cast<std::size_t>(tables.SectionCount) + 1);
        for (int s = 1; s <= tables.SectionCount; ++s) {
            MessagePlan section;
            ReadPlan(reader, section);
            sections[static_cast<std::size_t>(s)] = PlanVariety(section, rows);
        }
        return PlanVariety(messages.at(static_cast<std::size_t>(message)), sections);
    }
};

TEST_P(ContentVariety, AllowsAMillionRepliesAndSeldomRepeatsOne) {
    const MessageRequest& request = GetParam();
    const std::uint64_t replies = MessageVariety(request.Message);
    RecordProperty("Replies", std::to_string(replies));
    EXPECT_GE(replies, LeastReplies);

    TheEngine.SeedSeries();
    std::set<std::string> texts;
    for (int k = 0; k < DrawnReplies; ++k) {
        // Readings spread over the day, each one a different clock value.
        TheClock.Seconds = 120.0f + 8.5f * static_cast<float>(k);
        TheEngine.SeriesSeed = TheClock.Timer();
        TheEngine.StretchSeeds();
        const std::string text = Compose(TheEngine, request);
        ASSERT_GT(text.size(), 2u) << "reply " << k << " came out empty";
        texts.insert(text);
    }
    RecordProperty("DistinctReplies", std::to_string(texts.size()));
    EXPECT_GE(static_cast<double>(texts.size()), LeastDistinctShare * DrawnReplies);
    EXPECT_TRUE(Windows.Boxes.empty());
}

INSTANTIATE_TEST_SUITE_P(Messages, ContentVariety, ::testing::ValuesIn(Messages),
                         [](const auto& info) { return std::string(info.param.Name); });

} // namespace
} // namespace veyrant
