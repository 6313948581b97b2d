#include "core/KeyCodes.h"
#include "core/Text.h"
#include "dialogue/MirrorDriver.h"
#include "dialogue/MirrorTexts.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

using MirrorSuppose = MirrorTest;

const std::string Question = "what could make the mornings easier for the whole family?";

std::string Prompt(std::size_t number) {
    return "\r\n\r\nEntry " + std::to_string(number) + " >> ";
}

// The list below its heading as it shows with those ideas filed and the next one being typed.
std::string List(const std::vector<std::string>& filed, const std::string& typing = "") {
    std::string list;
    for (std::size_t idea = 0; idea < filed.size(); ++idea) {
        list +=
            "\r\n\tEntry " + std::to_string(idea + 1) + ": " + OpenQuote + filed[idea] + CloseQuote;
    }
    return list + Prompt(filed.size() + 1) + typing;
}

// The list box below its heading, which ends in the list's first blank line.
std::string Listed(const MirrorDriver& driver) {
    const std::string list = driver.Text(txtAnalyze);
    return list.substr(list.find("\r\n\r\n") + 2);
}

void AskQuestion(MirrorDriver& driver) {
    driver.Click(cmdSuppose);
    driver.Engine.Judgements.push_back({1, 20});
    driver.Converse(Question);
}

// Starts the window and asks the question in Suppose; the first draw sets the goal of the
// notice out of reach, the later ones weigh the ideas.
void OpenList(MirrorDriver& driver, std::deque<float> weights = {}) {
    driver.Draws.Script = {0.9f};
    driver.Draws.Script.insert(driver.Draws.Script.end(), weights.begin(), weights.end());
    driver.mirror->StartWindow();
    AskQuestion(driver);
}

TEST_F(MirrorSuppose, TheQuestionOpensAListAndSelectPutsTheHeaviestIdeaInTheDialogue) {
    OpenList(*this, {0.2f, 0.9f, 0.9f});
    EXPECT_EQ(Text(txtResponse), "Question\r\n" + Quoted(Question));
    EXPECT_FALSE(Box(txtMirror).Enabled);
    EXPECT_TRUE(Text(txtAnalyze).starts_with("Enter Your List of Ideas\r\n\t"));
    EXPECT_EQ(Listed(*this), List({}));
    EXPECT_EQ(mirror->Controls().Focus, txtAnalyze);
    EXPECT_EQ(Shown("lblRemS") + Shown("cmdNew"), "lblRemS: \"X\"cmdNew: \"Cancel\"");
    EXPECT_TRUE(Text(txtNote).starts_with("Type your supposed answer. Click 'Rewrite'"));
    // During the list the response box turns over the Question, not the Direction.
    Click(txtResponse);
    EXPECT_EQ(Text(txtResponse), "Inspiration\r\n\tInspiration number 1.");
    Click(txtResponse);
    Click(txtResponse);
    EXPECT_EQ(Text(txtResponse), "Question\r\n" + Quoted(Question));
    // Pressed in, Suppose speaks of the way out that cmdNew offers; Select is no way out of it.
    Converse("ask my sister to drive on Mondays.");
    EXPECT_TRUE(Help(cmdSuppose).starts_with("Click 'Cancel' to end your Dialogue."));
    Converse("get up earlier");
    EXPECT_EQ(Text(cmdNew), "Select");
    const std::string selectNote = Text(txtNote);
    EXPECT_TRUE(selectNote.starts_with("Type your supposed answer. Or click 'Select'"));
    EXPECT_EQ(Help(cmdSuppose), selectNote);
    EXPECT_EQ(Box(cmdSuppose).Ink, Colour::Black);
    Converse("pack the lunches the night before!");
    EXPECT_EQ(Listed(*this), List({"Ask my sister to drive on Mondays.", "Get up earlier.",
                                   "Pack the lunches the night before."}));
    Click(cmdNew);
    // The later of the two heaviest, 901 and 901; a later list below chooses its first idea.
    const std::string conclusion =
        "\tYour idea \x93Pack the lunches the night before.\x94 is verdict 1.";
    EXPECT_EQ(State().DialogueText, "\r\n\r\n" + Quoted(Question) + "\r\n" + conclusion);
    EXPECT_TRUE(Text(txtResponse) == conclusion &&
                Box(txtResponse).Background == Colour::ColourAdded);
    EXPECT_EQ(Shown("txtAnalyze") + Shown("lblRemS"), "");
    EXPECT_EQ(Shown("cmdConverse") + Shown("cmdSuppose"),
              "cmdConverse: \"Converse\" pressedcmdSuppose: \"Suppose\"");
    EXPECT_EQ(Engine.RollPercents, (std::vector<int>{25, 25}));
    // The next Enter begins a Converse entry.
    Enter();
    EXPECT_EQ(Text(txtMirror), (std::string{Tab, OpenQuote}));
    EXPECT_EQ(mirror->Controls().Focus, txtMirror);
}

