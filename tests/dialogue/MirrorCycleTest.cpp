#include "core/Text.h"
#include "dialogue/MirrorDriver.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

using MirrorCycle = MirrorTest;

const std::string Prefix{Tab, OpenQuote};
const std::string Question = "why do I keep putting off the letter to my brother?";
const std::string YesNoRefusal = ">> Questions asking for a yes-no-type answer are not valid";

// A new Dialogue offers the methods and the Inspiration; a Converse entry shows "Processing"
// before the reply is composed, the pair is kept, and the next Enter begins a fresh entry.
TEST_F(MirrorCycle, CommentThenConverseEntryIsAcceptedAnsweredAndKept) {
    mirror->StartWindow();
    EXPECT_EQ(Text(txtResponse), "Inspiration\r\n\tInspiration number 1.");
    EXPECT_TRUE(Text(txtNote).starts_with("Reflect upon the Inspiration"));
    EXPECT_TRUE(mirror->Controls().Title.starts_with("Veyrant Sagrel 4.1 -- Written"));
    EXPECT_EQ(Text(txtSaved).substr(0, 39), "Suggestion 1\r\n\r\nDialogue Library Status");
    EXPECT_FALSE(Box(cmdNew).Visible || Box(cmdRemove).Visible || Box(txtMirror).Enabled);
    // A click on either text of the new Dialogue draws another.
    Click(txtSaved);
    EXPECT_EQ(Text(txtSaved).substr(0, 12), "Suggestion 2");
    Click(txtResponse);
    EXPECT_EQ(Text(txtResponse), "Inspiration\r\n\tInspiration number 2.");
    // An opening comment goes in at once and hands over to Converse.
    Click(cmdNotate);
    EXPECT_EQ(mirror->Controls().Title.substr(0, 28), "Veyrant Sagrel -- Notation -");
    EXPECT_EQ(Text(txtResponse).substr(0, 32), "Direction for Beginning Notation");
    const std::string comment =
        "\r\n\r\n" + Quoted("tonight I want to look at why work feels heavy.");
    Converse("tonight I want to look at why work feels heavy.");
    EXPECT_EQ(State().DialogueText, comment);
    EXPECT_EQ(Text(txtResponse), "Comment" + comment.substr(2));
    EXPECT_TRUE(Box(cmdConverse).PressedIn && !Box(cmdNotate).PressedIn);
    EXPECT_EQ(Text(cmdNew), "Finish");
    EXPECT_EQ(State().CycleCount, 0);
    Enter();
    EXPECT_EQ(mirror->Controls().Title,
              "Veyrant Sagrel -- Conversation -- Sunday, 12:00 pm, November 22, 2026");
    std::vector<std::string> painted;
    mirror->SetPainter([&] { painted.push_back(Text(txtResponse)); });
    Engine.Judgements.push_back({1, 50});
    Converse(Question);
    ASSERT_FALSE(painted.empty());
    EXPECT_EQ(painted.front(), "Processing . . .");
    EXPECT_GE(Layer.Yields, 2);
    EXPECT_EQ(Engine.CheckedEntries.back(), Prefix + Question);
    EXPECT_EQ(Text(txtMirror), Quoted(Question));
    EXPECT_EQ(Box(txtResponse).Background, Colour::ColourAdded);
    EXPECT_EQ(State().PairCount + State().CycleCount, 3);
    EXPECT_EQ(State().DialogueText,
              comment + "\r\n\r\n" + Quoted(Question) + "\r\n\tAnswer 1 to type 50.");
    EXPECT_TRUE(Text(txtNote).starts_with("Text was added into the Dialogue."));
    EXPECT_TRUE(Box(cmdRemove).Enabled && Box(cmdDisplay).Enabled);
    // The entry stands above the response once answered, and below it for the next one.
    EXPECT_LT(Box(txtMirror).Top, Box(txtResponse).Top);
    Enter();
    EXPECT_EQ(Text(txtMirror), Prefix);
    EXPECT_GT(Box(txtMirror).Top, Box(txtResponse).Top);
    EXPECT_EQ(Shown("cmdRemove"), "cmdRemove: \"Edit\" disabled");
    EXPECT_EQ(Text(txtNote).rfind("Type your question or statement.", 0), 0u);
}

