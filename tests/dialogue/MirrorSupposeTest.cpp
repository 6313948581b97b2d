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

// The line of the dump that shows one control.
std::string Line(const MirrorDriver& driver, const std::string& control) {
    const std::string dump = driver.mirror->Dump();
    const auto start = dump.find("\n" + control + ": ");
    if (start == std::string::npos) {
        return {};
    }
    return dump.substr(start + 1, dump.find('\n', start + 1) - start - 1);
}

// Starts the window and asks the question in Suppose; the first draw sets the goal of the
// notice out of reach, the later ones weigh the ideas.
void OpenList(MirrorDriver& driver, std::deque<float> weights = {}) {
    driver.Draws.Draws = {0.9f};
    driver.Draws.Draws.insert(driver.Draws.Draws.end(), weights.begin(), weights.end());
    driver.mirror->StartWindow();
    driver.mirror->Click(MirrorControl::cmdSuppose);
    driver.Engine.Judgements.push_back({1, 20});
    driver.Converse(Question);
}

TEST(MirrorSuppose, AnAcceptedQuestionOpensTheListOfIdeas) {
    MirrorDriver driver;
    OpenList(driver);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "Question\r\n" + Quoted(Question));
    EXPECT_EQ(Line(driver, "txtMirror"),
              "txtMirror: \"\\t\xE2\x80\x9CWhat could make the mornings easier for the whole "
              "family?\xE2\x80\x9D\" disabled back=Yellow");
    EXPECT_EQ(driver.Text(MirrorControl::txtAnalyze), ListHeader + Prompt(1));
    EXPECT_EQ(driver.mirror->Controls().Focus, MirrorControl::txtAnalyze);
    EXPECT_EQ(Line(driver, "lblRemS"), "lblRemS: \"X\"");
    EXPECT_EQ(Line(driver, "cmdNew"), "cmdNew: \"Cancel\"");
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Type your supposed answer. Click 'Rewrite' to erase the text and begin again. "
              "Press 'Enter' to advance.");
    EXPECT_EQ(driver.State().CycleCount, 1);
    EXPECT_EQ(driver.State().PairCount, 0);
    EXPECT_EQ(driver.Engine.Compositions, 0);

    // During the list the response box turns over the Question, not the Direction.
    driver.mirror->Click(MirrorControl::txtResponse);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "Inspiration\r\n\tInspiration number 1.");
    driver.mirror->Click(MirrorControl::txtResponse);
    driver.mirror->Click(MirrorControl::txtResponse);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "Question\r\n" + Quoted(Question));
}

TEST(MirrorSuppose, ThreeIdeasAndSelectPutTheChosenIdeaAndItsVerdictInTheDialogue) {
    MirrorDriver driver;
    OpenList(driver, {0.2f, 0.9f, 0.5f});
    driver.Converse("ask my sister to drive on Mondays.");
    EXPECT_EQ(driver.Text(MirrorControl::txtAnalyze),
              ListHeader + Filed(1, "Ask my sister to drive on Mondays.") + Prompt(2));
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "Cancel");
    driver.Converse("get up earlier");
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "Select");
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Type your supposed answer. Or click 'Select' to choose the supposed answer from "
              "the list.");
    driver.Converse("pack the lunches the night before!");
    const std::string list = ListHeader + Filed(1, "Ask my sister to drive on Mondays.") +
                             Filed(2, "Get up earlier.") +
                             Filed(3, "Pack the lunches the night before.");
    EXPECT_EQ(driver.Text(MirrorControl::txtAnalyze), list + Prompt(4));

    driver.mirror->Click(MirrorControl::cmdNew);
    const std::string conclusion =
        "\tYour idea \x93Get up earlier.\x94 is verdict 1."; // the heaviest of 201, 901, 501
    EXPECT_EQ(driver.State().DialogueText, "\r\n\r\n" + Quoted(Question) + "\r\n" + conclusion);
    EXPECT_EQ(driver.State().PairCount, 1);
    EXPECT_EQ(Line(driver, "txtResponse"),
              "txtResponse: \"\\tYour idea \xE2\x80\x9CGet up earlier.\xE2\x80\x9D is verdict 1.\" "
              "back=Added");
    EXPECT_EQ(Line(driver, "txtAnalyze"), "");
    EXPECT_EQ(Line(driver, "lblRemS"), "");
    EXPECT_EQ(Line(driver, "cmdRemove"), "cmdRemove: \"Remove\"");
    EXPECT_EQ(Line(driver, "cmdNew"), "cmdNew: \"Finish\"");
    EXPECT_EQ(Line(driver, "cmdConverse"), "cmdConverse: \"Converse\" pressed");
    EXPECT_EQ(Line(driver, "cmdSuppose"), "cmdSuppose: \"Suppose\"");
    EXPECT_EQ(driver.Text(MirrorControl::txtSaved), "Dialogue" + driver.State().DialogueText);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote), std::string(MirrorText::Added));
    EXPECT_EQ(driver.mirror->Controls().Title.substr(0, 32), "Veyrant Sagrel -- Conversation -");
    EXPECT_EQ(driver.Engine.RollPercents, (std::vector<int>{25, 25}));
    EXPECT_LT(driver.Box(MirrorControl::txtMirror).Top, driver.Box(MirrorControl::txtResponse).Top);

    // The next Enter begins a Converse entry.
    driver.Enter();
    EXPECT_EQ(driver.Text(MirrorControl::txtMirror), (std::string{Tab, OpenQuote}));
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Converse);
    EXPECT_EQ(driver.mirror->Controls().Focus, MirrorControl::txtMirror);
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
        driver.mirror->Click(MirrorControl::cmdNew);
        EXPECT_EQ(driver.Text(MirrorControl::txtResponse),
                  "\tYour idea \x93" + chosen + ".\x94 is verdict 1.");
    }
}

