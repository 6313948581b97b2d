#include "core/Text.h"
#include "dialogue/MirrorDriver.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

// The window over the program's own parser and composer with the starter content.
TEST(MirrorComposed, ADialogueOfSeveralCyclesWithTheRealEngine) {
    MirrorDriver driver(1, MirrorDriver::Replies::Composed);
    driver.mirror->StartWindow();
    EXPECT_EQ(driver.Text(txtResponse).substr(0, 14), "Inspiration\r\n\t");
    driver.Click(cmdConverse);

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
        ASSERT_EQ(driver.State().EntryFailed, 0) << driver.Text(txtResponse);
        const std::string response = driver.Text(txtResponse);
        if (response.rfind(">> Regarding", 0) == 0) {
            driver.Enter();
            driver.Converse(entry);
        }
        ASSERT_EQ(driver.Text(txtResponse).substr(0, 1), "\t");
        answered += driver.State().PairState == PairShown::Kept ? 1 : 0;
        driver.Enter();
    }
    EXPECT_EQ(driver.State().PairCount, answered);
    EXPECT_GE(driver.State().CycleCount, 4);

    // The program's parser refuses an entry with no end mark.
    driver.Converse("Why does the evening feel so long lately");
    EXPECT_EQ(driver.Text(txtResponse),
              ">> Your entry is not punctuated. Add your period or question mark, then press "
              "'Enter'.");
    EXPECT_EQ(driver.State().AwaitingEnter, 0);
    driver.Type("?");
    driver.Enter();
    EXPECT_EQ(driver.State().EntryFailed, 0);
}

const std::string YesNoRefusal = ">> Questions asking for a yes-no-type answer are not valid for "
                                 "Supposition. Press 'Enter' to start again.";

// An entry that the parser refuses before it reads the sentence keeps the type of the entry
// before: after a yes-or-no question in Suppose, every such refusal is the yes-or-no one.
TEST(MirrorComposed, AfterAYesNoQuestionAnEarlyRefusalStaysTheYesNoOne) {
    for (const char* early : {"Tomorrow will bring happiness for all.", "Tomorrow, maybe, perhaps?",
                              "Is it not so, is it?", "Will tomorrow bring happiness",
                              "Will tomorrow bring happiness\""}) {
        SCOPED_TRACE(early);
        MirrorDriver driver(1, MirrorDriver::Replies::Composed);
        driver.mirror->StartWindow();
        driver.Click(cmdSuppose);
        driver.Converse("Will tomorrow bring happiness for all?");
        ASSERT_EQ(driver.Text(txtResponse), YesNoRefusal);
        driver.Enter();
        driver.Converse(early);
        EXPECT_EQ(driver.Text(txtResponse), YesNoRefusal);
        EXPECT_EQ(driver.Text(txtNote), "Press 'Enter' to start again.");
        EXPECT_EQ(driver.State().AwaitingEnter, 1);
        // A question the parser reads replaces the type and is accepted.
        driver.Enter();
        driver.Converse("What would bring happiness to us all?");
        EXPECT_EQ(driver.State().EntryFailed, 0) << driver.Text(txtResponse);
        EXPECT_EQ(driver.State().CycleCount, 1);
    }
}

} // namespace
} // namespace veyrant::testing
