// The instruction panel: the standing instruction, the hover help of the buttons and text areas
// on the Tn timer, and txtResponse as a small reader of the Direction, Inspiration and
// Suggestion.

#include "core/Clock.h"
#include "dialogue/DialogueEngine.h"
#include "dialogue/Mirror.h"
#include "dialogue/MirrorTexts.h"
#include "dialogue/MirrorWorld.h"
#include "storage/DialogueLibrary.h"

namespace veyrant {

// The mouse left for a place without help: the instruction comes back at once.
void Mirror::EndHover() {
    if (C(MirrorControl::txtNote).Text != state_.InstructionText) {
        ShowInstruction();
    }
    hover_.End();
    hover_.LeaveArea();
}

namespace {

// A method button pressed in speaks of the way out that cmdNew offers; with "Select" on show
// there is none to speak of, so it has no help.
std::string PressedMethodHelp(MirrorControl control, const std::string& newCaption) {
    if (newCaption == "Finish") {
        return "Click 'Finish' to close your Dialogue for saving, printing, or filing. You may "
               "reopen it by clicking 'Continue'.";
    }
    if (newCaption != "Cancel") {
        return {};
    }
    switch (control) {
    case MirrorControl::cmdConverse:
        return "Click 'Cancel' to exit Converse and reset to New Dialogue.";
    case MirrorControl::cmdSuppose:
        return "Click 'Cancel' to end your Dialogue. Or click another interactive method.";
    default:
        return "Click 'Cancel' to exit Notation and reset to the Converse method of interaction.";
    }
}

} // namespace

// Empty where the control has no help in the state at hand.
std::string Mirror::HelpFor(MirrorControl control) const {
    const auto& newCaption = controls_[MirrorControl::cmdNew].Text;
    const auto& self = controls_[control];
    const bool dialogueEmpty = state_.DialogueText.empty();
    switch (control) {
    case MirrorControl::cmdConverse:
    case MirrorControl::cmdSuppose:
    case MirrorControl::cmdNotate:
        if (newCaption == "New") {
            return "Click 'New' to begin another Dialogue.";
        }
        if (self.PressedIn) {
            return PressedMethodHelp(control, newCaption);
        }
        if (control == MirrorControl::cmdConverse) {
            return "Create entry-response pairs with the Converse method. Ask questions or make "
                   "statements for the Sagrel's response.";
        }
        if (control == MirrorControl::cmdSuppose) {
            return "Create an entry-response pair with the Suppose method. Ask a question, then "
                   "suppose ideas that might answer it.";
        }
        return state_.ActiveMethod == WriteMethod::None
                   ? "Open your Dialogue with a comment. Write a short "
                     "paragraph without creating an Sagrel response."
                   : "Add a comment into your Dialogue. Write a short "
                     "paragraph without creating an Sagrel response.";
    case MirrorControl::cmdNew:
        if (newCaption == "Finish") {
            return "Finish your Dialogue and display it full screen. Then you may save, print, "
                   "file, or erase it.";
        }
        if (newCaption == "Cancel") {
            return dialogueEmpty ? "Cancel your interaction and return to New Dialogue."
                                 : "Cancel this method of interaction and reset to Converse. Then "
                                   "you may click 'Finish' to close your Dialogue.";
        }
        if (newCaption == "New") {
            return "Erase the Dialogue to begin another. To save it first, click 'Save', or close "
                   "the program without clicking 'New'.";
        }
        return "Select the supposed answer to your question from the list you entered. To "
               "cancel, click another method.";
    case MirrorControl::cmdRemove: {
        if (self.Text == "Continue") {
            return "Open the prior conversation with the saved Dialogue displayed, so it may be "
                   "continued.";
        }
        const bool comment = state_.ActiveMethod == WriteMethod::Comment;
        if (state_.PairState != PairShown::LeftOut) {
            return comment ? "Remove the current comment from the Dialogue"
                           : "Remove the current entry-response pair from the Dialogue.";
        }
        return comment ? "Keep the current comment in the Dialogue"
                       : "Keep the current entry-response pair in the Dialogue.";
    }
    case MirrorControl::cmdDisplay:
        if (self.Text == "File") {
            return "Save the displayed Dialogue as a text file in the program's text editor.";
        }
        if (self.Text == "Display") {
            return "Display the Dialogue full screen. You may also click the text. Click again to "
                   "reset the display to the interactive mode.";
        }
        return "Reset the display to the interactive mode. You may also click the Dialogue text.";
    case MirrorControl::cmdClear:
        return "Erase your entry to begin again. You may also click the text to erase it when you "
               "are typing.";
    case MirrorControl::cmdPrint:
        return "Print your Dialogue. If you do not save it, you must print your Dialogue before "
               "you click 'New'.";
    case MirrorControl::cmdSave:
        return "Save your Dialogue into the Library, so you may read, print, or file it there. "
               "That will erase the current Dialogue.";
    case MirrorControl::cmdHelp:
        return state_.ReadLibrary == LibraryId::Information
                   ? "The Information Library is already open. Check your open windows. You must "
                     "close the Read window to right-click for Utilities."
                   : "Open the Information Library for instructions and information on the "
                     "program. Right-click to open the Utilities window.";
    case MirrorControl::cmdKnow:
        if (state_.ReadLibrary == LibraryId::Knowledge) {
            return "The Knowledge Library is open. For the Advanced Knowledge Library, close the "
                   "Read window and right-click 'Know'.";
        }
        if (state_.ReadLibrary == LibraryId::Advanced) {
            return "The Advanced Knowledge Library is open. For the Knowledge Library, close the "
                   "Read window and left-click 'Know'.";
        }
        return "Open the Knowledge Library for suggestions about self-empowerment. Right-click for "
               "Advanced Knowledge.";
    case MirrorControl::cmdRetrieve: {
        if (state_.ReadLibrary == LibraryId::Dialogue) {
            return "The Dialogue Library is already open. You must close the Read window to "
                   "right-click for Library Options.";
        }
        const int saved = library_.Listing().LibraryCount;
        if (saved == 0) {
            return "Open the Dialogue Library. You have no saved Dialogues. Right-click for "
                   "Library Options.";
        }
        if (saved == 1) {
            return "Open the Dialogue Library to access your 1 saved Dialogue. Right-click for "
                   "Library Options.";
        }
        return "Open the Dialogue Library to access your " + std::to_string(saved) +
               " saved Dialogues. Right-click for Library Options.";
    }
    default:
        return {};
    }
}

void Mirror::ResponseHover() {
    if (state_.ActiveMethod == WriteMethod::None) {
        hover_.End();
        return;
    }
    if (state_.ActiveMethod == WriteMethod::NotStarted || state_.EntryFailed ||
        (state_.ActiveMethod == WriteMethod::Converse && state_.AwaitingEnter)) {
        return;
    }
    const std::string tip(state_.ActiveMethod == WriteMethod::Suppose && state_.AwaitingEnter
                              ? MirrorText::TipQuestion
                              : MirrorText::TipDirection);
    if (C(MirrorControl::txtNote).Text == tip) {
        return;
    }
    hover_.StartArea(MirrorControl::txtResponse, tip);
}

void Mirror::NoteHover() {
    auto& note = C(MirrorControl::txtNote);
    if (note.Text == MirrorText::TipKeys) {
        return;
    }
    note.Text = MirrorText::TipKeysLead;
    note.Ink = Colour::HelpInk;
    hover_.StartArea(MirrorControl::txtNote, std::string(MirrorText::TipKeys));
}

void Mirror::SetResponse(const std::string& text, Colour background) {
    auto& response = C(MirrorControl::txtResponse);
    response.Text = text;
    response.Background = background;
    // The box keeps its latest lines in view.
    response.Caret = IsRunning(state_.ActiveMethod) ? static_cast<long>(text.size()) : 0;
}

// With no method running a click composes another Inspiration; during a method it turns over
// the Direction, the Inspiration and the Suggestion, and leaves anything else where it is.
void Mirror::ClickResponse() {
    if (state_.ActiveMethod == WriteMethod::None) {
        state_.SeriesSeed = world_.Clock.Timer();
        engine_.StretchSeeds(state_.SeriesSeed);
        state_.InspirationText = engine_.RequestInspiration();
        state_.InspirationView = "Inspiration\r\n" + state_.InspirationText;
        SetResponse(state_.InspirationView, C(MirrorControl::txtResponse).Background);
        return;
    }
    if (state_.ActiveMethod == WriteMethod::NotStarted || state_.EntryFailed ||
        (state_.ActiveMethod == WriteMethod::Converse && state_.AwaitingEnter)) {
        return;
    }
    auto& response = C(MirrorControl::txtResponse);
    if (response.Text == state_.DirectionText) {
        SetResponse(state_.InspirationView, response.Background);
    } else if (response.Text == state_.InspirationView) {
        SetResponse(state_.SuggestionText, response.Background);
    } else if (response.Text == state_.SuggestionText) {
        SetResponse(state_.DirectionText, response.Background);
    }
    response.Caret = static_cast<long>(response.Text.size());
}

} // namespace veyrant