// Each list weighs its own ideas: what an earlier, longer list left behind is never chosen.
TEST(MirrorSuppose, AShorterSecondListChoosesAmongItsOwnIdeas) {
    MirrorDriver driver;
    OpenList(driver, {0.2f, 0.3f, 0.9f});
    for (int idea = 1; idea <= 3; ++idea) {
        driver.Converse("idea number " + std::to_string(idea));
    }
    driver.mirror->Click(MirrorControl::cmdNew);
    ASSERT_EQ(driver.Text(MirrorControl::txtResponse),
              "\tYour idea \x93Idea number 3.\x94 is verdict 1.");

    driver.mirror->Click(MirrorControl::cmdSuppose);
    driver.Draws.Draws = {0.5f, 0.1f};
    driver.Engine.Judgements.push_back({1, 20});
    driver.Converse(Question);
    driver.Converse("another idea");
    driver.Converse("a last idea");
    driver.mirror->Click(MirrorControl::cmdNew);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "\tYour idea \x93"
                                                       "Another idea.\x94 is verdict 2.");
}

// Pressed in, Suppose speaks of the way out that cmdNew offers; Select is no way out of it.
TEST(MirrorSuppose, PressedInSupposeHasNoHelpWhileSelectShows) {
    MirrorDriver driver;
    OpenList(driver);
    ASSERT_EQ(Line(driver, "cmdSuppose"), "cmdSuppose: \"Suppose\" pressed");
    driver.Converse("walk to school");
    driver.mirror->MouseMove(MirrorControl::cmdSuppose);
    driver.mirror->TimerFired(TimerId::MirrorHover);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Click 'Cancel' to end your Dialogue. Or click another interactive method.");

    driver.Converse("go by bike");
    ASSERT_EQ(driver.Text(MirrorControl::cmdNew), "Select");
    driver.mirror->MouseMove(MirrorControl::cmdSuppose);
    driver.mirror->TimerFired(TimerId::MirrorHover);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Type your supposed answer. Or click 'Select' to choose the supposed answer from "
              "the list.");
    EXPECT_EQ(driver.Box(MirrorControl::cmdSuppose).Ink, Colour::Black);
}

TEST(MirrorSuppose, SelectRefusedByTheDrawLeavesTheOutcomeOutUntilKept) {
    MirrorDriver driver;
    OpenList(driver, {0.3f, 0.6f});
    driver.Converse("call the school about the bus.");
    driver.Converse("share the mornings with my partner.");
    driver.Engine.Rolls.push_back(0);
    driver.mirror->Click(MirrorControl::cmdNew);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "\tRefusal 1.");
    EXPECT_EQ(driver.Box(MirrorControl::txtResponse).Background, Colour::ColourOut);
    EXPECT_EQ(driver.Text(MirrorControl::cmdRemove), "Keep");
    EXPECT_EQ(driver.Box(MirrorControl::txtNote).Ink, Colour::InkWarn);
    EXPECT_EQ(driver.State().DialogueText, "");
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "Finish");
    driver.mirror->Click(MirrorControl::cmdRemove);
    EXPECT_EQ(driver.State().DialogueText, "\r\n\r\n" + Quoted(Question) + "\r\n\tRefusal 1.");
    EXPECT_EQ(driver.State().PairCount, 1);
}

