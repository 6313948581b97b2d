#pragma once

// The Write window's logic: its controls, its state variables and its event handlers. It never
// touches the screen itself; the Qt window renders Controls() after every handler and turns its
// events into the calls below.

#include "core/HoverHelp.h"
#include "core/MouseButton.h"
#include "core/WindowLayer.h"
#include "dialogue/MirrorControls.h"
#include "dialogue/MirrorState.h"
#include "dialogue/MirrorWorld.h"
#include "storage/WorkBuffers.h"

#include <functional>
#include <string>

namespace veyrant {

class Backdrop;
class DialogueEngine;
class DialogueLibrary;
class LibraryDoor;

class Mirror {
public:
    Mirror(MirrorWorld world, DialogueEngine& engine, WorkBuffers& buffers,
           DialogueLibrary& library);

    const MirrorControls& Controls() const { return controls_; }
    const MirrorState& State() const { return state_; }

    // Called before each yield and each modal box, so that the screen shows the state.
    void SetPainter(std::function<void()> painter) { painter_ = std::move(painter); }

    // The delayed start of the window: shows the controls and resets the Dialogue.
    void StartWindow();

    // Key down: returns the key code to go on with, 0 when the key is dropped.
    int KeyDown(int keyCode);
    // Key press: returns the character code to go on with, 0 when the key is dropped.
    int KeyPress(int keyAscii);
    // A typed character that the Dialogue file cannot hold; it is never applied.
    void RefuseUnwritable();

    void Click(MirrorControl control);
    void MouseDown(MirrorControl control, MouseButton button);
    void MouseUp(MirrorControl control, MouseButton button);
    void MouseMove(MirrorControl control);
    void FocusLost(MirrorControl control);
    void FocusGained(MirrorControl control);
    void TimerFired(TimerId timer);

    // The screen applied a key the logic let through, or the user moved the caret.
    void TextEdited(MirrorControl control, const std::string& text, long caret);
    void CaretMoved(MirrorControl control, long caret, long selectionLength);

    // The outer size of the window in twips, frame included.
    int WindowWidth() const;
    int WindowHeight() const;

    // The hover help of a button as its state stands; a screen reader gives it as the button's
    // description.
    std::string HelpFor(MirrorControl control) const;

    // The visible state as short stable lines, for tests and diagnosis.
    std::string Dump() const;

    // The window closes: a running Dialogue goes into the work buffers, to reopen next time.
    // False when they could not be written: the box has said why, and the window must stay.
    bool Unload();

    // The Reader and the backdrop, which the composition root wires in after both exist.
    void ConnectLibraries(LibraryDoor& door, Backdrop& back);
    // The Reader has closed: the library buttons come up and this window comes back.
    void ReaderClosed();
    // The Reader deleted a Dialogue: the Library status follows, where it is on show.
    void LibraryChanged();
    // The window was minimised, or came back from minimised; coming back ends the reading.
    void WindowStateChanged(bool minimised);

private:
    // Dialogue cycle.
    void ClickMethod(WriteMethod method);
    void StartMethod(WriteMethod method);
    void StartEntry(WriteMethod method);
    void ProcessEntry();
    void ProcessComment();
    void TakeEntry();
    void JudgeEntry();
    void RejectLength(MirrorControl mark);
    void RejectEntry(bool comment);
    void ShowResult();
    // The lengths a box allows, by what is typed in it.
    enum class EntrySize { Entry, Comment, Idea };
    void SetEntryLimits(EntrySize size);
    void UpdateTitle();
    void AdvanceCycle();
    void ClickRemove();
    void ClickNew();
    void PressMethodButton(MirrorControl pressed);
    void ShowInstruction();
    void EnterInEntryBox();
    void DeliverNotice();
    void SetFinishOrCancel();
    std::string DirectionFor(WriteMethod method) const;
    std::string CommentInstruction() const;

    // Suppose: the list of ideas and the ends of the method.
    void OpenIdeaList();
    void PromptIdea();
    void AcceptIdea();
    void CheckIdea(const std::string& idea);
    void RankIdeas();
    void ConcludeSupposition(ReplyKind flag);
    void EndSupposition();

