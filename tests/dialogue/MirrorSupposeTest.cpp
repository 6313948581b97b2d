#include "core/KeyCodes.h"
#include "core/Text.h"
#include "dialogue/MirrorDriver.h"
#include "dialogue/MirrorTexts.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

const std::string Question = "what could make the mornings easier for the whole family?";
const std::string ListHeader =
    "Enter Your List of Ideas\r\n\tEnter the ideas you suppose might answer your question. "
    "Include all and only the important possibilities. Make each idea different, positive or "
    "negative as appropriate. Press 'Enter' after each supposition. When your list is complete "
    "with two or more ideas, click 'Select'. To cancel, click another Method.\r\n";

std::string Filed(int number, const std::string& idea) {
    return "\r\n\tEntry " + std::to_string(number) + ": " + OpenQuote + idea + CloseQuote;
}

std::string Prompt(int number) {
    return "\r\n\r\nEntry " + std::to_string(number) + " >> ";
}

void AskQuestion(MirrorDriver& driver) {
    driver.Click(cmdSuppose);
    driver.Engine.Judgements.push_back({1, 20});
    driver.Converse(Question);
}

// Starts the window and asks the question in Suppose; the first draw sets the goal of the
// notice out of reach, the later ones weigh the ideas.
void OpenList(MirrorDriver& driver, std::deque<float> weights = {}) {
    driver.Draws.Draws = {0.9f};
    driver.Draws.Draws.insert(driver.Draws.Draws.end(), weights.begin(), weights.end());
    driver.mirror->StartWindow();
    AskQuestion(driver);
}

TEST(MirrorSuppose, TheQuestionOpensAListAndSelectPutsTheHeaviestIdeaInTheDialogue) {
    MirrorDriver driver;
    OpenList(driver, {0.2f, 0.9f, 0.5f});
    EXPECT_EQ(driver.Text(txtResponse), "Question\r\n" + Quoted(Question));
    EXPECT_EQ(driver.Shown("txtMirror"),
              "txtMirror: \"\\t\xE2\x80\x9CWhat could make the mornings easier for the whole "
              "family?\xE2\x80\x9D\" disabled back=Yellow");
    EXPECT_EQ(driver.Text(txtAnalyze), ListHeader + Prompt(1));
    EXPECT_EQ(driver.mirror->Controls().Focus, txtAnalyze);
    EXPECT_EQ(driver.Shown("lblRemS") + driver.Shown("cmdNew"), "lblRemS: \"X\"cmdNew: \"Cancel\"");
    EXPECT_EQ(driver.Text(txtNote), "Type your supposed answer. Click 'Rewrite' to erase the text "
                                    "and begin again. Press 'Enter' to advance.");
    // During the list the response box turns over the Question, not the Direction.
    driver.Click(txtResponse);
    EXPECT_EQ(driver.Text(txtResponse), "Inspiration\r\n\tInspiration number 1.");
    driver.Click(txtResponse);
    driver.Click(txtResponse);
    EXPECT_EQ(driver.Text(txtResponse), "Question\r\n" + Quoted(Question));

    // Pressed in, Suppose speaks of the way out that cmdNew offers; Select is no way out of it.
    driver.Converse("ask my sister to drive on Mondays.");
    EXPECT_EQ(driver.Help(cmdSuppose),
              "Click 'Cancel' to end your Dialogue. Or click another interactive method.");
    driver.Converse("get up earlier");
    EXPECT_EQ(driver.Text(cmdNew), "Select");
    const std::string selectNote = "Type your supposed answer. Or click 'Select' to choose the "
                                   "supposed answer from the list.";
    EXPECT_EQ(driver.Text(txtNote), selectNote);
    EXPECT_EQ(driver.Help(cmdSuppose), selectNote);
    EXPECT_EQ(driver.Box(cmdSuppose).Ink, Colour::Black);
    driver.Converse("pack the lunches the night before!");
    EXPECT_EQ(driver.Text(txtAnalyze), ListHeader + Filed(1, "Ask my sister to drive on Mondays.") +
                                           Filed(2, "Get up earlier.") +
                                           Filed(3, "Pack the lunches the night before.") +
                                           Prompt(4));

    driver.Click(cmdNew);
    // The heaviest of 201, 901 and 501.
    const std::string conclusion = "\tYour idea \x93Get up earlier.\x94 is verdict 1.";
    EXPECT_EQ(driver.State().DialogueText, "\r\n\r\n" + Quoted(Question) + "\r\n" + conclusion);
    EXPECT_EQ(driver.Shown("txtResponse"),
              "txtResponse: \"\\tYour idea \xE2\x80\x9CGet up earlier.\xE2\x80\x9D is verdict 1.\" "
              "back=Added");
    EXPECT_EQ(driver.Shown("txtAnalyze") + driver.Shown("lblRemS"), "");
    EXPECT_EQ(driver.Shown("cmdConverse") + driver.Shown("cmdSuppose"),
              "cmdConverse: \"Converse\" pressedcmdSuppose: \"Suppose\"");
    EXPECT_EQ(driver.Engine.RollPercents, (std::vector<int>{25, 25}));

    // The next Enter begins a Converse entry.
    driver.Enter();
    EXPECT_EQ(driver.Text(txtMirror), (std::string{Tab, OpenQuote}));
    EXPECT_EQ(driver.mirror->Controls().Focus, txtMirror);
}