TEST(MirrorSuppose, AQuestionDeclinedByTheDrawEndsInConverseWithKeep) {
    MirrorDriver driver;
    driver.mirror->StartWindow();
    driver.mirror->Click(MirrorControl::cmdSuppose);
    driver.Engine.Judgements.push_back({1, 20});
    driver.Engine.Rolls.push_back(0);
    driver.Converse(Question);
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Converse);
    EXPECT_EQ(Line(driver, "txtAnalyze"), "");
    EXPECT_EQ(Line(driver, "cmdRemove"), "cmdRemove: \"Keep\"");
    EXPECT_EQ(Line(driver, "cmdConverse"), "cmdConverse: \"Converse\" pressed");
    EXPECT_EQ(Line(driver, "cmdSuppose"), "cmdSuppose: \"Suppose\"");
    EXPECT_EQ(driver.Box(MirrorControl::txtResponse).Background, Colour::ColourOut);
    // The remark of the Suppose method, composed once and shown as the response.
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "\tRemark 1 on type 9.");
    EXPECT_EQ(driver.Engine.Compositions, 1);
    EXPECT_EQ(driver.State().PairCount, 0);
    driver.mirror->Click(MirrorControl::cmdRemove);
    EXPECT_EQ(driver.State().DialogueText,
              "\r\n\r\n" + Quoted(Question) + "\r\n\tRemark 1 on type 9.");
    driver.Enter();
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Type your question or statement. Then press 'Enter' for the Sagrel response.");
}

// After a refused statement and a refused yes-no question the question begins again.
TEST(MirrorSuppose, StatementsAndYesNoQuestionsAreRefusedAndTheQuestionBeginsAgain) {
    MirrorDriver driver;
    driver.mirror->StartWindow();
    driver.mirror->Click(MirrorControl::cmdSuppose);
    driver.Engine.Judgements = {{2, 2}, {1, 1}, {1, 60}};
    driver.Converse("I want the mornings to be easier for all of us.");
    driver.Enter();
    driver.Converse("should we all get up a little earlier?");
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse).substr(0, 30),
              ">> Questions asking for a yes-");
    EXPECT_EQ(driver.State().CycleCount, 0);
    driver.Enter();
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Type your question. Click 'Rewrite' to erase the text. Press 'Enter' to continue.");
    driver.Converse("how could the mornings run more smoothly?");
    EXPECT_TRUE(driver.Box(MirrorControl::txtAnalyze).Visible);
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
        EXPECT_EQ(driver.Text(MirrorControl::txtAnalyze),
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
    const std::string listed = ListHeader + Filed(1, "Walk to school.") + Prompt(2);
    driver.Converse("go");
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), std::string(MirrorText::TooShort));
    EXPECT_EQ(driver.Box(MirrorControl::txtResponse).Background, Colour::ColourError);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote), std::string(MirrorText::TooShortInstruction));
    EXPECT_EQ(Line(driver, "lblRemS"), "lblRemS: \"X\"");
    EXPECT_TRUE(driver.Box(MirrorControl::cmdClear).Enabled);
    driver.Backspace(); // refused: a short idea only grows
    EXPECT_EQ(driver.Text(MirrorControl::txtAnalyze), listed + "go");
    driver.Type(" slow");
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "Question\r\n" + Quoted(Question));
    EXPECT_EQ(driver.Box(MirrorControl::txtResponse).Background, Colour::ColourReady);
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Ready to enter your text. Continue typing, or press 'Enter' to advance.");
    // Shortened again, the idea is refused at each Enter, and only a filed one turns Cancel into
    // Select.
    for (int key = 0; key < 5; ++key) {
        driver.Backspace();
    }
    driver.Enter();
    driver.Enter();
    EXPECT_EQ(driver.State().IdeaCount, 1);
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "Cancel");
    driver.Type(" slow");
    driver.Enter();
    EXPECT_EQ(driver.Text(MirrorControl::txtAnalyze),
              ListHeader + Filed(1, "Walk to school.") + Filed(2, "Go slow.") + Prompt(3));
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "Select");
}

