#include "core/Text.h"
#include "dialogue/MirrorDriver.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

// The window over the program's own parser and composer with the starter content.
TEST(MirrorComposed, ADialogueOfSeveralCyclesWithTheRealEngine) {
    MirrorDriver driver(1, MirrorDriver::Replies::Composed);
    driver.mirror->StartWindow();
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse).substr(0, 14), "Inspiration\r\n\t");
    EXPECT_GT(driver.Text(MirrorControl::txtResponse).size(), 20u);
    driver.mirror->Click(MirrorControl::cmdConverse);

    const std::string entries[] = {
        "Why do I hesitate before every important decision?",
        "I feel that my work no longer means what it once did.",
        "How can I be kinder to myself on the difficult days?",
        "What should I do about the friend I have not called?",
    };
    int answered = 0;
    for (const auto& entry : entries) {
        driver.Clock.Seconds += 37.5f;
        driver.Converse(entry);
        ASSERT_EQ(driver.State().EntryFailed, 0) << driver.Text(MirrorControl::txtResponse);
        const std::string response = driver.Text(MirrorControl::txtResponse);
        if (response.rfind(">> Regarding", 0) == 0) {
            driver.Enter();
            driver.Converse(entry);
        }
        ASSERT_EQ(driver.Text(MirrorControl::txtResponse).substr(0, 1), "\t");
        EXPECT_GT(driver.Text(MirrorControl::txtResponse).size(), 10u);
        answered += driver.State().PairState == 1 ? 1 : 0;
        driver.Enter();
    }
    EXPECT_EQ(driver.State().PairCount, answered);
    EXPECT_EQ(driver.State().CycleCount >= 4, true);

    // The program's parser refuses an entry with no end mark.
    driver.Converse("Why does the evening feel so long lately");
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse),
              ">> Your entry is not punctuated. Add your period or question mark, then press "
              "'Enter'.");
    EXPECT_EQ(driver.State().AwaitingEnter, 0);
    driver.Type("?");
    driver.Enter();
    EXPECT_EQ(driver.State().EntryFailed, 0);
}

} // namespace
} // namespace veyrant::testing