TEST(MirrorSuppose, TheHeaviestIdeaIsChosenAndTheLaterOfEqualOnes) {
    const std::pair<std::deque<float>, std::string> cases[] = {
        {{0.99f, 0.1f}, "Idea number 1"},
        {{0.5f, 0.5f}, "Idea number 2"},
        {{0.9f, 0.1f, 0.9f, 0.3f}, "Idea number 3"},
        {{0.1f, 0.2f, 0.3f, 0.4f}, "Idea number 4"}};
    for (const auto& [draws, chosen] : cases) {
        MirrorDriver driver;
        OpenList(driver, draws);
        for (std::size_t idea = 1; idea <= draws.size(); ++idea) {
            driver.Converse("idea number " + std::to_string(idea));
        }
        driver.Click(cmdNew);
        EXPECT_EQ(driver.Text(txtResponse), "\tYour idea \x93" + chosen + ".\x94 is verdict 1.");
    }
}

// A refused Select leaves the outcome out until kept; each list weighs its own ideas, so what an
// earlier, longer list left behind is never chosen.
TEST(MirrorSuppose, SelectRefusedByTheDrawLeavesTheOutcomeOutUntilKept) {
    MirrorDriver driver;
    OpenList(driver, {0.2f, 0.3f, 0.9f});
    for (int idea = 1; idea <= 3; ++idea) {
        driver.Converse("idea number " + std::to_string(idea));
    }
    driver.Engine.Rolls.push_back(0);
    driver.Click(cmdNew);
    EXPECT_EQ(driver.Text(txtResponse), "\tRefusal 1.");
    EXPECT_EQ(driver.Box(txtResponse).Background, Colour::ColourOut);
    EXPECT_EQ(driver.Text(cmdRemove) + driver.Text(cmdNew), "KeepFinish");
    EXPECT_EQ(driver.Box(txtNote).Ink, Colour::InkWarn);
    EXPECT_EQ(driver.State().DialogueText, "");
    driver.Click(cmdRemove);
    EXPECT_EQ(driver.State().DialogueText, "\r\n\r\n" + Quoted(Question) + "\r\n\tRefusal 1.");
    EXPECT_EQ(driver.State().PairCount, 1);

    driver.Draws.Draws = {0.5f, 0.1f};
    AskQuestion(driver);
    driver.Converse("another idea");
    driver.Converse("a last idea");
    driver.Click(cmdNew);
    EXPECT_EQ(driver.Text(txtResponse), "\tYour idea \x93"
                                        "Another idea.\x94 is verdict 2.");
}

TEST(MirrorSuppose, AQuestionDeclinedByTheDrawEndsInConverseWithKeep) {
    MirrorDriver driver;
    driver.mirror->StartWindow();
    driver.Engine.Rolls.push_back(0);
    AskQuestion(driver);
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Converse);
    EXPECT_EQ(driver.Shown("txtAnalyze") + driver.Shown("cmdRemove"), "cmdRemove: \"Keep\"");
    // The remark of the Suppose method, composed once and shown as the response.
    EXPECT_EQ(driver.Text(txtResponse), "\tRemark 1 on type 9.");
    EXPECT_EQ(driver.Engine.Compositions, 1);
    EXPECT_EQ(driver.State().PairCount, 0);
    driver.Click(cmdRemove);
    EXPECT_EQ(driver.State().DialogueText,
              "\r\n\r\n" + Quoted(Question) + "\r\n\tRemark 1 on type 9.");
}

// A question the parser reads as yes-or-no is refused, and the question begins again.
TEST(MirrorSuppose, AYesNoQuestionIsRefusedAndTheQuestionBeginsAgain) {
    MirrorDriver driver;
    driver.mirror->StartWindow();
    driver.Click(cmdSuppose);
    driver.Engine.Judgements = {{1, 1}, {1, 60}};
    driver.Converse("should we all get up a little earlier?");
    EXPECT_EQ(driver.Text(txtResponse).substr(0, 30), ">> Questions asking for a yes-");
    EXPECT_EQ(driver.State().CycleCount, 0);
    driver.Enter();
    EXPECT_EQ(driver.Text(txtNote),
              "Type your question. Click 'Rewrite' to erase the text. Press 'Enter' to continue.");
    driver.Converse("how could the mornings run more smoothly?");
    EXPECT_TRUE(driver.Box(txtAnalyze).Visible);
    EXPECT_EQ(driver.State().CycleCount, 1);
}