// A remark stays out until kept, and Keep and Remove restore the text exactly. Removing a pair
// takes it out of the Dialogue, not out of the count that brings the notice, and the notice comes
// only once the goal is reached and stays out of the Dialogue. Closing the window keeps a running
// Dialogue for next time, and only a kept pair makes it run.
TEST_F(MirrorCycle, KeepRemoveAndTheNoticeOnceTheGoalIsReachedEvenWithThePairsRemoved) {
    Draws.Script = {0.05f}; // CycleGoal 3
    StartConverse();
    mirror->Unload();
    EXPECT_EQ(Kept(), "none");
    Engine.Rolls.push_back(0);
    Converse(Question);
    // The first pair left out leaves Cancel and no Display.
    EXPECT_EQ(Text(cmdRemove) + Text(cmdNew) + "|" + Text(txtSaved), "KeepCancel|Dialogue");
    EXPECT_FALSE(Box(cmdDisplay).Enabled);
    Click(cmdRemove);
    const std::string kept = State().DialogueText;
    EXPECT_EQ(kept, "\r\n\r\n" + Quoted(Question) + "\r\n\tRemark 1 on type 2.");
    EXPECT_EQ(Text(cmdRemove) + Text(cmdNew), "RemoveFinish");
    EXPECT_TRUE(Box(cmdDisplay).Enabled);
    EXPECT_TRUE(Text(txtNote).starts_with("Text was kept in the Dialogue."));
    Click(cmdRemove);
    EXPECT_EQ(State().DialogueText + "|" + Text(txtSaved), "|Dialogue");
    EXPECT_TRUE(Text(txtNote).starts_with("Text was removed from the Dialogue."));
    Click(cmdRemove);
    EXPECT_EQ(State().DialogueText, kept);
    for (int cycle = 2; cycle <= 3; ++cycle) {
        Enter();
        Converse(Question);
        Click(cmdRemove);
    }
    EXPECT_EQ(Engine.RollPercents, (std::vector<int>{25, 25, 25}));
    EXPECT_EQ(State().PairCount, 1);
    Engine.Rolls.push_back(0);
    Enter();
    EXPECT_EQ(Engine.RollPercents.back(), 20);
    EXPECT_TRUE(Text(txtResponse).starts_with(">> Regarding the conversation."));
    EXPECT_TRUE(Text(txtResponse).ends_with("\r\n\tThe talk has turned inward."));
    EXPECT_EQ(Box(txtResponse).Background, Colour::ColourNotice);
    EXPECT_TRUE(Text(txtNote).starts_with("Review the message regarding"));
    EXPECT_TRUE(State().AwaitingEnter);
    EXPECT_EQ(State().DialogueText, kept);
    // The next Enter draws again and, on a 1, simply begins the entry.
    Enter();
    EXPECT_EQ(Engine.RollPercents.back(), 20);
    EXPECT_FALSE(State().AwaitingEnter);
    EXPECT_EQ(Box(txtResponse).Background, Colour::ColourReady);
    mirror->Unload();
    EXPECT_EQ(Kept(), "1:" + kept);
    EXPECT_FALSE(Box(txtMirror).Enabled);
}

