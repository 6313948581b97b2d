// The Dialogue as one growing text: the run of a pair, the views of it in txtSaved, the page
// count and the limit on kept items.

#include "core/Text.h"
#include "dialogue/DialogueEngine.h"
#include "dialogue/Mirror.h"
#include "dialogue/MirrorWorld.h"
#include "dialogue/Transcript.h"
#include "storage/DialogueFile.h"

namespace veyrant {

int PageCount(int pairCount) {
    return (pairCount + 2) / 8 + 1;
}

std::string PagesTitle(int pairCount) {
    const int pages = PageCount(pairCount);
    return pages == 1 ? "Dialogue, 1 Page" : "Dialogue, " + std::to_string(pages) + " Pages";
}

std::string FullViewPagePhrase(int pairCount) {
    const int pages = pairCount < 5 ? 0 : PageCount(pairCount);
    std::string phrase;
    if (pages == 0) {
        phrase = "Your Dialogue is less than 1 page long. ";
    } else if (pages == 1) {
        phrase = "Your Dialogue is about 1 page long. ";
    } else {
        phrase = "Your Dialogue is about " + std::to_string(pages) + " pages long. ";
    }
    return phrase + "Click 'Write' or the Dialogue text to restore the display to the "
                    "interactive mode.";
}

std::string FullViewText(const std::string& inspirationText, const std::string& dialogueView) {
    return "Inspiration\r\n\r\n" + inspirationText + "\r\n\r\n" + dialogueView;
}

void Mirror::BuildPairText() {
    state_.PairText =
        std::string(RunLead) + state_.EntryText + std::string(CrLf) + state_.ResponseText;
}

void Mirror::ShowSmallView() {
    auto& saved = C(MirrorControl::txtSaved);
    saved.Text = "Dialogue" + state_.DialogueText;
    saved.Caret = static_cast<long>(saved.Text.size());
}

// The limit is on kept items and is told to the user in cycles; the advice comes once past 60,
// the warning every fifth Enter from 100.
void Mirror::CheckDialogueLimit() {
    const int count = state_.PairCount;
    if (count < 60) {
        state_.LimitWarnCount = 0;
    } else if (count >= 61 && count <= 99) {
        if (state_.LimitWarnCount == 0) {
            Message("Veyrant Sagrel Help -- Recommendation Regarding Conversation",
                    "So that you may gain the most from them, Dialogues with the Sagrel should be "
                    "kept relatively brief, focused on one topic, and finished when you have "
                    "revealed something important. That way, when you print and review them "
                    "later, each Dialogue will be clear and illuminating.",
                    MessageIcon::Information);
        }
        state_.LimitWarnCount = 1;
    } else if (count >= 100 && count <= 120) {
        ++state_.LimitWarnCount;
        if (state_.LimitWarnCount == 6) {
            Message("Veyrant Sagrel Help -- Nearing the Dialogue Limit",
                    "The length of your Dialogue is nearing the system limit. You have "
                    "approximately " +
                        std::to_string(120 - count) + " cycles of interaction available.",
                    MessageIcon::Warning);
            state_.LimitWarnCount = 1;
        }
    } else if (count >= 121) {
        state_.EntryStatus = EntryVerdict::DialogueFull;
    }
}

void Mirror::ShowDialogueFull() {
    Place(MirrorControl::txtSaved, 960, 4215);
    C(MirrorControl::cmdDisplay).Text = "Write";
    auto& saved = C(MirrorControl::txtSaved);
    saved.Text = FullViewText(state_.InspirationText, state_.DialogueView);
    saved.Caret =
        state_.ActiveMethod == WriteMethod::Converse ? 0 : static_cast<long>(saved.Text.size());
    saved.Background = Colour::EntryYellow;
    state_.DisplayFull = true;
}

void Mirror::ShowDialogueSmall() {
    Place(MirrorControl::txtSaved, 3000, 2175);
    C(MirrorControl::cmdDisplay).Text = "Display";
    auto& saved = C(MirrorControl::txtSaved);
    saved.Text = state_.DialogueView;
    saved.Caret = 0;
    saved.Background = Colour::DialogueGrey;
    state_.DisplayFull = false;
}

void Mirror::ClickDisplay() {
    auto& display = C(MirrorControl::cmdDisplay);
    if (display.Text == "Display") {
        state_.DialogueView = C(MirrorControl::txtSaved).Text;
        notes_.RemVisible = C(MirrorControl::lblRem).Visible;
        notes_.RemSVisible = C(MirrorControl::lblRemS).Visible;
        notes_.RemoveEnabled = C(MirrorControl::cmdRemove).Enabled;
        notes_.NewEnabled = C(MirrorControl::cmdNew).Enabled;
        notes_.AnalyzeVisible = C(MirrorControl::txtAnalyze).Visible;
        notes_.MirrorEnabled = C(MirrorControl::txtMirror).Enabled;

        C(MirrorControl::lblRem).Visible = false;
        C(MirrorControl::lblRemS).Visible = false;
        C(MirrorControl::cmdRemove).Enabled = false;
        C(MirrorControl::cmdNew).Enabled = false;
        C(MirrorControl::txtAnalyze).Visible = false;
        C(MirrorControl::txtMirror).Enabled = true;
        controls_.Focus = MirrorControl::txtMirror;
        ShowDialogueFull();

        notes_.InstructionText = state_.InstructionText;
        notes_.InstructionColour = state_.InstructionColour;
        if (display.Enabled) {
            state_.InstructionText = FullViewPagePhrase(state_.PairCount);
            state_.InstructionColour = Colour::Black;
            display.Text = "Write";
        }
        ShowInstruction();
    } else if (display.Text == "Write") {
        C(MirrorControl::lblRem).Visible = notes_.RemVisible;
        C(MirrorControl::lblRemS).Visible = notes_.RemSVisible;
        C(MirrorControl::cmdRemove).Enabled = notes_.RemoveEnabled;
        C(MirrorControl::cmdNew).Enabled = notes_.NewEnabled;
        C(MirrorControl::txtAnalyze).Visible = notes_.AnalyzeVisible;
        C(MirrorControl::txtMirror).Enabled = notes_.MirrorEnabled;
        ShowDialogueSmall();
        if (C(MirrorControl::txtAnalyze).Visible) {
            controls_.Focus = MirrorControl::txtAnalyze;
        }
        state_.InstructionText = notes_.InstructionText;
        state_.InstructionColour = notes_.InstructionColour;
        ShowInstruction();
        if (state_.PairCount > 0) {
            auto& saved = C(MirrorControl::txtSaved);
            saved.Caret = static_cast<long>(saved.Text.size());
        }
    }
}

// In the New Dialogue state the panel shows a Suggestion, and a click draws another; otherwise a
// click on the Dialogue toggles the full view.
void Mirror::ClickSaved() {
    if (state_.ActiveMethod == WriteMethod::None && !state_.DisplayFull) {
        state_.SuggestionText = engine_.PickGuidance();
        C(MirrorControl::txtSaved).Text = LibraryStatusText(state_.SuggestionText);
        return;
    }
    const auto& display = C(MirrorControl::cmdDisplay);
    if (display.Text != "File" && display.Enabled && display.Visible) {
        ClickDisplay();
    }
}

} // namespace veyrant