// A refused Select leaves the outcome out until kept; each list weighs its own ideas, so what an
// earlier, longer list left behind is never chosen; a declined question goes back to Converse.
TEST_F(MirrorSuppose, SelectRefusedByTheDrawLeavesTheOutcomeOutUntilKeptAndCancelDropsTheList) {
    OpenList(*this, {0.2f, 0.3f, 0.9f});
    for (int idea = 1; idea <= 3; ++idea) {
        Converse("idea number " + std::to_string(idea));
    }
    Engine.Rolls.push_back(0);
    Click(cmdNew);
    EXPECT_EQ(Text(txtResponse), "\tRefusal 1.");
    EXPECT_EQ(Box(txtResponse).Background, Colour::ColourOut);
    EXPECT_EQ(Text(cmdRemove) + Text(cmdNew), "KeepFinish");
    EXPECT_EQ(Box(txtNote).Ink, Colour::InkWarn);
    EXPECT_EQ(State().DialogueText, "");
    Click(cmdRemove);
    EXPECT_EQ(State().DialogueText, "\r\n\r\n" + Quoted(Question) + "\r\n\tRefusal 1.");
    EXPECT_EQ(State().PairCount, 1);
    Draws.Script = {0.5f, 0.1f};
    AskQuestion(*this);
    Converse("another idea");
    Converse("a last idea");
    Click(cmdNew);
    EXPECT_EQ(Text(txtResponse), "\tYour idea \x93"
                                 "Another idea.\x94 is verdict 2.");
    // A question the draw declines ends in Converse with Keep, its remark composed once.
    Enter();
    Engine.Rolls.push_back(0);
    AskQuestion(*this);
    EXPECT_EQ(State().ActiveMethod, WriteMethod::Converse);
    EXPECT_EQ(Shown("txtAnalyze") + Shown("cmdRemove"), "cmdRemove: \"Keep\"");
    EXPECT_EQ(Text(txtResponse), "\tRemark 3 on type 9.");
    EXPECT_TRUE(Engine.Compositions == 3 && State().PairCount == 2);
    const std::string dialogue = State().DialogueText;
    Click(cmdRemove);
    EXPECT_EQ(State().DialogueText,
              dialogue + "\r\n\r\n" + Quoted(Question) + "\r\n\tRemark 3 on type 9.");
    // The full view covers the list and Write gives it back; Cancel drops it and returns to
    // Converse in a running Dialogue.
    Enter();
    const std::string before = State().DialogueText;
    const int cycles = State().CycleCount;
    AskQuestion(*this);
    Type("earl");
    const std::string shown = mirror->Dump();
    Click(cmdDisplay);
    EXPECT_EQ(Shown("txtAnalyze") + Shown("cmdDisplay"), "cmdDisplay: \"Write\"");
    Type("zz"); // no key reaches a box under the full view
    Click(cmdDisplay);
    EXPECT_EQ(mirror->Dump(), shown);
    Converse("ier nights");
    EXPECT_EQ(Listed(*this), List({"Earlier nights."}));
    Converse("fewer screens.");
    Converse("go"); // refused as too short
    // Esc with Select leaves the method as F5 does.
    Press(KeyCode::Escape);
    EXPECT_EQ(State().ActiveMethod, WriteMethod::Converse);
    EXPECT_EQ(Shown("txtAnalyze"), "");
    EXPECT_EQ(State().DialogueText, before);
    EXPECT_EQ(State().CycleCount, cycles + 1);
    // A list left on a refused idea still opens the next one with its prompt.
    AskQuestion(*this);
    EXPECT_EQ(Listed(*this), List({}));
    Click(cmdNew);
    EXPECT_EQ(Shown("cmdNew") + Shown("txtAnalyze"), "cmdNew: \"Finish\"");
    EXPECT_EQ(Shown("cmdConverse"), "cmdConverse: \"Converse\" pressed");
    EXPECT_EQ(State().DialogueText, before);
    EXPECT_EQ(State().CycleCount, cycles + 2);
}

// An idea is capped and loses one closing mark; a too short one stays to be lengthened. Buffers
// that outlive the Dialogue they held reopen when an empty one is cancelled, and the list must
// not stay over them.
TEST(MirrorSupposeTable, AnIdeaIsFiledCappedWithOneClosingMark) {
    const std::pair<std::string, std::string> cases[] = {{"walk to school.", "Walk to school."},
                                                         {"walk?!", "Walk?."},
                                                         {"  2 alarms  ", "2 alarms."},
                                                         {"ab!", "Ab."},
                                                         {"    ", ""}};
    for (const auto& [typed, filed] : cases) {
        MirrorDriver driver;
        OpenList(driver);
        driver.Converse(typed);
        EXPECT_EQ(Listed(driver), filed.empty() ? List({}, typed) : List({filed})) << typed;
        // Cancelled in an empty Dialogue, the list closes before buffers left by then reopen.
        driver.LeavePriorDialogue(1);
        driver.Click(cmdNew);
        EXPECT_EQ(driver.Text(cmdRemove) + std::to_string(driver.State().PairCount), "Continue1");
        EXPECT_FALSE(driver.Box(txtAnalyze).Visible || driver.Box(lblRemS).Visible);
        EXPECT_EQ(driver.mirror->Controls().Focus, txtMirror);
    }
}

