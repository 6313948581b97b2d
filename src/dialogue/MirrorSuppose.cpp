// The Suppose method where the dialogue cycle hands over to it: the list of ideas opens after an
// accepted question, or the Sagrel declines the question and the method ends at once.

#include "core/Text.h"
#include "dialogue/DialogueEngine.h"
#include "dialogue/Mirror.h"
#include "dialogue/MirrorTexts.h"
#include "shell/Application.h"

namespace veyrant {

void Mirror::OpenIdeaList() {
    auto& mirror = C(MirrorControl::txtMirror);
    state_.EntryText = mirror.Text;
    UpperAt(state_.EntryText, 3);
    state_.SupposeQuestion = state_.EntryText;
    mirror.Text = state_.SupposeQuestion;

    state_.DirectionText = "Question\r\n" + state_.SupposeQuestion;
    SetResponse(state_.DirectionText, Colour::ColourReady);
    state_.SupposeStage = 2;
    SetEntryLimits(4);
    state_.IdeaIndex = 1;
    state_.ConclusionView.clear();

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
    PromptIdea();
}

void Mirror::PromptIdea() {
    state_.SupposeStage = 3;
    auto& list = C(MirrorControl::txtAnalyze);
    list.Text = state_.ListText + "\r\n\r\nEntry " + std::to_string(state_.IdeaIndex) + " >> ";
    list.Caret = static_cast<long>(list.Text.size());
    C(MirrorControl::lblRemS).Visible = true;
    C(MirrorControl::lblRemS).Text = "X";
    state_.InstructionText =
        state_.IdeaIndex < 3 ? "Type your supposed answer. Click 'Rewrite' to erase the text and "
                               "begin again. Press 'Enter' to advance."
                             : "Type your supposed answer. Or click 'Select' to choose the "
                               "supposed answer from the list.";
    state_.InstructionColour = Colour::Black;
    ShowInstruction();
}

// The Sagrel declines the question: a remark takes the place of a verdict, and the window goes
// back to Converse with the result left out of the Dialogue.
void Mirror::DeclineSupposition() {
    state_.IdeaVerdict = engine_.RequestRemark(state_.EntryType);
    state_.EntryType = 0;
    state_.AnswerFlag = 0;

    state_.ConclusionView = std::string(1, Tab) + Trim(Mid(state_.IdeaVerdict, 3));
    state_.EntryType = 0;
    C(MirrorControl::txtAnalyze).Text = state_.ConclusionView;
    state_.IdeaIndex = 0;
    state_.IdeaCount = 0;
    state_.DialogueBackup = state_.DialogueText;
    state_.PairText = std::string(CrLf) + std::string(CrLf) + state_.SupposeQuestion +
                      std::string(CrLf) + state_.ConclusionView;
    C(MirrorControl::cmdDisplay).Enabled = true;
    C(MirrorControl::cmdNotate).Enabled = true;
    C(MirrorControl::cmdRemove).Enabled = true;
    ShowResult();
    ArrangeResult();
    SetResponse(state_.ConclusionView, C(MirrorControl::txtResponse).Background);
    ShowSmallView();
    ShowInstruction();
    C(MirrorControl::cmdNew).Text = "Finish";
    state_.ActiveMethod = 1;
    state_.TitleMethod = "Conversation";
    UpdateTitle();
    PressMethodButton(MirrorControl::cmdConverse);
}

} // namespace veyrant
