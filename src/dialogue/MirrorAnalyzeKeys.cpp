// The list box of Suppose as a guarded editor. Its head runs to the open prompt's ">> ", so only
// the idea being typed can be edited; Enter files the idea or prompts for the next one, and a
// refused idea can only be mended in the direction that cures it.

#include "core/KeyCodes.h"
#include "core/Text.h"
#include "dialogue/Mirror.h"
#include "dialogue/MirrorTexts.h"

namespace veyrant {

int Mirror::AnalyzeKeyDown(int keyCode) {
    state_.ListHead = Find(C(MirrorControl::txtAnalyze).Text, ">>") + 2;
    if (keyCode == KeyCode::Control) {
        return RefuseControlKey(keyCode);
    }
    return KeepCaretOffHead(MirrorControl::txtAnalyze, state_.ListHead, keyCode);
}

int Mirror::AnalyzeKeyPress(int keyAscii) {
    auto& box = C(MirrorControl::txtAnalyze);
    const long head = state_.ListHead;
    if (box.Caret <= head - 1 && keyAscii != KeyCode::Enter) {
        box.Caret = static_cast<long>(box.Text.size());
        box.SelectionLength = 0;
        return 0;
    }
    if (box.Caret <= head && keyAscii == KeyCode::Backspace) {
        box.Caret = head;
        box.SelectionLength = 0;
        return 0;
    }
    if (keyAscii == KeyCode::Tab) {
        return 0;
    }
    int passed = keyAscii;
    if (keyAscii != KeyCode::Enter && !CountIdea(keyAscii)) {
        passed = 0;
    }
    if (state_.SupposeStage == SupposeStep::Off) {
        return 0;
    }

    // After a refused idea, a too-long one can only be shortened and a too-short one only
    // lengthened.
    if (keyAscii != KeyCode::Enter) {
        if (state_.IdeaFit == EntryLength::TooLong) {
            if (keyAscii == KeyCode::Backspace) {
                state_.IdeaFit = EntryLength::Fits;
            } else {
                passed = 0;
            }
        } else if (state_.IdeaFit == EntryLength::TooShort) {
            if (keyAscii == KeyCode::Backspace) {
                passed = 0;
            } else {
                state_.IdeaFit = EntryLength::Fits;
            }
        }
    }

    auto& rewrite = C(MirrorControl::cmdClear);
    if (keyAscii == KeyCode::Enter) {
        rewrite.Enabled = false;
        C(MirrorControl::lblRemS).Visible = false;
        EnterInList();
        return 0;
    }
    if (!rewrite.Enabled) {
        rewrite.Enabled = true;
    }
    return passed;
}

// Unlike the entry box, this count includes the key being pressed.
bool Mirror::CountIdea(int keyAscii) {
    state_.EntryCount =
        static_cast<int>(C(MirrorControl::txtAnalyze).Text.size() - state_.ListHead + 1);
    if (keyAscii == KeyCode::Backspace) {
        state_.EntryCount -= 2;
    }
    const bool keep = JudgeCount(MirrorControl::lblRemS,
                                 {"Type to reach the minimum number of letters. Then press "
                                  "'Enter' when your entry is ready.",
                                  "Ready to enter your text. Continue typing, or press 'Enter' "
                                  "to advance.",
                                  " more words. Press 'Enter' to advance.",
                                  "Over the maximum text limit. Backspace until this display "
                                  "status changes. Or click 'Rewrite' to erase the text."},
                                 keyAscii);
    if (state_.EntryFit != EntryLength::TooLong &&
        C(MirrorControl::txtResponse).Text != state_.DirectionText) {
        SetResponse(state_.DirectionText, Colour::ColourReady);
    }
    ShowInstruction();
    return keep;
}

// A refused idea is tried again at the next Enter whatever was typed since; only the ordinary
// road past the second idea turns Cancel into Select.
void Mirror::EnterInList() {
    if (state_.IdeaFit != EntryLength::Fits) {
        AcceptIdea();
        state_.IdeaFit = EntryLength::Fits;
    } else if (state_.SupposeStage == SupposeStep::PromptDue) {
        PromptIdea();
    } else if (state_.SupposeStage == SupposeStep::TypingIdea) {
        AcceptIdea();
        if (state_.IdeaIndex == 3) {
            C(MirrorControl::cmdNew).Text = "Select";
        }
    }
}

// Rewrite, or a click in the list while an idea is typed: the idea goes and its prompt stays.
void Mirror::ClickAnalyzeBox() {
    auto& list = C(MirrorControl::txtAnalyze);
    if (state_.Ideas.empty() || list.Text == state_.Ideas[0] ||
        !C(MirrorControl::cmdClear).Enabled) {
        list.Caret = static_cast<long>(list.Text.size());
        list.SelectionLength = 0;
        return;
    }
    C(MirrorControl::cmdClear).Enabled = false;
    C(MirrorControl::lblRemS).Visible = true;
    C(MirrorControl::lblRemS).Text = "X";
    state_.IdeaFit = EntryLength::Fits;
    SetResponse(state_.DirectionText, Colour::ColourReady);
    state_.InstructionText = "Type your entry again. Then press 'Enter' to continue.";
    state_.InstructionColour = Colour::Black;
    ShowInstruction();
    list.Text = state_.Ideas[0];
    list.Caret = static_cast<long>(list.Text.size());
    list.SelectionLength = 0;
}

} // namespace veyrant
