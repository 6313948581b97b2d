// The Suppose method from where the dialogue cycle hands over to it: the list of ideas, the
// Sagrel's choice among them or its refusal, and the end that gives the window back to Converse.

#include "core/Clock.h"
#include "core/KeyCodes.h"
#include "core/Random.h"
#include "core/Text.h"
#include "dialogue/DialogueEngine.h"
#include "dialogue/Mirror.h"
#include "dialogue/MirrorTexts.h"
#include "dialogue/MirrorWorld.h"
#include "storage/DialogueFile.h"

namespace veyrant {

namespace {

bool IsLetterOrDigit(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
}

} // namespace

void Mirror::OpenIdeaList() {
    auto& mirror = C(MirrorControl::txtMirror);
    state_.EntryText = mirror.Text;
    UpperAt(state_.EntryText, 3);
    state_.SupposeQuestion = state_.EntryText;
    mirror.Text = state_.SupposeQuestion;

    state_.SupposeHeading = "Question\r\n" + state_.SupposeQuestion;
    SetResponse(state_.SupposeHeading, Colour::ColourReady);
    state_.DirectionText = state_.SupposeHeading;
    state_.SupposeStage = SupposeStep::PromptDue;
    SetEntryLimits(EntrySize::Idea);
    state_.IdeaIndex = 1;
    // A list left on a refused idea must not hold back the prompt of the next one.
    state_.IdeaFit = EntryLength::Fits;
    state_.ConclusionView.clear();
    const auto slots = static_cast<std::size_t>(state_.IdeaLimit) + 1;
    state_.Ideas.resize(slots);
    state_.IdeaWeight.resize(slots);
    state_.IdeaOrder.resize(slots);

    auto& list = C(MirrorControl::txtAnalyze);
    list.Enabled = true;
    list.Visible = true;
    mirror.Enabled = false;
    controls_.Focus = MirrorControl::txtAnalyze;
    state_.ListText =
        "Enter Your List of Ideas\r\n\tEnter the ideas you suppose might answer your question. "
        "Include all and only the important possibilities. Make each idea different, positive or "
        "negative as appropriate. Press 'Enter' after each supposition. When your list is "
        "complete with two or more ideas, click 'Select'. To cancel, click another Method.\r\n";
    list.Text = state_.ListText;
    list.Caret = static_cast<long>(list.Text.size());
    // The first prompt comes by the road of every later one: an Enter in the list box.
    AnalyzeKeyPress(KeyCode::Enter);
}

void Mirror::PromptIdea() {
    state_.SupposeStage = SupposeStep::TypingIdea;
    auto& list = C(MirrorControl::txtAnalyze);
    list.Text = state_.ListText + "\r\n\r\nEntry " + std::to_string(state_.IdeaIndex) + " >> ";
    list.Caret = static_cast<long>(list.Text.size());
    list.SelectionLength = 0;
    C(MirrorControl::lblRemS).Visible = true;
    C(MirrorControl::lblRemS).Text = "X";
    state_.Ideas[0] = list.Text;
    state_.InstructionText =
        state_.IdeaIndex < 3 ? "Type your supposed answer. Click 'Rewrite' to erase the text and "
                               "begin again. Press 'Enter' to advance."
                             : "Type your supposed answer. Or click 'Select' to choose the "
                               "supposed answer from the list.";
    state_.InstructionColour = Colour::Black;
    ShowInstruction();
}

void Mirror::AcceptIdea() {
    const std::string box = C(MirrorControl::txtAnalyze).Text;
    const auto index = static_cast<std::size_t>(state_.IdeaIndex);
    state_.Ideas[index] = box;
    const long mark = Find(box, ">>");
    if (mark == 0) {
        return;
    }
    std::string idea = Trim(Mid(box, mark + 3));
    if (!idea.empty()) {
        UpperAt(idea, 1);
        // One closing mark is the user's to add or leave out; the list adds its own period.
        if (!IsLetterOrDigit(idea.back())) {
            idea.pop_back();
        }
    }
    state_.Ideas[index] = idea;
    CheckIdea(idea);
    if (state_.IdeaFit != EntryLength::Fits) {
        return;
    }

    state_.ListText += "\r\n\tEntry " + std::to_string(state_.IdeaIndex) + ": " + OpenQuote + idea +
                       "." + CloseQuote;
    auto& list = C(MirrorControl::txtAnalyze);
    list.Text = state_.ListText;
    list.Caret = static_cast<long>(list.Text.size());
    world_.Random.Seed(world_.Clock.Timer());
    state_.IdeaWeight[index] = static_cast<int>(1000 * world_.Random.Draw()) + 1;
    state_.IdeaCount = state_.IdeaIndex;
    ++state_.IdeaIndex;
    if (state_.IdeaIndex <= state_.IdeaLimit) {
        state_.SupposeStage = SupposeStep::PromptDue;
        PromptIdea();
    } else {
        // The list is full: it closes as if the user had clicked, whatever the caption says.
        Click(MirrorControl::cmdNew);
    }
}

// Length is judged from the status the last key left; an idea with nothing left in it after
// its closing mark is too short, whatever was typed.
void Mirror::CheckIdea(const std::string& idea) {
    state_.IdeaFit = EntryLength::Fits;
    if (idea.empty()) {
        state_.EntryFit = EntryLength::TooShort;
    }
    if (state_.EntryFit == EntryLength::Fits) {
        return;
    }
    state_.IdeaFit = state_.EntryFit;
    RejectLength(MirrorControl::lblRemS);
    ShowInstruction();
}

// A selection sort by weight. "At least" lets the later of two equal weights win, so the
// chosen idea owes nothing to its place in the list but a tie.
void Mirror::RankIdeas() {
    std::vector<int> weights(state_.IdeaWeight.begin(),
                             state_.IdeaWeight.begin() + state_.IdeaCount + 1);
    for (int k = 1; k <= state_.IdeaCount; ++k) {
        auto& order = state_.IdeaOrder[static_cast<std::size_t>(k)];
        order = 0;
        int top = 0;
        for (int i = 1; i <= state_.IdeaCount; ++i) {
            if (weights[static_cast<std::size_t>(i)] >= top) {
                top = weights[static_cast<std::size_t>(i)];
                order = i;
            }
        }
        weights[static_cast<std::size_t>(order)] = 0;
    }
}

// An answer after Select: three times in four the Sagrel chooses an idea. A remark when it
// declines the question itself: the remark stands where the verdict would.
void Mirror::ConcludeSupposition(ReplyKind flag) {
    if (flag == ReplyKind::Answer) {
        auto& list = C(MirrorControl::txtAnalyze);
        list.Enabled = false;
        list.Visible = false;
        C(MirrorControl::lblRemS).Visible = false;
        auto& mirror = C(MirrorControl::txtMirror);
        mirror.Enabled = true;
        mirror.Caret = 0;
        controls_.Focus = MirrorControl::txtMirror;
        SetResponse(std::string(MirrorText::Processing), Colour::ColourReady);
        Yield();
        state_.AnswerFlag = engine_.RollAnswer(25);
        if (state_.AnswerFlag == ReplyKind::Answer) {
            RankIdeas();
        }
        state_.IdeaVerdict = engine_.RequestIdeaVerdict(state_.AnswerFlag);
    } else {
        state_.IdeaVerdict = engine_.RequestRemark(state_.EntryType);
        state_.EntryType = SentenceType::None;
        state_.AnswerFlag = ReplyKind::Remark;
    }
    EndSupposition();
}

// The question and its outcome become one pair, and the window is in Converse again.
void Mirror::EndSupposition() {
    if (state_.AnswerFlag == ReplyKind::Answer) {
        const auto chosen = static_cast<std::size_t>(state_.IdeaOrder[1]);
        state_.ConclusionView = std::string(1, Tab) + "Your idea " + OpenQuote +
                                state_.Ideas[chosen] + "." + CloseQuote + " " + state_.IdeaVerdict;
    } else {
        state_.ConclusionView = std::string(1, Tab) + Trim(Mid(state_.IdeaVerdict, 3));
        state_.EntryType = SentenceType::None;
    }
    C(MirrorControl::txtAnalyze).Text = state_.ConclusionView;
    state_.IdeaIndex = 0;
    state_.IdeaCount = 0;

    state_.DialogueBackup = state_.DialogueText;
    state_.PairText =
        std::string(RunLead) + state_.SupposeQuestion + std::string(CrLf) + state_.ConclusionView;
    C(MirrorControl::cmdDisplay).Enabled = true;
    C(MirrorControl::cmdNotate).Enabled = true;
    C(MirrorControl::cmdRemove).Enabled = true;
    ShowResult();
    if (state_.PairState == PairShown::Kept) {
        state_.DialogueText += state_.PairText;
        ++state_.PairCount;
    }

    ArrangeResult();
    SetResponse(state_.ConclusionView, C(MirrorControl::txtResponse).Background);
    ShowSmallView();
    ShowInstruction();
    C(MirrorControl::cmdNew).Text = "Finish";
    state_.ActiveMethod = WriteMethod::Converse;
    state_.TitleMethod = "Conversation";
    UpdateTitle();
    PressMethodButton(MirrorControl::cmdConverse);
}

} // namespace veyrant