// An idea is capped and loses one closing mark; a too short one stays to be lengthened.
TEST(MirrorSuppose, AnIdeaIsFiledCappedWithOneClosingMark) {
    const std::pair<std::string, std::string> cases[] = {{"walk to school.", "Walk to school."},
                                                         {"walk to school", "Walk to school."},
                                                         {"walk?!", "Walk?."},
                                                         {"  2 alarms  ", "2 alarms."},
                                                         {"ab!", "Ab."},
                                                         {"ab", ""},
                                                         {".", ""},
                                                         {"    ", ""}};
    for (const auto& [typed, filed] : cases) {
        MirrorDriver driver;
        OpenList(driver);
        driver.Converse(typed);
        EXPECT_EQ(driver.Text(txtAnalyze),
                  ListHeader + (filed.empty() ? Prompt(1) + typed : Filed(1, filed) + Prompt(2)))
            << typed;
    }
}

// A too short idea can only be lengthened. An Enter straight after it tries it again as it
// stands and leaves Cancel; mending it by typing takes the ordinary road, which turns the button
// to Select.
TEST(MirrorSuppose, ATooShortIdeaCanOnlyBeLengthenedAndIsTriedAgain) {
    MirrorDriver driver;
    OpenList(driver);
    driver.Converse("walk to school");
    driver.Converse("go");
    EXPECT_EQ(driver.Text(txtResponse), std::string(MirrorText::TooShort));
    EXPECT_EQ(driver.Text(txtNote), std::string(MirrorText::TooShortInstruction));
    EXPECT_EQ(driver.Shown("lblRemS"), "lblRemS: \"X\"");
    driver.Backspace(); // refused: a short idea only grows
    EXPECT_EQ(driver.Text(txtAnalyze), ListHeader + Filed(1, "Walk to school.") + Prompt(2) + "go");
    driver.Type(" slow");
    EXPECT_EQ(driver.Text(txtResponse), "Question\r\n" + Quoted(Question));
    EXPECT_EQ(driver.Text(txtNote),
              "Ready to enter your text. Continue typing, or press 'Enter' to advance.");
    // Shortened again, the idea is refused at each Enter, and only a filed one turns Cancel into
    // Select.
    for (int key = 0; key < 5; ++key) {
        driver.Backspace();
    }
    driver.Enter();
    driver.Enter();
    EXPECT_EQ(driver.State().IdeaCount, 1);
    EXPECT_EQ(driver.Text(cmdNew), "Cancel");
    driver.Converse(" slow");
    EXPECT_EQ(driver.Text(txtAnalyze),
              ListHeader + Filed(1, "Walk to school.") + Filed(2, "Go slow.") + Prompt(3));
    EXPECT_EQ(driver.Text(cmdNew), "Select");
}

TEST(MirrorSuppose, ATooLongIdeaCanOnlyBeShortened) {
    MirrorDriver driver;
    OpenList(driver);
    driver.Type(std::string(150, 'a'));
    // The count includes the key: the 140th letter meets the maximum and is refused.
    EXPECT_EQ(driver.Text(txtAnalyze), ListHeader + Prompt(1) + std::string(139, 'a'));
    EXPECT_EQ(driver.Text(txtNote), "Over the maximum text limit. Backspace until this display "
                                    "status changes. Or click 'Rewrite' to erase the text.");
    EXPECT_EQ(driver.Box(txtNote).Ink, Colour::InkOver);
    driver.Enter();
    EXPECT_EQ(driver.Text(txtResponse), std::string(MirrorText::TooLong));
    driver.Backspace();
    EXPECT_EQ(driver.Text(txtNote), "Limit on word count is near. There is space for about 0 more "
                                    "words. Press 'Enter' to advance.");
    EXPECT_EQ(driver.Shown("lblRemS"), "lblRemS: \"0\"");
    driver.Enter();
    EXPECT_EQ(driver.Text(txtAnalyze),
              ListHeader + Filed(1, "A" + std::string(137, 'a') + ".") + Prompt(2));
}

