#include "core/KeyCodes.h"
#include "core/Text.h"
#include "dialogue/MirrorDriver.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

const std::string Prefix{Tab, OpenQuote};
const std::string Question = "why do I keep putting off the letter to my brother?";
const std::string Statement = "I feel calmer about the move than I expected to feel.";

TEST(MirrorCycle, NewDialogueOffersTheMethodsAndTheInspiration) {
    MirrorDriver driver;
    driver.mirror->StartWindow();
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::None);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "Inspiration\r\n\tInspiration number 1.");
    EXPECT_EQ(driver.Text(MirrorControl::txtSaved).substr(0, 39),
              "Suggestion 1\r\n\r\nDialogue Library Status");
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Reflect upon the Inspiration and Suggestion to compose your thoughts before you "
              "begin. Click either text to change it.");
    EXPECT_FALSE(driver.Box(MirrorControl::cmdNew).Visible);
    EXPECT_FALSE(driver.Box(MirrorControl::cmdRemove).Visible);
    EXPECT_FALSE(driver.Box(MirrorControl::txtMirror).Enabled);
    EXPECT_EQ(driver.mirror->Controls().Title,
              "Veyrant Sagrel 4.1 -- Written Dialogues of Self-Reflection");
}

// The entry is accepted, "Processing" shows before the reply is composed, the pair is kept, and
// the next Enter begins a fresh entry below the response.
TEST(MirrorCycle, ConverseEntryIsAcceptedAnsweredAndKept) {
    MirrorDriver driver;
    driver.StartConverse();
    EXPECT_EQ(driver.mirror->Controls().Title,
              "Veyrant Sagrel -- Conversation -- Sunday, 12:00 pm, November 22, 2026");
    EXPECT_EQ(driver.Box(MirrorControl::txtResponse).Background, Colour::ColourReady);
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "Cancel");
    std::vector<std::string> painted;
    driver.mirror->SetPainter([&] { painted.push_back(driver.Text(MirrorControl::txtResponse)); });

    driver.Engine.Judgements.push_back({1, 50});
    driver.Converse(Question);
    ASSERT_FALSE(painted.empty());
    EXPECT_EQ(painted.front(), "Processing . . .");
    EXPECT_GE(driver.Layer.Yields, 2);
    const std::string entry = Quoted(Question);
    EXPECT_EQ(driver.Text(MirrorControl::txtMirror), entry);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "\tAnswer 1 to type 50.");
    EXPECT_EQ(driver.Box(MirrorControl::txtResponse).Background, Colour::ColourAdded);
    EXPECT_EQ(driver.State().DialogueText, "\r\n\r\n" + entry + "\r\n\tAnswer 1 to type 50.");
    EXPECT_EQ(driver.Text(MirrorControl::txtSaved), "Dialogue" + driver.State().DialogueText);
    EXPECT_EQ(driver.State().PairCount, 1);
    EXPECT_EQ(driver.State().CycleCount, 1);
    EXPECT_EQ(driver.Text(MirrorControl::cmdRemove), "Remove");
    EXPECT_TRUE(driver.Box(MirrorControl::cmdRemove).Enabled);
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "Finish");
    EXPECT_TRUE(driver.Box(MirrorControl::cmdDisplay).Enabled);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Text was added into the Dialogue. Click 'Remove' to erase it, before continuing. "
              "Press 'Enter' to continue.");
    // The entry stands above the response once answered, and below it for the next one.
    EXPECT_LT(driver.Box(MirrorControl::txtMirror).Top, driver.Box(MirrorControl::txtResponse).Top);
    EXPECT_EQ(driver.Engine.RollPercents, std::vector<int>{25});
    EXPECT_EQ(driver.Engine.CheckedEntries.front(), Prefix + Question);

    driver.Enter();
    EXPECT_EQ(driver.State().AwaitingEnter, 0);
    EXPECT_EQ(driver.Text(MirrorControl::txtMirror), Prefix);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), driver.State().InspirationView);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Type your question or statement. Then press 'Enter' for the Sagrel response.");
    EXPECT_EQ(driver.Text(MirrorControl::cmdRemove), "Edit");
    EXPECT_FALSE(driver.Box(MirrorControl::cmdRemove).Enabled);
    EXPECT_GT(driver.Box(MirrorControl::txtMirror).Top, driver.Box(MirrorControl::txtResponse).Top);
}