TEST(MirrorSuppose, ATooLongIdeaCanOnlyBeShortened) {
    MirrorDriver driver;
    OpenList(driver);
    driver.Type(std::string(150, 'a'));
    // The count includes the key: the 140th letter meets the maximum and is refused.
    EXPECT_EQ(driver.Text(MirrorControl::txtAnalyze),
              ListHeader + Prompt(1) + std::string(139, 'a'));
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Over the maximum text limit. Backspace until this display status changes. Or "
              "click 'Rewrite' to erase the text.");
    EXPECT_EQ(driver.Box(MirrorControl::txtNote).Ink, Colour::InkOver);
    driver.Enter();
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), std::string(MirrorText::TooLong));
    driver.Backspace();
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Limit on word count is near. There is space for about 0 more words. Press 'Enter' "
              "to advance.");
    EXPECT_EQ(Line(driver, "lblRemS"), "lblRemS: \"0\"");
    driver.Enter();
    EXPECT_EQ(driver.Text(MirrorControl::txtAnalyze),
              ListHeader + Filed(1, "A" + std::string(137, 'a') + ".") + Prompt(2));
}

TEST(MirrorSuppose, TheCaretStaysBehindThePrompt) {
    MirrorDriver driver;
    OpenList(driver);
    driver.Type("abc");
    const std::string typed = ListHeader + Prompt(1) + "abc";
    const long head = static_cast<long>(typed.size()) - 3;
    driver.Press(KeyCode::Home);
    EXPECT_EQ(driver.Box(MirrorControl::txtAnalyze).Caret, head);
    driver.Backspace();
    driver.Press(KeyCode::Left);
    EXPECT_EQ(driver.Box(MirrorControl::txtAnalyze).Caret, head);
    driver.Type("X");
    EXPECT_EQ(driver.Text(MirrorControl::txtAnalyze), ListHeader + Prompt(1) + "Xabc");
    // A key typed with the caret inside the head goes nowhere; the caret jumps to the end.
    driver.mirror->CaretMoved(MirrorControl::txtAnalyze, 10, 0);
    driver.Type("Z");
    EXPECT_EQ(driver.Text(MirrorControl::txtAnalyze), ListHeader + Prompt(1) + "Xabc");
    EXPECT_EQ(driver.Box(MirrorControl::txtAnalyze).Caret, head + 4);
    driver.Press(KeyCode::Up);
    EXPECT_EQ(driver.Box(MirrorControl::txtAnalyze).Caret, head + 2);

    driver.Press(KeyCode::Control);
    ASSERT_EQ(driver.Layer.Boxes.size(), 1u);
    EXPECT_EQ(driver.Layer.Boxes[0].Title, "Invalid Key");
}

TEST(MirrorSuppose, AClickOrRewriteErasesTheIdeaBeingTyped) {
    MirrorDriver driver;
    OpenList(driver);
    const std::string prompt = ListHeader + Prompt(1);
    driver.mirror->Click(MirrorControl::txtAnalyze); // only the prompt: nothing to erase
    EXPECT_EQ(driver.Text(MirrorControl::txtAnalyze), prompt);
    EXPECT_FALSE(driver.Box(MirrorControl::cmdClear).Enabled);

    driver.Type("call gran");
    EXPECT_TRUE(driver.Box(MirrorControl::cmdClear).Enabled);
    EXPECT_EQ(Line(driver, "lblRemS"), "");
    driver.mirror->Click(MirrorControl::txtAnalyze);
    EXPECT_EQ(driver.Text(MirrorControl::txtAnalyze), prompt);
    EXPECT_EQ(driver.Box(MirrorControl::txtAnalyze).Caret, static_cast<long>(prompt.size()));
    EXPECT_FALSE(driver.Box(MirrorControl::cmdClear).Enabled);
    EXPECT_EQ(Line(driver, "lblRemS"), "lblRemS: \"X\"");
    EXPECT_EQ(driver.Text(MirrorControl::txtNote),
              "Type your entry again. Then press 'Enter' to continue.");

    driver.Type("go");
    driver.Enter(); // too short
    driver.mirror->Click(MirrorControl::cmdClear);
    EXPECT_EQ(driver.Text(MirrorControl::txtAnalyze), prompt);
    EXPECT_EQ(driver.Text(MirrorControl::txtResponse), "Question\r\n" + Quoted(Question));
    EXPECT_EQ(driver.Text(MirrorControl::txtMirror), Quoted(Question)); // Rewrite spared it
}

