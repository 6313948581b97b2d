// The kept plans and their arithmetic must give exactly what the plain routines give by
// re-reading the plan file and counting up to the target.

#include "EngineFixture.h"
#include "engine/KeptPlans.h"
#include "engine/PlanFileReader.h"

#include <gtest/gtest.h>

namespace veyrant {
namespace {

using OnTheShippedPlans = testing::EngineFixture;

constexpr std::int64_t EnumerableCombos = 5000;

TEST_F(OnTheShippedPlans, KeptPlansGiveTheSequenceOfCountingUp) {
    const EngineTables& tables = TheEngine.Tables();
    const auto planFile = Folder.Exe() / "qdr41.mtx";
    KeptPlans kept(ShippedPlanFile(), tables);
    Random targets;
    targets.Seed(1234.5f);
    int compared = 0;
    for (const std::string kind : {"Message", "Section"}) {
        const int count = kind == "Message" ? tables.MessageCount : tables.SectionCount;
        for (std::int16_t number = 1; number <= count; ++number) {
            MessagePlan plan;
            LoadPlan(planFile, kind, number, tables, plan);
            const std::int64_t combos = kept.TrueCombos(kind, number);
            const bool every = combos <= EnumerableCombos;
            const std::int64_t tries = every ? combos + 2 : 300;
            for (std::int64_t k = 0; k < tries; ++k) {
                const auto target = static_cast<std::int32_t>(
                    every ? k : targets.Scaled(static_cast<std::int32_t>(combos + 1)));
                std::vector<std::int16_t> fast;
                kept.AppendSequence(kind, number, target, fast);
                ASSERT_EQ(fast, ReadSequence(GenMatrixSeq(plan, target)))
                    << kind << " " << number << " target " << target;
                ++compared;
            }
        }
    }
    EXPECT_GT(compared, 100);
}

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

} // namespace
} // namespace veyrant