TEST(MirrorCycle, ClosingTheWindowKeepsARunningDialogueForNextTime) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.mirror->Unload();
    EXPECT_FALSE(driver.Buffers.ReadWorkBuffers().has_value()); // nothing kept yet
    driver.Converse(Question);
    driver.mirror->Unload();
    const auto prior = driver.Buffers.ReadWorkBuffers();
    ASSERT_TRUE(prior.has_value());
    EXPECT_EQ(prior->Buffers.DialogueText, driver.State().DialogueText);
    EXPECT_EQ(prior->Buffers.PairCount, 1);
    EXPECT_FALSE(driver.Box(MirrorControl::txtMirror).Enabled);
}

TEST(MirrorCycle, RemarkStaysOutUntilKeptAndKeepRemoveRestoreTheTextExactly) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.Converse(Statement);
    driver.Enter();
    const std::string before = driver.State().DialogueText;

    driver.Engine.Rolls.push_back(0);
    driver.Converse(Question);
    EXPECT_EQ(driver.Text(MirrorControl::cmdRemove), "Keep");
    EXPECT_EQ(driver.Box(MirrorControl::txtResponse).Background, Colour::ColourOut);
    EXPECT_EQ(driver.Box(MirrorControl::txtNote).Ink, Colour::InkWarn);
    EXPECT_EQ(driver.State().DialogueText, before);
    EXPECT_EQ(driver.State().PairCount, 1);

    driver.mirror->Click(MirrorControl::cmdRemove);
    const std::string kept = driver.State().DialogueText;
    EXPECT_EQ(kept, before + "\r\n\r\n" + Quoted(Question) + "\r\n\tRemark 2 on type 2.");
    EXPECT_EQ(driver.State().PairCount, 2);
    EXPECT_EQ(driver.Text(MirrorControl::cmdRemove), "Remove");
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Text was kept in the Dialogue. Click 'Remove' to erase it, before continuing. "
              "Press 'Enter' to continue.");

    driver.mirror->Click(MirrorControl::cmdRemove);
    EXPECT_EQ(driver.State().DialogueText, before);
    EXPECT_EQ(driver.Text(MirrorControl::txtSaved), "Dialogue" + before);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Text was removed from the Dialogue. Click 'Keep' to retain it, before continuing. "
              "Press 'Enter' to continue.");
    driver.mirror->Click(MirrorControl::cmdRemove);
    EXPECT_EQ(driver.State().DialogueText, kept);
}

TEST(MirrorCycle, FirstRemarkLeavesCancelAndNoDisplayUntilKept) {
    MirrorDriver driver;
    driver.StartConverse();
    EXPECT_EQ(driver.Text(MirrorControl::txtSaved), "Dialogue");
    driver.Engine.Rolls.push_back(0);
    driver.Converse(Question);
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "Cancel");
    EXPECT_FALSE(driver.Box(MirrorControl::cmdDisplay).Enabled);
    EXPECT_EQ(driver.Text(MirrorControl::txtSaved), "Dialogue");
    driver.mirror->Click(MirrorControl::cmdRemove);
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "Finish");
    EXPECT_TRUE(driver.Box(MirrorControl::cmdDisplay).Enabled);
    driver.mirror->Click(MirrorControl::cmdRemove);
    EXPECT_EQ(driver.Text(MirrorControl::txtSaved), "Dialogue");
}

// Removing a pair takes it out of the Dialogue, not out of the count that brings the notice.
TEST(MirrorCycle, RemovedPairsStillBringTheNotice) {
    MirrorDriver driver;
    driver.Draws.Draws = {0.05f}; // CycleGoal 3
    driver.StartConverse();
    for (int cycle = 0; cycle < 3; ++cycle) {
        driver.Converse(Question);
        driver.mirror->Click(MirrorControl::cmdRemove);
        if (cycle < 2) {
            driver.Enter();
        }
    }
    EXPECT_EQ(driver.State().PairCount, 0);
    driver.Engine.Rolls.push_back(0);
    driver.Enter();
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse),
              ">> Regarding the conversation. To continue, press 'Enter'.\r\n\tThe talk has "
              "turned inward.");
}

