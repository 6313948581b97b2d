// The window's events as the screen reports them, sent to the routine that owns each control,
// and the few platform calls that must show the state first.

#include "dialogue/Mirror.h"
#include "dialogue/MirrorTexts.h"
#include "dialogue/MirrorWorld.h"

namespace veyrant {

namespace {

bool IsButton(MirrorControl control) {
    switch (control) {
    case MirrorControl::cmdConverse:
    case MirrorControl::cmdSuppose:
    case MirrorControl::cmdNotate:
    case MirrorControl::cmdKnow:
    case MirrorControl::cmdRetrieve:
    case MirrorControl::cmdHelp:
    case MirrorControl::cmdClear:
    case MirrorControl::cmdRemove:
    case MirrorControl::cmdDisplay:
    case MirrorControl::cmdPrint:
    case MirrorControl::cmdSave:
    case MirrorControl::cmdNew:
        return true;
    default:
        return false;
    }
}

bool IsTextBox(MirrorControl control) {
    return control == MirrorControl::txtMirror || control == MirrorControl::txtAnalyze ||
           control == MirrorControl::txtResponse || control == MirrorControl::txtSaved;
}

} // namespace

Mirror::Mirror(MirrorWorld world, DialogueEngine& engine, WorkBuffers& buffers,
               DialogueLibrary& library)
    : world_(world), engine_(engine), buffers_(buffers), library_(library),
      hover_(world.Windows, TimerId::MirrorHover, controls_, MirrorControl::txtNote) {
    ScaleAtCreation();
    // Nothing shows until the delayed start has reset the Dialogue.
    for (auto& control : controls_.Items) {
        control.Visible = false;
    }
    C(MirrorControl::Window).Visible = true;
    C(MirrorControl::cmdClear).Text = "Rewrite";
    C(MirrorControl::cmdConverse).Text = "Converse";
    C(MirrorControl::cmdSuppose).Text = "Suppose";
    C(MirrorControl::cmdNotate).Text = "Comment";
    C(MirrorControl::cmdKnow).Text = "Know";
    C(MirrorControl::cmdRetrieve).Text = "Retrieve";
    C(MirrorControl::cmdHelp).Text = "Help";
    C(MirrorControl::cmdRemove).Text = "Edit";
    C(MirrorControl::cmdDisplay).Text = "Display";
    C(MirrorControl::cmdPrint).Text = "Print";
    C(MirrorControl::cmdSave).Text = "Save";
    C(MirrorControl::cmdNew).Text = "Cancel";
    C(MirrorControl::txtSaved).Background = Colour::DialogueGrey;
    C(MirrorControl::txtResponse).Background = Colour::ColourAdded;
    C(MirrorControl::txtNote).Background = Colour::White;
    // A guest can neither retrieve Dialogues nor reach the Library's options from here.
    if (GuestMode()) {
        C(MirrorControl::cmdRetrieve).Enabled = false;
    }
}

void Mirror::StartWindow() {
    ApplyWriteFont();
    C(MirrorControl::txtMirror).Enabled = true;
    for (auto control :
         {MirrorControl::txtNote, MirrorControl::cmdKnow, MirrorControl::cmdConverse,
          MirrorControl::cmdSuppose, MirrorControl::cmdNotate, MirrorControl::cmdRetrieve,
          MirrorControl::cmdHelp, MirrorControl::cmdRemove, MirrorControl::cmdClear,
          MirrorControl::cmdDisplay, MirrorControl::cmdPrint, MirrorControl::cmdSave,
          MirrorControl::cmdNew, MirrorControl::Panel1, MirrorControl::txtSaved}) {
        C(control).Visible = true;
    }
    ResetDialogue();
    C(MirrorControl::txtMirror).Visible = true;
    C(MirrorControl::txtResponse).Visible = true;
    Yield();
}

void Mirror::Click(MirrorControl control) {
    if (IsButton(control)) {
        // The effect of a click is not hidden behind old help.
        hover_.End();
    }
    switch (control) {
    case MirrorControl::cmdConverse:
        ClickMethod(WriteMethod::Converse);
        break;
    case MirrorControl::cmdSuppose:
        ClickMethod(WriteMethod::Suppose);
        break;
    case MirrorControl::cmdNotate:
        ClickMethod(WriteMethod::Comment);
        break;
    case MirrorControl::cmdClear:
        // Rewrite is a click on the box in use.
        if (C(MirrorControl::txtAnalyze).Visible) {
            ClickAnalyzeBox();
        } else {
            ClickEntryBox();
        }
        break;
    case MirrorControl::txtMirror:
        ClickEntryBox();
        break;
    case MirrorControl::txtAnalyze:
        ClickAnalyzeBox();
        break;
    case MirrorControl::cmdRemove:
        ClickRemove();
        break;
    case MirrorControl::cmdDisplay:
        if (C(control).Text == "File") {
            FileFinishedDialogue();
        } else {
            ClickDisplay();
        }
        break;
    case MirrorControl::cmdPrint:
        PrintFinishedDialogue();
        break;
    case MirrorControl::cmdNew:
        ClickNewCaption();
        break;
    case MirrorControl::cmdSave:
        SaveDialogue();
        break;
    case MirrorControl::txtResponse:
        ClickResponse();
        break;
    case MirrorControl::cmdHelp:
        OpenLibrary(LibraryId::Information);
        break;
    case MirrorControl::cmdRetrieve:
        OpenLibrary(LibraryId::Dialogue);
        break;
    case MirrorControl::cmdKnow:
        OpenLibrary(knowButton_ == MouseButton::Right ? LibraryId::Advanced : LibraryId::Knowledge);
        break;
    case MirrorControl::txtSaved:
        ClickSaved();
        break;
    default:
        break;
    }
}

void Mirror::MouseDown(MirrorControl control, MouseButton button) {
    if (control == MirrorControl::txtMirror && button == MouseButton::Right) {
        Message("Change Font Size", "There are two font sizes available in the Write window.");
        ToggleWriteFont();
    } else if (control == MirrorControl::cmdSuppose && button == MouseButton::Left) {
        PressMethodButton(MirrorControl::cmdSuppose);
    } else if (control == MirrorControl::cmdHelp && button == MouseButton::Right &&
               C(control).Enabled) {
        OpenWindowBehindWrite(WindowId::Utility, "Utilities");
    } else if (control == MirrorControl::cmdRetrieve && button == MouseButton::Right &&
               C(control).Enabled) {
        OpenWindowBehindWrite(WindowId::Options, "Library Options");
    } else if (control == MirrorControl::cmdKnow) {
        knowButton_ = button;
        PressLibraryButton(control);
    } else if ((control == MirrorControl::cmdHelp || control == MirrorControl::cmdRetrieve) &&
               button == MouseButton::Left) {
        PressLibraryButton(control);
    } else if (control == MirrorControl::Window || control == MirrorControl::Panel1) {
        // Any button on the bare window brings the backdrop back.
        BackgroundPress();
    }
}

void Mirror::MouseUp(MirrorControl control, MouseButton) {
    if (IsTextBox(control)) {
        C(control).SelectionLength = 0;
    }
}

void Mirror::MouseMove(MirrorControl control) {
    if (IsButton(control)) {
        const std::string help = C(control).Enabled ? HelpFor(control) : std::string{};
        if (help.empty()) {
            EndHover();
        } else {
            if (hover_.Marked() != control || C(control).Ink == Colour::Black) {
                hover_.Mark(control, help);
            }
        }
        return;
    }
    switch (control) {
    case MirrorControl::txtResponse:
        ResponseHover();
        break;
    case MirrorControl::txtNote:
        NoteHover();
        break;
    case MirrorControl::Window:
    case MirrorControl::Panel1:
        BackgroundMove();
        break;
    default:
        EndHover();
        break;
    }
}

void Mirror::TimerFired(TimerId timer) {
    if (timer == TimerId::MirrorHover) {
        hover_.Tick(state_.InstructionText, state_.InstructionColour);
    }
}

MessageAnswer Mirror::Message(const std::string& title, const std::string& text, MessageIcon icon,
                              MessageButtons buttons) {
    Paint();
    MessageBoxRequest request;
    request.Title = title;
    request.Text = text;
    request.Icon = icon;
    request.Buttons = buttons;
    return world_.Windows.ShowMessage(request);
}

void Mirror::Yield() {
    Paint();
    world_.Windows.Yield();
}

void Mirror::Paint() {
    if (painter_) {
        painter_();
    }
}

} // namespace veyrant
