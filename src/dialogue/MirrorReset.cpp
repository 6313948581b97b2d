// Where a Dialogue begins and ends: the reset to a new or prior Dialogue, Finish, Continue,
// Save, and the jobs of cmdNew by its caption.

#include "core/Clock.h"
#include "core/DateFormat.h"
#include "core/Random.h"
#include "dialogue/DialogueEngine.h"
#include "dialogue/Mirror.h"
#include "dialogue/MirrorTexts.h"
#include "dialogue/MirrorWorld.h"
#include "dialogue/Transcript.h"
#include "printing/SaveTextFile.h"
#include "storage/DialogueLibrary.h"
#include "storage/LibraryStatus.h"

namespace veyrant {

namespace {

// The Library's own limits took a Dialogue the moment it was saved: the buffers still hold it,
// and the user must hear of it before anything deletes them.
std::string NotKeptText(const Settings& limits) {
    return "The Library keeps up to " + std::to_string(limits.MaxLibraryFiles) +
           " Dialogues, none older than " + std::to_string(limits.MaxLibraryDays) +
           " days. This Dialogue is older than the Library keeps, or the Library is full of "
           "later ones, so it could not stay there.\r\n\r\nYour Dialogue is not lost: it "
           "remains on the screen and in the work buffers, where it reopens at the next start. "
           "You may print it or file it now. To keep it in the Library, right-click 'Retrieve' "
           "to widen the Library Options, then start the program again and save it.";
}

std::string AgeText(int days) {
    if (days == 0) {
        return ", 0 Days";
    }
    if (days == 1) {
        return ", 1 Day";
    }
    return ", " + std::to_string(days) + " Days Old";
}

} // namespace

bool Mirror::GuestMode() const {
    return world_.UserSettings.GuestMode == 1;
}

std::string Mirror::LibraryStatusText(const std::string& suggestionText) const {
    return suggestionText + "\r\n\r\n" + GenLibStatus(library_.Listing(), world_.UserSettings);
}

bool Mirror::Unload() {
    if (!KeepBeforeLeaving()) {
        return false;
    }
    C(MirrorControl::txtMirror).Enabled = false;
    return true;
}

DialogueBuffers Mirror::Record() const {
    return {state_.InspirationText, state_.DialogueText, state_.SuggestionText, state_.PairCount};
}

bool Mirror::KeepInBuffers() {
    unkept_ = !buffers_.WriteWorkBuffers(Record());
    return !unkept_;
}

bool Mirror::KeepBeforeLeaving() {
    if (!MustKeep()) {
        return true;
    }
    const KeepOutcome outcome = buffers_.WriteWorkBuffersLeaving(Record());
    unkept_ = outcome != KeepOutcome::Kept;
    if (outcome == KeepOutcome::SaveElsewhere) {
        return SaveTextFile(world_.Windows, world_.Clock.Now(),
                            FullViewText(state_.InspirationText, "Dialogue" + state_.DialogueText));
    }
    return outcome == KeepOutcome::Kept;
}

// A finished Dialogue was written at Finish; only a failure then leaves it to be kept.
bool Mirror::MustKeep() const {
    return (IsRunning(state_.ActiveMethod) && !state_.DialogueText.empty()) || unkept_;
}

void Mirror::ResetDialogue() {
    hover_.Rewind();
    state_.SupposeStage = SupposeStep::Off;
    state_.PairCount = 0;
    state_.AwaitingEnter = true;
    state_.EntryFailed = false;
    state_.IdeaIndex = 0;
    state_.DisplayFull = false;
    state_.EntryType = SentenceType::None;
    state_.IdeaLimit = 98;
    state_.EntryText.clear();
    state_.EntryBackup.clear();
    state_.DialogueText.clear();
    state_.CycleCount = 0;

    world_.Random.Seed(world_.Clock.Timer());
    state_.CycleGoal = static_cast<int>(10 * world_.Random.Draw()) + 3;
    // A list of ideas cancelled in an empty Dialogue closes and gives the entry box back,
    // whichever Dialogue comes next.
    C(MirrorControl::txtAnalyze).Visible = false;
    C(MirrorControl::txtAnalyze).Enabled = false;
    C(MirrorControl::lblRemS).Visible = false;
    C(MirrorControl::txtMirror).Enabled = true;
    controls_.Focus = MirrorControl::txtMirror;

    if (LoadPriorDialogue()) {
        return;
    }
    BeginDialogue();

    C(MirrorControl::txtSaved).Background = Colour::DialogueGrey;
    ArrangeOpening();
    C(MirrorControl::txtResponse).Background = Colour::ColourAdded;
    for (auto control :
         {MirrorControl::cmdClear, MirrorControl::cmdRemove, MirrorControl::cmdDisplay,
          MirrorControl::cmdNew, MirrorControl::cmdPrint, MirrorControl::cmdSave}) {
        C(control).Visible = false;
        C(control).Enabled = false;
    }
    C(MirrorControl::lblRem).Visible = false;
    C(MirrorControl::lblRemS).Visible = false;
    C(MirrorControl::cmdRemove).Text = "Edit";
    C(MirrorControl::txtAnalyze).Visible = false;
    C(MirrorControl::txtSaved).Visible = true;

    if (!state_.TitleShownOnce) {
        state_.TitleShownOnce = true;
        controls_.Title = std::string(MirrorText::ProductLine);
    } else {
        controls_.Title = GuestMode() ? "Veyrant Sagrel -- New Dialogue -- Guest Mode"
                                      : "Veyrant Sagrel -- New Dialogue";
    }
    state_.InstructionText = "Reflect upon the Inspiration and Suggestion to compose your thoughts "
                             "before you begin. Click either text to change it.";
    state_.InstructionColour = Colour::Black;
    ShowInstruction();

    C(MirrorControl::cmdNew).Text = "Cancel";
    C(MirrorControl::cmdNew).Ink = Colour::Black;
    state_.ActiveMethod = WriteMethod::None;
    for (auto button : {MirrorControl::cmdConverse, MirrorControl::cmdSuppose,
                        MirrorControl::cmdNotate, MirrorControl::cmdKnow}) {
        C(button).PressedIn = false;
    }
    for (auto button :
         {MirrorControl::cmdConverse, MirrorControl::cmdSuppose, MirrorControl::cmdNotate}) {
        C(button).Enabled = true;
    }
    C(MirrorControl::txtMirror).Enabled = false;
    C(MirrorControl::txtMirror).Text.clear();
    C(MirrorControl::txtMirror).Background = Colour::EntryYellow;
}

bool Mirror::LoadPriorDialogue() {
    state_.ActiveMethod = WriteMethod::None;
    const auto prior = buffers_.ReadWorkBuffers();
    if (!prior) {
        return false;
    }
    state_.InspirationText = prior->Buffers.InspirationText;
    state_.DialogueText = prior->Buffers.DialogueText;
    state_.SuggestionText = prior->Buffers.SuggestionText;
    state_.PairCount = prior->Buffers.PairCount;
    state_.InspirationView = "Inspiration\r\n" + state_.InspirationText;

    state_.TitleMethod = PagesTitle(state_.PairCount) + AgeText(prior->PriorAge);
    controls_.Title = std::string(MirrorText::TitleLead) + state_.TitleMethod + " -- " +
                      FormatDate(prior->BufferDate, MirrorText::TitleDateFormat);

    state_.DialogueView = "Dialogue" + state_.DialogueText;
    C(MirrorControl::cmdNew).Text = "New";
    C(MirrorControl::txtSaved).Visible = true;
    ShowDialogueFull();

    for (auto button : {MirrorControl::cmdConverse, MirrorControl::cmdSuppose,
                        MirrorControl::cmdNotate, MirrorControl::cmdClear}) {
        C(button).Enabled = false;
    }
    for (auto button : {MirrorControl::cmdRemove, MirrorControl::cmdDisplay, MirrorControl::cmdNew,
                        MirrorControl::cmdSave}) {
        C(button).Visible = true;
        C(button).Enabled = true;
    }
    C(MirrorControl::cmdSave).Enabled = !GuestMode();
    C(MirrorControl::cmdDisplay).Text = "File";
    C(MirrorControl::cmdRemove).Text = "Continue";
    state_.InstructionText = "Click 'Continue' to open and continue the prior Dialogue. Or click "
                             "'New' to erase the Dialogue and begin another.";
    state_.InstructionColour = Colour::Black;
    ShowInstruction();
    return true;
}

void Mirror::BeginDialogue() {
    state_.SeriesSeed = world_.Clock.Timer();
    engine_.StretchSeeds(state_.SeriesSeed);
    state_.InspirationText = engine_.RequestInspiration();
    state_.InspirationView = "Inspiration\r\n" + state_.InspirationText;
    SetResponse(state_.InspirationView, C(MirrorControl::txtResponse).Background);
    state_.SuggestionText = engine_.PickGuidance();
    C(MirrorControl::txtSaved).Text = LibraryStatusText(state_.SuggestionText);
}

void Mirror::FinishDialogue() {
    for (auto button :
         {MirrorControl::cmdConverse, MirrorControl::cmdSuppose, MirrorControl::cmdNotate}) {
        C(button).PressedIn = false;
        C(button).Enabled = false;
    }
    state_.InstructionText =
        GuestMode() ? "To keep your Dialogue, click 'Print' or 'File'. Click 'New' to "
                      "delete the Dialogue and begin another."
                    : "To keep your Dialogue, click 'Save', or close the program. Click "
                      "'New' to delete the Dialogue and begin another.";
    state_.InstructionColour = Colour::Black;
    state_.TitleMethod = PagesTitle(state_.PairCount);
    UpdateTitle();

    C(MirrorControl::cmdClear).Enabled = false;
    C(MirrorControl::txtAnalyze).Enabled = false;
    C(MirrorControl::txtAnalyze).Visible = false;
    C(MirrorControl::txtMirror).Enabled = true;
    controls_.Focus = MirrorControl::txtMirror;
    C(MirrorControl::txtSaved).Background = Colour::EntryYellow;
    if (!state_.DisplayFull) {
        state_.DialogueView = C(MirrorControl::txtSaved).Text;
        ShowDialogueFull();
    }
    KeepInBuffers();

    C(MirrorControl::lblRem).Visible = false;
    C(MirrorControl::lblRemS).Visible = false;
    state_.ActiveMethod = WriteMethod::None;
    C(MirrorControl::cmdNew).Text = "New";
    C(MirrorControl::cmdNew).Enabled = true;
    C(MirrorControl::cmdSave).Enabled = !GuestMode();
    C(MirrorControl::cmdDisplay).Text = "File";
    C(MirrorControl::cmdDisplay).Enabled = true;
    C(MirrorControl::cmdPrint).Enabled = true;
    C(MirrorControl::cmdRemove).Enabled = true;
    C(MirrorControl::cmdRemove).Text = "Continue";
    ShowInstruction();
}

void Mirror::ContinueDialogue() {
    state_.DisplayFull = false;
    for (auto button :
         {MirrorControl::cmdConverse, MirrorControl::cmdSuppose, MirrorControl::cmdNotate}) {
        C(button).Enabled = true;
    }
    C(MirrorControl::cmdPrint).Enabled = false;
    C(MirrorControl::cmdSave).Enabled = false;
    C(MirrorControl::cmdNew).Text = "Finish";
    Click(MirrorControl::cmdConverse);
}

void Mirror::SaveDialogue() {
    C(MirrorControl::cmdSave).Enabled = false;
    world_.Windows.SetBusyPointer(true);
    const auto saved = library_.AddToLibrary(state_.InspirationText, state_.DialogueText);
    if (!saved || !library_.Holds(*saved)) {
        if (saved) {
            world_.Windows.SetBusyPointer(false);
            Message("Dialogue Not Kept in the Library", NotKeptText(world_.UserSettings),
                    MessageIcon::Warning, MessageButtons::Ok);
        }
        // The box has told why; the Dialogue stays as it is, to be saved again or kept.
        C(MirrorControl::cmdSave).Enabled = true;
        world_.Windows.SetBusyPointer(false);
        return;
    }
    state_.DialogueSaved = true;
    C(MirrorControl::cmdNew).Text = "New";
    Click(MirrorControl::cmdNew);
    world_.Windows.SetBusyPointer(false);
}

void Mirror::ClickNewCaption() {
    const std::string caption = C(MirrorControl::cmdNew).Text;
    if (caption == "Finish") {
        FinishDialogue();
    } else if (caption == "Cancel") {
        if (!state_.DialogueText.empty() && state_.ActiveMethod != WriteMethod::Converse) {
            if (state_.DisplayFull) {
                Click(MirrorControl::cmdDisplay);
            }
            C(MirrorControl::cmdNew).Text = "Finish";
            Click(MirrorControl::cmdConverse);
        } else {
            ResetDialogue();
        }
    } else if (caption == "Select") {
        if (state_.DisplayFull) {
            Click(MirrorControl::cmdDisplay);
        }
        ConcludeSupposition(ReplyKind::Answer);
    } else if (caption == "New") {
        if (!state_.DialogueText.empty() && !GuestMode() && !state_.DialogueSaved) {
            const auto answer =
                Message("Save Finished Dialogue",
                        "When you click 'Save', your Dialogue is added to the Library, where you "
                        "may read, print, file, or delete it anytime. You may also temporarily "
                        "save the Dialogue and continue it later if you exit the program without "
                        "clicking 'New'.\r\n\r\nDo you wish to add your Dialogue to the Library "
                        "before beginning another?",
                        MessageIcon::Warning, MessageButtons::YesNoCancel);
            if (answer != MessageAnswer::No) {
                return;
            }
        }
        state_.DialogueSaved = false;
        unkept_ = false;
        buffers_.DeleteWorkBuffers();
        ResetDialogue();
    }
}

} // namespace veyrant