// Each refusal shows its message and instruction; the entry keeps its text and the caret
// leaves it only when the entry must begin again.
TEST(MirrorCycle, ARejectionShowsItsMessageAndInstruction) {
    const std::string startAgain = "Press 'Enter' to start again.";
    const struct {
        int Status, Method;
        std::string Message, Instruction;
        int AwaitingEnter;
    } cases[] = {{-1, 1,
                  ">> Do not add a quotation mark at the end of your entry. That is done for you "
                  "automatically. Backspace out the quote, then press 'Enter' to continue.",
                  "Backspace out the quote, then press 'Enter' to continue.", 0},
                 {0, 1,
                  ">> Your entry is not punctuated. Add your period or question mark, then press "
                  "'Enter'.",
                  "Enter your punctuation, then press 'Enter' to continue.", 0},
                 {-2, 1,
                  ">> Insufficient number of words. Add more content to your entry. Press 'Enter' "
                  "to start again.",
                  startAgain, 1},
                 {-3, 1,
                  ">> Insufficient number of meaningful words. Add complexity to your entry. "
                  "Press 'Enter' to start again.",
                  startAgain, 1},
                 {-10, 1,
                  ">> The syntax of your entry is not clear. Use simple, properly-spelled "
                  "language that asks a question or makes a statement. Press 'Enter' to start "
                  "again.",
                  startAgain, 1},
                 {-10, 2,
                  ">> The syntax of your entry is not clear. Use simple, properly-spelled "
                  "language that asks a Supposition-type question. Press 'Enter' to start again.",
                  startAgain, 1},
                 {-11, 1,
                  ">> The subject of your entry is not clear. Keep it simple. Avoid unnecessary "
                  "language. Break up complex sentences with a comma. Press 'Enter' to start "
                  "again.",
                  startAgain, 1},
                 {-12, 2,
                  ">> The point of your entry is not clear. Ask a direct Supposition-type "
                  "question. Use commas to separate phrases. Press 'Enter' to start again.",
                  startAgain, 1},
                 {-13, 1,
                  ">> The meaning of your entry is not clear. Ask a direct question or make a "
                  "simple statement. Break up complex sentences with a comma. Press 'Enter' to "
                  "start again.",
                  startAgain, 1},
                 {-14, 1,
                  ">> The meaning of your entry cannot be deciphered. Ask a direct question or "
                  "make a simple statement. Break up complex sentences with a comma. Press "
                  "'Enter' to start again.",
                  startAgain, 1},
                 {2, 2,
                  ">> Statements are not valid for Supposition. Press 'Enter' to start again.",
                  startAgain, 1},
                 {-100, 2,
                  ">> Questions asking for a yes-no-type answer are not valid for Supposition. "
                  "Press 'Enter' to start again.",
                  startAgain, 1}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Message);
        MirrorDriver driver;
        driver.mirror->StartWindow();
        driver.mirror->Click(c.Method == 2 ? MirrorControl::cmdSuppose
                                           : MirrorControl::cmdConverse);
        driver.Engine.Judgements.push_back({c.Status, c.Status == -100 ? 1 : 2});
        driver.Converse(Question);
        EXPECT_EQ(driver.Text(MirrorControl::txtResponse), c.Message);
        EXPECT_EQ(driver.Box(MirrorControl::txtResponse).Background, Colour::ColourError);
        EXPECT_EQ(driver.Text(MirrorControl::txtNote), c.Instruction);
        EXPECT_EQ(driver.State().AwaitingEnter, c.AwaitingEnter);
        EXPECT_EQ(driver.State().EntryFailed, 1);
        EXPECT_EQ(driver.State().CycleCount + driver.State().PairCount, 0);
        EXPECT_FALSE(driver.Box(MirrorControl::cmdRemove).Enabled);
        EXPECT_EQ(driver.Text(MirrorControl::txtMirror), Prefix + Question);
        EXPECT_EQ(driver.Box(MirrorControl::txtMirror).Caret == 0, c.AwaitingEnter == 1);
        if (c.AwaitingEnter == 1) { // the next Enter begins the entry again
            driver.Enter();
            EXPECT_EQ(driver.Text(MirrorControl::txtMirror), Prefix);
            EXPECT_EQ(driver.State().EntryFailed, 0);
            EXPECT_EQ(driver.Box(MirrorControl::txtResponse).Background, Colour::ColourReady);
        }
    }
}

TEST(MirrorCycle, TooShortAndTooLongAreJudgedBeforeTheParser) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.Converse("Why me?");
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse),
              ">> Your entry is too short. Add more detail to clarify its meaning until the "
              "display status to the right no longer shows 'X'. Or click 'Rewrite' or the text "
              "to begin again.");
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Lengthen your entry, or click 'Rewrite' to begin again. Press 'Enter' when 'X' no "
              "longer shows.");
    EXPECT_TRUE(driver.Box(MirrorControl::lblRem).Visible);
    EXPECT_TRUE(driver.Box(MirrorControl::cmdClear).Enabled);
    EXPECT_EQ(driver.State().AwaitingEnter, 0);
    EXPECT_TRUE(driver.Engine.CheckedEntries.empty());

    // Typing on clears the message at once and the entry goes on.
    driver.Type(" Why is it always me who has to call first?");
    EXPECT_EQ(driver.Box(MirrorControl::txtResponse).Background, Colour::ColourReady);
    driver.Enter();
    EXPECT_EQ(driver.State().PairCount, 1);
}