    // The list box's rules: its head ends at ListHead, and Enter files an idea.
    int AnalyzeKeyDown(int keyCode);
    int AnalyzeKeyPress(int keyAscii);
    bool CountIdea(int keyAscii);
    void EnterInList();
    void ClickAnalyzeBox();

    // Entry box rules.
    struct CountWording {
        std::string BelowMinimum;
        std::string Ready;
        std::string NearEnd; // follows the number of words left
        std::string Over;
    };
    int MirrorKeyDown(int keyCode);
    int MirrorKeyPress(int keyAscii);
    int RefuseControlKey(int keyCode);
    int KeepCaretOffHead(MirrorControl control, long head, int keyCode);
    bool CountEntry(int keyAscii);
    bool JudgeCount(MirrorControl mark, const CountWording& wording, int keyAscii);
    void ClickEntryBox();
    void RecordKey(int characterCode);

    // Transcript.
    void BuildPairText();
    void CheckDialogueLimit();
    void ShowDialogueFull();
    void ShowDialogueSmall();
    void ClickDisplay();
    void ClickSaved();
    void ShowSmallView();

    // Print and file.
    void PrintFinishedDialogue();
    void FileFinishedDialogue();

    // Instruction panel.
    void EndHover();
    void ResponseHover();
    void NoteHover();
    void ClickResponse();
    void SetResponse(const std::string& text, Colour background);

    // Layout and window keys.
    void ScaleAtCreation();
    void ArrangeOpening();
    void ArrangeEntry();
    void ArrangeResult();
    void Place(MirrorControl control, int top, int height);
    int WindowKeyDown(int keyCode);
    void PressFunctionKey(int number);
    void ToggleWriteFont();
    void ApplyWriteFont();

    // Start, finish and reopen.
    void ResetDialogue();
    bool LoadPriorDialogue();
    void BeginDialogue();
    void FinishDialogue();
    void ContinueDialogue();
    void SaveDialogue();
    void ClickNewCaption();
    DialogueBuffers Record() const;
    // Writes the Dialogue into the work buffers; false when they could not take it (the box has
    // said why), and then every way out tries again.
    bool KeepInBuffers();
    // On the way out of the program: keeps a Dialogue that must be kept, in the buffers or, when
    // they fail and the user asks, in a text file of the user's choice. True when the way out
    // may go on; false when the window must stay, with the Dialogue on it.
    bool KeepBeforeLeaving();
    // A Dialogue runs, or one the buffers could not take is on the screen.
    bool MustKeep() const;
    bool GuestMode() const;

    // The library buttons and the backdrop.
    void OpenLibrary(LibraryId library);
    void PressLibraryButton(MirrorControl pressed);
    void BackgroundPress();
    void BackgroundMove();

    // Utilities.
    // A right-click's window, named in the box that refuses it while the Reader is open.
    void OpenWindowBehindWrite(WindowId window, const std::string& windowName);
    std::string LibraryStatusText(const std::string& suggestionText) const;

    // Platform.
    MessageAnswer Message(const std::string& title, const std::string& text,
                          MessageIcon icon = MessageIcon::None,
                          MessageButtons buttons = MessageButtons::Ok);
    void Yield();
    void Paint();

    Control& C(MirrorControl control) { return controls_[control]; }

    MirrorWorld world_;
    DialogueEngine& engine_;
    WorkBuffers& buffers_;
    DialogueLibrary& library_;
    std::function<void()> painter_;
    LibraryDoor* door_ = nullptr;
    Backdrop* back_ = nullptr;
    // The button last pressed on cmdKnow: the left opens Knowledge, the right Advanced Knowledge.
    MouseButton knowButton_ = MouseButton::Left;

    MirrorControls controls_;
    MirrorState state_;

    HoverHelp<MirrorControls, MirrorControl> hover_;
    // The work buffers failed to take the Dialogue on the screen.
    bool unkept_ = false;

    // What the full view hides and gives back.
    struct FullViewNotes {
        bool RemVisible = false;
        bool RemSVisible = false;
        bool RemoveEnabled = false;
        bool NewEnabled = false;
        bool AnalyzeVisible = false;
        bool MirrorEnabled = false;
        std::string InstructionText;
        Colour InstructionColour = Colour::Black;
    } notes_;
};

} // namespace veyrant