TEST(MirrorSuppose, TheCaretStaysBehindThePrompt) {
    MirrorDriver driver;
    OpenList(driver);
    driver.Type("abc");
    const long head = static_cast<long>((ListHeader + Prompt(1)).size());
    driver.Press(KeyCode::Home);
    EXPECT_EQ(driver.Box(txtAnalyze).Caret, head);
    driver.Backspace();
    driver.Press(KeyCode::Left);
    EXPECT_EQ(driver.Box(txtAnalyze).Caret, head);
    driver.Type("X");
    // A key typed with the caret inside the head goes nowhere; the caret jumps to the end.
    driver.mirror->CaretMoved(txtAnalyze, 10, 0);
    driver.Type("Z");
    EXPECT_EQ(driver.Text(txtAnalyze), ListHeader + Prompt(1) + "Xabc");
    EXPECT_EQ(driver.Box(txtAnalyze).Caret, head + 4);
    driver.Press(KeyCode::Up);
    EXPECT_EQ(driver.Box(txtAnalyze).Caret, head + 2);
    driver.Press(KeyCode::Control);
    EXPECT_EQ(driver.Titles(), "Invalid Key;");
}

TEST(MirrorSuppose, AClickOrRewriteErasesTheIdeaBeingTyped) {
    MirrorDriver driver;
    OpenList(driver);
    const std::string prompt = ListHeader + Prompt(1);
    driver.Click(txtAnalyze); // only the prompt: nothing to erase
    EXPECT_EQ(driver.Text(txtAnalyze), prompt);
    EXPECT_FALSE(driver.Box(cmdClear).Enabled);
    driver.Type("call gran");
    EXPECT_EQ(driver.Shown("lblRemS"), "");
    driver.Click(txtAnalyze);
    EXPECT_EQ(driver.Text(txtAnalyze), prompt);
    EXPECT_EQ(driver.Box(txtAnalyze).Caret, static_cast<long>(prompt.size()));
    EXPECT_FALSE(driver.Box(cmdClear).Enabled);
    EXPECT_EQ(driver.Shown("lblRemS"), "lblRemS: \"X\"");

    driver.Converse("go"); // too short
    driver.Click(cmdClear);
    EXPECT_EQ(driver.Text(txtAnalyze), prompt);
    EXPECT_EQ(driver.Text(txtResponse), "Question\r\n" + Quoted(Question));
    EXPECT_EQ(driver.Text(txtMirror), Quoted(Question)); // Rewrite spared it
}

TEST(MirrorSuppose, CancelDropsTheListAndReturnsToConverseInARunningDialogue) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.Converse("I have been tired every morning this month.");
    const std::string before = driver.State().DialogueText;
    AskQuestion(driver);
    driver.Converse("earlier nights.");
    driver.Converse("fewer screens.");
    driver.Converse("go"); // refused as too short
    // Esc with Select leaves the method as F5 does.
    driver.Press(KeyCode::Escape);
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Converse);
    EXPECT_EQ(driver.Shown("txtAnalyze"), "");
    EXPECT_EQ(driver.State().DialogueText, before);
    EXPECT_EQ(driver.State().CycleCount, 2);

    // A list left on a refused idea still opens the next one with its prompt.
    AskQuestion(driver);
    EXPECT_EQ(driver.Text(txtAnalyze), ListHeader + Prompt(1));
    driver.Click(cmdNew);
    EXPECT_EQ(driver.Shown("cmdNew") + driver.Shown("txtAnalyze"), "cmdNew: \"Finish\"");
    EXPECT_EQ(driver.Shown("cmdConverse"), "cmdConverse: \"Converse\" pressed");
    EXPECT_EQ(driver.State().DialogueText, before);
    EXPECT_EQ(driver.State().CycleCount, 3);
}

TEST(MirrorSuppose, TheFullViewCoversTheListAndWriteGivesItBack) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.Converse("I have been tired every morning this month.");
    AskQuestion(driver);
    driver.Type("earl");
    const std::string before = driver.mirror->Dump();
    driver.Click(cmdDisplay);
    EXPECT_EQ(driver.Shown("txtAnalyze") + driver.Shown("cmdDisplay"), "cmdDisplay: \"Write\"");
    driver.Type("zz"); // no key reaches a box under the full view
    driver.Click(cmdDisplay);
    EXPECT_EQ(driver.mirror->Dump(), before);
    driver.Converse("ier nights");
    EXPECT_EQ(driver.Text(txtAnalyze), ListHeader + Filed(1, "Earlier nights.") + Prompt(2));
}

TEST(MirrorSuppose, TheListClosesByItselfAfterNinetyEightIdeas) {
    MirrorDriver driver;
    OpenList(driver);
    for (int idea = 1; idea <= 97; ++idea) {
        driver.Converse("idea " + std::to_string(idea));
    }
    const std::string list = driver.Text(txtAnalyze);
    EXPECT_EQ(list.substr(list.size() - Prompt(98).size()), Prompt(98));
    driver.Converse("idea 98");
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Converse);
    EXPECT_EQ(driver.State().DialogueText.find("\r\n\tYour idea \x93Idea "),
              2 + Quoted(Question).size() + 2);
}

} // namespace
} // namespace veyrant::testing
