// The entry box as a guarded editor: the protected head, the refused keys, the count that drives
// the status mark and the instruction, Rewrite, and the record of keys that feeds the series.

#include "core/Clock.h"
#include "core/KeyCodes.h"
#include "core/Text.h"
#include "dialogue/DialogueEngine.h"
#include "dialogue/Mirror.h"
#include "dialogue/MirrorTexts.h"
#include "dialogue/MirrorWorld.h"

namespace veyrant {

namespace {

constexpr long HeadLength = 2;

std::string BelowMinimum(WriteMethod activeMethod) {
    switch (activeMethod) {
    case WriteMethod::Suppose:
        return "Type to reach the minimum number of words. Then press 'Enter' when your "
               "supposition question is ready.";
    case WriteMethod::Comment:
        return "Type to reach the minimum number of words. Then press 'Enter' when your comment "
               "is ready.";
    default:
        return "Type to reach the minimum number of words. Then press 'Enter' when your question "
               "or statement is ready.";
    }
}

std::string Ready(WriteMethod activeMethod) {
    switch (activeMethod) {
    case WriteMethod::Suppose:
        return "Ready to enter your supposition question. Continue typing, or press 'Enter' to "
               "advance.";
    case WriteMethod::Comment:
        return "Ready to enter your comment. Continue typing, or press 'Enter' to advance.";
    default:
        return "Ready to enter your question or statement. Continue typing, or press 'Enter' to "
               "advance the cycle of conversation.";
    }
}

} // namespace

int Mirror::KeyDown(int keyCode) {
    keyCode = WindowKeyDown(keyCode);
    if (keyCode == 0) {
        return 0;
    }
    if (controls_.Focus == MirrorControl::txtMirror) {
        return MirrorKeyDown(keyCode);
    }
    if (controls_.Focus == MirrorControl::txtAnalyze) {
        return AnalyzeKeyDown(keyCode);
    }
    return keyCode;
}

int Mirror::KeyPress(int keyAscii) {
    if (!IsRunning(state_.ActiveMethod) || state_.DisplayFull || keyAscii == KeyCode::Tab) {
        return 0;
    }
    if (keyAscii != KeyCode::Enter && keyAscii != KeyCode::Backspace) {
        RecordKey(keyAscii);
    }
    if (controls_.Focus == MirrorControl::txtMirror) {
        return MirrorKeyPress(keyAscii);
    }
    if (controls_.Focus == MirrorControl::txtAnalyze) {
        return AnalyzeKeyPress(keyAscii);
    }
    return keyAscii;
}

// The newest key goes into the series with the time it was typed, so that the Sagrel's draws
// follow the rhythm and the letters of the typing.
void Mirror::RecordKey(int characterCode) {
    engine_.RecordKey(world_.Clock.Timer(), characterCode);
}

int Mirror::MirrorKeyDown(int keyCode) {
    if (state_.ActiveMethod == WriteMethod::None) {
        return 0;
    }
    if (keyCode == KeyCode::Control) {
        return RefuseControlKey(keyCode);
    }
    if (state_.AwaitingEnter && keyCode != KeyCode::Enter) {
        state_.EnterHintDue = true;
        auto& box = C(MirrorControl::txtMirror);
        box.Caret = 0;
        box.SelectionLength = 0;
        return 0;
    }
    return KeepCaretOffHead(MirrorControl::txtMirror, HeadLength, keyCode);
}

int Mirror::RefuseControlKey(int keyCode) {
    Message(std::string(MirrorText::InvalidKeyTitle), "Use of the control key is not allowed.");
    return keyCode;
}

// Refused at the key, before the count, the series or the checks could take it for a letter;
// the user is told, as for the control key, wherever a box would have taken the key.
void Mirror::RefuseUnwritable() {
    const bool typing = IsRunning(state_.ActiveMethod) && !state_.DisplayFull &&
                        (controls_.Focus == MirrorControl::txtMirror ||
                         controls_.Focus == MirrorControl::txtAnalyze);
    if (typing) {
        Message(std::string(MirrorText::InvalidKeyTitle),
                "That character cannot be kept in a Dialogue. Use the letters, numbers and "
                "punctuation of the Western European languages.");
    }
}

// The caret never enters the protected head, and the box has no line movement: the vertical
// arrows halve the distance to the end or back to the head.
int Mirror::KeepCaretOffHead(MirrorControl control, long head, int keyCode) {
    auto& box = C(control);
    const long length = static_cast<long>(box.Text.size());
    const auto moveCaret = [&box](long caret) {
        box.Caret = caret;
        box.SelectionLength = 0;
        return 0;
    };
    switch (keyCode) {
    case KeyCode::Home:
        return moveCaret(head);
    case KeyCode::Left:
    case KeyCode::Backspace:
        if (box.Caret <= head) {
            return moveCaret(head);
        }
        return keyCode;
    case KeyCode::End:
        return moveCaret(length);
    case KeyCode::Down:
        return moveCaret(box.Caret + (length - box.Caret) / 2);
    case KeyCode::Up:
        return moveCaret(head + (box.Caret - head) / 2);
    default:
        return keyCode;
    }
}

int Mirror::MirrorKeyPress(int keyAscii) {
    auto& box = C(MirrorControl::txtMirror);
    if (state_.EnterHintDue) {
        state_.EnterHintDue = false;
        Message(std::string(MirrorText::HelpTitle),
                "Press 'Enter' to continue. Interaction is advanced to the next step by pressing "
                "the 'Enter' key. Interaction is ended when you click 'Cancel' or 'Finish'. The "
                "Instruction Box at the bottom of the window reminds you what to do.");
        return 0;
    }
    if (state_.ActiveMethod == WriteMethod::None || C(MirrorControl::cmdNew).Text == "New") {
        return 0;
    }
    if (box.Caret < HeadLength && keyAscii != KeyCode::Enter) {
        box.Caret = static_cast<long>(box.Text.size());
        box.SelectionLength = 0;
        return 0;
    }
    if (box.Caret < HeadLength + 1 && keyAscii == KeyCode::Backspace) {
        box.Caret = HeadLength;
        box.SelectionLength = 0;
        return 0;
    }
    if (keyAscii == KeyCode::Tab) {
        return 0;
    }
    if (keyAscii != KeyCode::Enter && !CountEntry(keyAscii)) {
        keyAscii = 0;
    }

    auto& rewrite = C(MirrorControl::cmdClear);
    if (keyAscii == KeyCode::Enter) {
        rewrite.Enabled = false;
        C(MirrorControl::lblRem).Visible = false;
        EnterInEntryBox();
        keyAscii = 0;
    } else if (!state_.AwaitingEnter && !rewrite.Enabled) {
        rewrite.Enabled = true;
    }
    ShowInstruction();
    return keyAscii;
}

// The count runs one key behind the text: the key being pressed is not in the box yet. The
// thresholds were set with that lag, so it stays. Returns false when the key must be dropped.
bool Mirror::CountEntry(int keyAscii) {
    state_.EntryCount = static_cast<int>(C(MirrorControl::txtMirror).Text.size()) - 3;
    if (keyAscii == KeyCode::Backspace) {
        state_.EntryCount -= 2;
    }
    const bool keep = JudgeCount(MirrorControl::lblRem,
                                 {BelowMinimum(state_.ActiveMethod), Ready(state_.ActiveMethod),
                                  " more words. Press 'Enter' when ready.",
                                  "Over the maximum text limit. Delete words until this display "
                                  "status changes. Or click 'Rewrite' to erase the text."},
                                 keyAscii);

    // Typing clears a ">>" message: the box goes back to what it showed before.
    if (C(MirrorControl::txtResponse).Background != Colour::ColourReady &&
        state_.EntryFit != EntryLength::TooLong) {
        state_.EntryFailed = false;
        const bool direction = state_.ActiveMethod == WriteMethod::Suppose ||
                               state_.ActiveMethod == WriteMethod::Comment ||
                               state_.DialogueText.empty();
        SetResponse(direction ? state_.DirectionText : state_.InspirationView, Colour::ColourReady);
    }
    return keep;
}

// EntryCount against the three thresholds sets EntryFit, the status mark and the instruction.
// Over the maximum only Backspace is let through.
bool Mirror::JudgeCount(MirrorControl markControl, const CountWording& wording, int keyAscii) {
    auto& mark = C(markControl);
    if (state_.EntryCount < state_.EntryMin) {
        state_.InstructionText = wording.BelowMinimum;
        state_.InstructionColour = Colour::InkWarn;
        mark.Visible = true;
        mark.Text = "X";
        state_.EntryFit = EntryLength::TooShort;
    } else if (state_.EntryCount < state_.EntryNear) {
        state_.InstructionText = wording.Ready;
        state_.InstructionColour = Colour::Black;
        mark.Visible = false;
        state_.EntryFit = EntryLength::Fits;
    } else if (state_.EntryCount < state_.EntryMax) {
        const int wordsLeft = (state_.EntryMax - state_.EntryCount) / 6;
        state_.InstructionText = "Limit on word count is near. There is space for about " +
                                 std::to_string(wordsLeft) + wording.NearEnd;
        state_.InstructionColour = Colour::InkNear;
        mark.Visible = true;
        mark.Text = std::to_string(wordsLeft);
        state_.EntryFit = EntryLength::Fits;
    } else {
        state_.InstructionText = wording.Over;
        state_.InstructionColour = Colour::InkOver;
        mark.Visible = true;
        mark.Text = "X";
        state_.EntryFit = EntryLength::TooLong;
        return keyAscii == KeyCode::Backspace;
    }
    return true;
}

// Rewrite and a click on the entry box: while typing, either erases the entry.
void Mirror::ClickEntryBox() {
    if (!IsRunning(state_.ActiveMethod)) {
        return;
    }
    ShowInstruction();
    hover_.Unmark();
    hover_.Stop();
    if (state_.AwaitingEnter) {
        C(MirrorControl::txtMirror).Caret = 0;
        Message(std::string(MirrorText::HelpTitle),
                "In this part of the cycle, you must press 'Enter' to advance the "
                "interaction.\r\n\r\nDuring your text entry, clicking the text in the Entry Box "
                "will erase it, the same as clicking 'Rewrite'. However, excepting punctuation "
                "errors, after you enter text, you cannot erase it by clicking the text "
                "box.\r\n\r\nNote the Instruction Box at the bottom of the window whenever you "
                "need to be reminded how to proceed. Click 'Help' for a tutorial on the Veyrant "
                "Sagrel features and functions.");
        return;
    }
    C(MirrorControl::cmdClear).Enabled = false;
    StartEntry(state_.ActiveMethod);
    state_.InstructionText = state_.ActiveMethod == WriteMethod::Comment
                                 ? "Type your comment again. Then press 'Enter' to continue."
                                 : "Type your entry again. Then press 'Enter' to continue.";
    state_.InstructionColour = Colour::Black;
    ShowInstruction();
}

void Mirror::TextEdited(MirrorControl control, const std::string& text, long caret) {
    auto& box = C(control);
    box.Text = text;
    box.Caret = caret;
    box.SelectionLength = 0;
}

void Mirror::CaretMoved(MirrorControl control, long caret, long selectionLength) {
    C(control).Caret = caret;
    C(control).SelectionLength = selectionLength;
}

void Mirror::FocusLost(MirrorControl control) {
    if (control == MirrorControl::txtMirror || control == MirrorControl::txtAnalyze) {
        FocusGained(MirrorControl::Window);
    }
}

// The entry box keeps the focus whenever it is enabled; while it is not and the list box shows,
// the list box keeps it.
void Mirror::FocusGained(MirrorControl control) {
    controls_.Focus = control;
    if (world_.ClosingState == ClosingStates::Exiting) {
        return;
    }
    if (C(MirrorControl::txtMirror).Enabled) {
        controls_.Focus = MirrorControl::txtMirror;
    } else if (C(MirrorControl::txtAnalyze).Visible) {
        controls_.Focus = MirrorControl::txtAnalyze;
    }
}

} // namespace veyrant