// The caret stays behind the prompt, and a click or Rewrite erases the idea being typed. A too
// short idea can only be lengthened: an Enter straight after it tries it again as it stands and
// leaves Cancel; mending it by typing takes the ordinary road, which turns the button to Select.
TEST_F(MirrorSuppose, TheCaretStaysBehindThePromptAndOnlyIdeasThatFitAreFiledUpTo98) {
    OpenList(*this);
    const std::string prompt = Text(txtAnalyze);
    Click(txtAnalyze); // only the prompt: nothing to erase
    EXPECT_EQ(Text(txtAnalyze), prompt);
    EXPECT_FALSE(Box(cmdClear).Enabled);
    Type("abc");
    const auto head = static_cast<long>(prompt.size());
    Press(KeyCode::Home);
    EXPECT_EQ(Box(txtAnalyze).Caret, head);
    Backspace();
    Press(KeyCode::Left);
    EXPECT_EQ(Box(txtAnalyze).Caret, head);
    Type("X");
    // A key typed with the caret inside the head goes nowhere; the caret jumps to the end.
    mirror->CaretMoved(txtAnalyze, 10, 0);
    Type("Z");
    EXPECT_EQ(Listed(*this), List({}, "Xabc"));
    EXPECT_EQ(Box(txtAnalyze).Caret, head + 4);
    Press(KeyCode::Up);
    EXPECT_EQ(Box(txtAnalyze).Caret, head + 2);
    Press(KeyCode::Control);
    EXPECT_EQ(Titles(), "Invalid Key;");
    EXPECT_EQ(Shown("lblRemS"), "");
    Click(txtAnalyze);
    EXPECT_EQ(Text(txtAnalyze), prompt);
    EXPECT_EQ(Box(txtAnalyze).Caret, head);
    EXPECT_FALSE(Box(cmdClear).Enabled);
    EXPECT_EQ(Shown("lblRemS"), "lblRemS: \"X\"");
    Converse("go"); // too short
    Click(cmdClear);
    EXPECT_EQ(Text(txtAnalyze), prompt);
    EXPECT_EQ(Text(txtResponse), "Question\r\n" + Quoted(Question));
    EXPECT_EQ(Text(txtMirror), Quoted(Question)); // Rewrite spared it
    Converse("walk to school");
    Converse("go");
    EXPECT_EQ(Text(txtResponse), std::string(MirrorText::TooShort));
    EXPECT_EQ(Text(txtNote), std::string(MirrorText::TooShortInstruction));
    EXPECT_EQ(Shown("lblRemS"), "lblRemS: \"X\"");
    Backspace(); // refused: a short idea only grows
    EXPECT_EQ(Listed(*this), List({"Walk to school."}, "go"));
    Type(" slow");
    EXPECT_EQ(Text(txtResponse), "Question\r\n" + Quoted(Question));
    EXPECT_TRUE(Text(txtNote).starts_with("Ready to enter your text."));
    // Shortened again, the idea is refused at each Enter, and only a filed one turns Cancel into
    // Select.
    for (int key = 0; key < 5; ++key) {
        Backspace();
    }
    Enter();
    Enter();
    EXPECT_EQ(State().IdeaCount, 1);
    EXPECT_EQ(Text(cmdNew), "Cancel");
    Converse(" slow");
    EXPECT_EQ(Listed(*this), List({"Walk to school.", "Go slow."}));
    EXPECT_EQ(Text(cmdNew), "Select");
    // Too long, an idea can only be shortened: the count includes the key, so the 140th letter
    // meets the maximum and is refused.
    Type(std::string(150, 'a'));
    EXPECT_EQ(Listed(*this), List({"Walk to school.", "Go slow."}, std::string(139, 'a')));
    EXPECT_TRUE(Text(txtNote).starts_with("Over the maximum text limit. Backspace"));
    EXPECT_EQ(Box(txtNote).Ink, Colour::InkOver);
    Enter();
    EXPECT_EQ(Text(txtResponse), std::string(MirrorText::TooLong));
    Backspace();
    EXPECT_NE(Text(txtNote).find("0 more words. Press 'Enter' to advance."), std::string::npos);
    EXPECT_EQ(Shown("lblRemS"), "lblRemS: \"0\"");
    Enter();
    EXPECT_EQ(Listed(*this),
              List({"Walk to school.", "Go slow.", "A" + std::string(137, 'a') + "."}));
    // The list closes by itself after ninety-eight ideas, its choice straight after the question.
    for (int idea = 4; idea <= 97; ++idea) {
        Converse("idea " + std::to_string(idea));
    }
    const std::string list = Text(txtAnalyze);
    EXPECT_EQ(list.substr(list.size() - Prompt(98).size()), Prompt(98));
    Converse("idea 98");
    EXPECT_EQ(State().ActiveMethod, WriteMethod::Converse);
    EXPECT_EQ(State().DialogueText.find("\r\n\tYour idea \x93"), 2 + Quoted(Question).size() + 2);
}

} // namespace
} // namespace veyrant::testing