TEST(MirrorSuppose, CancelDropsTheListAndReturnsToConverseInARunningDialogue) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.Converse("I have been tired every morning this month.");
    const std::string before = driver.State().DialogueText;
    driver.mirror->Click(MirrorControl::cmdSuppose);
    driver.Engine.Judgements.push_back({1, 20});
    driver.Converse(Question);
    driver.Converse("earlier nights.");
    driver.Converse("fewer screens.");
    EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "Select");
    // Esc with Select leaves the method as F5 does.
    driver.Press(KeyCode::Escape);
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Converse);
    EXPECT_EQ(Line(driver, "txtAnalyze"), "");
    EXPECT_EQ(driver.State().DialogueText, before);
    EXPECT_EQ(driver.State().CycleCount, 2);

    driver.mirror->Click(MirrorControl::cmdSuppose);
    driver.Engine.Judgements.push_back({1, 20});
    driver.Converse(Question);
    driver.mirror->Click(MirrorControl::cmdNew);
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Converse);
    EXPECT_EQ(Line(driver, "cmdNew"), "cmdNew: \"Finish\"");
    EXPECT_EQ(Line(driver, "cmdConverse"), "cmdConverse: \"Converse\" pressed");
    EXPECT_EQ(Line(driver, "txtAnalyze"), "");
    EXPECT_EQ(driver.mirror->Controls().Focus, MirrorControl::txtMirror);
    EXPECT_EQ(driver.State().DialogueText, before);
    EXPECT_EQ(driver.State().CycleCount, 3);
}

TEST(MirrorSuppose, CancelInAnEmptyDialogueStartsOverAndAMethodButtonLeavesTheList) {
    MirrorDriver driver;
    OpenList(driver);
    driver.Converse("go");
    driver.mirror->Click(MirrorControl::cmdNotate);
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Comment);
    EXPECT_EQ(Line(driver, "txtAnalyze"), "");
    EXPECT_EQ(Line(driver, "lblRemS"), "");
    EXPECT_EQ(driver.mirror->Controls().Focus, MirrorControl::txtMirror);

    // A list left on a refused idea still opens the next one with its prompt.
    driver.mirror->Click(MirrorControl::cmdSuppose);
    driver.Engine.Judgements.push_back({1, 20});
    driver.Converse(Question);
    EXPECT_EQ(driver.Text(MirrorControl::txtAnalyze), ListHeader + Prompt(1));
    driver.mirror->Click(MirrorControl::cmdNew);
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::None);
    EXPECT_EQ(driver.mirror->Controls().Title, "Veyrant Sagrel -- New Dialogue");
    EXPECT_EQ(Line(driver, "txtAnalyze"), "");
    EXPECT_EQ(Line(driver, "cmdNew"), "");
}

TEST(MirrorSuppose, TheFullViewCoversTheListAndWriteGivesItBack) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.Converse("I have been tired every morning this month.");
    driver.mirror->Click(MirrorControl::cmdSuppose);
    driver.Engine.Judgements.push_back({1, 20});
    driver.Converse(Question);
    driver.Type("earl");
    const std::string before = driver.mirror->Dump();
    driver.mirror->Click(MirrorControl::cmdDisplay);
    EXPECT_EQ(Line(driver, "txtAnalyze"), "");
    EXPECT_EQ(Line(driver, "cmdDisplay"), "cmdDisplay: \"Write\"");
    driver.Type("zz"); // no key reaches a box under the full view
    driver.mirror->Click(MirrorControl::cmdDisplay);
    EXPECT_EQ(driver.mirror->Dump(), before);
    driver.Type("ier nights");
    driver.Enter();
    EXPECT_EQ(driver.Text(MirrorControl::txtAnalyze),
              ListHeader + Filed(1, "Earlier nights.") + Prompt(2));
}

TEST(MirrorSuppose, TheListClosesByItselfAfterNinetyEightIdeas) {
    MirrorDriver driver;
    OpenList(driver);
    for (int idea = 1; idea <= 97; ++idea) {
        driver.Converse("idea " + std::to_string(idea));
    }
    const std::string list = driver.Text(MirrorControl::txtAnalyze);
    EXPECT_EQ(list.substr(list.size() - Prompt(98).size()), Prompt(98));
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Suppose);
    driver.Converse("idea 98");
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Converse);
    EXPECT_EQ(driver.State().PairCount, 1);
    EXPECT_EQ(driver.Engine.RollPercents, (std::vector<int>{25, 25}));
    EXPECT_EQ(driver.State().DialogueText.find("\r\n\tYour idea \x93Idea "),
              2 + Quoted(Question).size() + 2);
}

} // namespace
} // namespace veyrant::testing