// Each refusal shows its message and instruction; the entry keeps its text and the caret
// leaves it only when the entry must begin again. Too short is judged before the parser, and
// typing on clears a message that keeps the entry.
TEST(MirrorCycleTable, ARejectionShowsItsMessageAndInstruction) {
    const std::string startAgain = "Press 'Enter' to start again.";
    const struct {
        int Status, Method;
        std::string Message, Instruction;
        std::string Entry = Question;
    } cases[] = {
        {1, 1, ">> Your entry is too short.", "Lengthen your entry", "Why me?"},
        {-1, 1, ">> Do not add a quotation mark at the end", "Backspace out the quote"},
        {0, 1, ">> Your entry is not punctuated.", "Enter your punctuation"},
        {-2, 1, ">> Insufficient number of words.", startAgain},
        {-3, 1, ">> Insufficient number of meaningful words.", startAgain},
        {-10, 1, ">> The syntax of your entry is not clear.", startAgain},
        {-11, 1, ">> The subject of your entry is not clear.", startAgain},
        {-12, 2, ">> The point of your entry is not clear. Ask a direct Supposition", startAgain},
        {-13, 1, ">> The meaning of your entry is not clear.", startAgain},
        {-14, 1, ">> The meaning of your entry cannot be deciphered.", startAgain},
        {2, 2, ">> Statements are not valid for Supposition.", startAgain}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Message);
        MirrorDriver driver;
        driver.mirror->StartWindow();
        driver.Click(c.Method == 2 ? cmdSuppose : cmdConverse);
        driver.Engine.Judgements.push_back({c.Status, 2});
        driver.Converse(c.Entry);
        EXPECT_EQ(driver.Text(txtResponse).substr(0, c.Message.size()), c.Message);
        EXPECT_EQ(driver.Engine.CheckedEntries.empty(), c.Entry != Question);
        EXPECT_EQ(driver.Box(txtResponse).Background, Colour::ColourError);
        EXPECT_TRUE(driver.Text(txtNote).starts_with(c.Instruction));
        const bool again = c.Instruction == startAgain;
        EXPECT_EQ(driver.State().AwaitingEnter, again);
        EXPECT_EQ(driver.State().CycleCount + driver.State().PairCount, 0);
        EXPECT_EQ(driver.Text(txtMirror), Prefix + c.Entry);
        EXPECT_EQ(driver.Box(txtMirror).Caret == 0, again);
        if (!again) {
            EXPECT_EQ(driver.Box(lblRem).Visible && driver.Box(cmdClear).Enabled,
                      c.Entry != Question);
            driver.Type(" Why is it always me who has to call first?");
            EXPECT_EQ(driver.Box(txtResponse).Background, Colour::ColourReady);
            driver.Enter();
            EXPECT_EQ(driver.State().PairCount, 1);
        } else { // the next Enter begins the entry again
            driver.Enter();
            EXPECT_EQ(driver.Text(txtMirror), Prefix);
            EXPECT_EQ(driver.Box(txtResponse).Background, Colour::ColourReady);
            EXPECT_TRUE(driver.Text(txtNote).starts_with(
                c.Method == 2 ? "Type your question." : "Type your question or statement."));
        }
    }
}

// The window over the program's own parser and composer with the starter content.
TEST(MirrorComposed, ADialogueOfSeveralCyclesWithTheRealEngine) {
    MirrorDriver driver(MirrorDriver::Replies::Composed);
    driver.mirror->StartWindow();
    EXPECT_EQ(driver.Text(txtResponse).substr(0, 14), "Inspiration\r\n\t");
    // An entry that the parser refuses before it reads the sentence keeps the type of the entry
    // before: after a yes-or-no question in Suppose, every such refusal is the yes-or-no one.
    driver.Click(cmdSuppose);
    for (const char* early : {"Tomorrow will bring happiness for all.", "Tomorrow, maybe, perhaps?",
                              "Will tomorrow bring happiness"}) {
        SCOPED_TRACE(early);
        driver.Converse("Will tomorrow bring happiness for all?");
        ASSERT_TRUE(driver.Text(txtResponse).starts_with(YesNoRefusal));
        driver.Enter();
        driver.Converse(early);
        EXPECT_TRUE(driver.Text(txtResponse).starts_with(YesNoRefusal));
        EXPECT_TRUE(driver.State().AwaitingEnter);
        driver.Enter();
    }
    // A question the parser reads replaces the type and is accepted.
    driver.Converse("What would bring happiness to us all?");
    EXPECT_EQ(driver.State().CycleCount, 1) << driver.Text(txtResponse);
    driver.Click(cmdConverse);

    // At these moments the first two entries draw a remark, left out, and the third an answer.
    for (const char* entry : {"Why do I hesitate before every important decision?",
                              "I feel that my work no longer means what it once did.",
                              "How can I be kinder to myself on the difficult days?"}) {
        driver.Clock.Seconds += 37.5f;
        driver.Converse(entry);
        ASSERT_FALSE(driver.State().EntryFailed) << driver.Text(txtResponse);
        ASSERT_EQ(driver.Text(txtResponse).substr(0, 1), "\t");
        driver.Enter();
    }
    EXPECT_EQ(driver.State().PairCount, 1);
    EXPECT_EQ(driver.State().CycleCount, 4);
}

} // namespace
} // namespace veyrant::testing