TEST(MirrorCycle, CommentGoesInAtOnceAndHandsOverToConverse) {
    MirrorDriver driver;
    driver.mirror->StartWindow();
    driver.mirror->Click(MirrorControl::cmdNotate);
    EXPECT_EQ(driver.mirror->Controls().Title.substr(0, 28), "Veyrant Sagrel -- Notation -");
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse).substr(0, 32),
              "Direction for Beginning Notation");
    driver.Converse("tonight I want to look at why work feels heavy.");
    const std::string comment = Quoted("tonight I want to look at why work feels heavy.");
    EXPECT_EQ(driver.State().DialogueText, "\r\n\r\n" + comment);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "Comment\r\n" + comment);
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Converse);
    EXPECT_TRUE(driver.Box(MirrorControl::cmdConverse).PressedIn);
    EXPECT_FALSE(driver.Box(MirrorControl::cmdNotate).PressedIn);
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "Finish");
    EXPECT_EQ(driver.State().CycleCount, 0);
    driver.Enter();
    EXPECT_EQ(driver.Text(MirrorControl::txtMirror), Prefix);
    EXPECT_EQ(driver.mirror->Controls().Title.substr(0, 32), "Veyrant Sagrel -- Conversation -");
}

TEST(MirrorCycle, NoticeComesOnceTheGoalIsReachedAndStaysOutOfTheDialogue) {
    MirrorDriver driver;
    driver.Draws.Draws = {0.05f}; // CycleGoal 3
    driver.StartConverse();
    EXPECT_EQ(driver.State().CycleGoal, 3);
    for (int cycle = 0; cycle < 3; ++cycle) {
        driver.Converse(Question);
        if (cycle < 2) {
            driver.Enter();
        }
    }
    EXPECT_EQ(driver.Engine.RollPercents, (std::vector<int>{25, 25, 25}));
    const std::string before = driver.State().DialogueText;

    driver.Engine.Rolls.push_back(0);
    driver.Enter();
    EXPECT_EQ(driver.Engine.RollPercents.back(), 20);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse),
              ">> Regarding the conversation. To continue, press 'Enter'.\r\n\tThe talk has "
              "turned inward.");
    EXPECT_EQ(driver.Box(MirrorControl::txtResponse).Background, Colour::ColourNotice);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Review the message regarding the conversation. Press 'Enter', then continue "
              "typing. Or click 'Finish'.");
    EXPECT_EQ(driver.State().AwaitingEnter, 1);
    EXPECT_FALSE(driver.Box(MirrorControl::cmdRemove).Enabled);
    EXPECT_EQ(driver.State().DialogueText, before);

    // The next Enter draws again and, on a 1, simply begins the entry.
    driver.Enter();
    EXPECT_EQ(driver.Engine.RollPercents.back(), 20);
    EXPECT_EQ(driver.State().AwaitingEnter, 0);
    EXPECT_EQ(driver.Box(MirrorControl::txtResponse).Background, Colour::ColourReady);
}

TEST(MirrorCycle, NoNoticeBeforeTheGoalNorForAComment) {
    MirrorDriver driver;
    driver.Draws.Draws = {0.05f};
    driver.StartConverse();
    driver.Converse(Question);
    driver.Enter();
    driver.Converse(Question);
    driver.Enter();
    EXPECT_EQ(driver.Engine.RollPercents, (std::vector<int>{25, 25}));
    driver.Converse(Question);
    driver.mirror->Click(MirrorControl::cmdNotate);
    EXPECT_EQ(driver.Engine.RollPercents, (std::vector<int>{25, 25, 25}));
}

TEST(MirrorCycle, CancelInAnEmptyConverseReturnsToNewDialogue) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.mirror->Click(MirrorControl::cmdNew);
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::None);
    EXPECT_EQ(driver.mirror->Controls().Title, "Veyrant Sagrel -- New Dialogue");
    EXPECT_EQ(driver.Engine.Inspirations, 2);
}

} // namespace
} // namespace veyrant::testing
