#pragma once

// The Read window's logic: its controls, its state and its event handlers. It shows one library
// at a time, the saved Dialogues or one of the three fixed libraries. It never touches the
// screen itself; the Qt window renders Controls() after every handler and turns its events into
// the calls below.

#include "core/HoverHelp.h"
#include "core/MouseButton.h"
#include "core/WindowLayer.h"
#include "reader/ReaderControls.h"
#include "reader/ReaderState.h"
#include "reader/ReaderWorld.h"

#include <functional>
#include <string>

namespace veyrant {

class NoCaseFinder;

class Reader {
public:
    // The window's load: geometry for the display scale, fixed colours and the key lines.
    explicit Reader(ReaderWorld world);

    const ReaderControls& Controls() const { return controls_; }
    const ReaderState& State() const { return state_; }
    const HoverHelp<ReaderControls, ReaderControl>& Hover() const { return hover_; }

    // Called before each yield and each modal box, so that the screen shows the state.
    void SetPainter(std::function<void()> painter) { painter_ = std::move(painter); }

    // The Write window's request for a library (1 Dialogue to 4 Advanced Knowledge): a fixed
    // library's flag is raised only when nothing stands there, since a mark may be waiting.
    void RequestLibrary(LibraryId library);
    // Opens the Reader on the library whose flag comes first.
    void SetReader();
    // The window unloads, however that came about: the marks go to Read.ini.
    void CloseReader();

    // Key down at window level: returns the key code to go on with, 0 when it was used.
    int KeyDown(int keyCode);
    // Key press: characters typed at txtCursor or txtSpin are thrown away.
    int KeyPress(int keyAscii, ReaderControl control);

    void Click(ReaderControl control);
    // The user picked a list row; the row selection follows as for a program's selection.
    void ListRowClicked(int row);
    void MouseDown(ReaderControl control, MouseButton button);
    void MouseUp(ReaderControl control, MouseButton button);
    void MouseMove(ReaderControl control);
    void FocusGained(ReaderControl control);
    // The window came to the front, by the user or the desktop.
    void CameToFront();
    // The user changed the text of txtSearch.
    void SearchTextChanged(const std::string& text);
    void TimerFired(TimerId timer);

    // The outer size of the window in twips, frame included.
    int WindowWidth() const;
    int WindowHeight() const;

    // The hover help of a button as its state stands; a screen reader gives it as the button's
    // description.
    std::string HoverTextFor(ReaderControl button) const;

    // The visible state as short stable lines, for tests and diagnosis.
    std::string Dump() const;

private:
    // Opening and the lists.
    void ShowLibrary();
    void OpenDialogueList();
    void OpenFixedList();
    void FillFixedList(const FixedLibrary& library);
    void BuildDialogueList();
    void FillDialogueList();
    // The date line, the Inspiration and the Dialogue, as ShowDialogue shows them.
    void ComposeDialogueText(std::string& text) const;
    void LoadDialogue(int position);
    void LoadShownDialogue();
    void ShowDialogue(int position);
    std::string FitToList(const std::string& text) const;
    const FixedLibrary& OpenLibrary() const;
    std::int16_t& CurrentRow();

    // Selection and the index button.
    void SelectRow(int row);
    void ListClick();
    void SelectDialogue(int position);
    void SelectFixedRow(int position);
    void ClickSelect();
    void ReopenList();
    void SetButtons(int buttonState);
    void SetSearchButton(bool on);
    void ScrollList();

    // Search: cmdSearch's caption is its state ("Search", "Enter >>", "< Go >", "< Next >",
    // "New"), and the walk goes row by row through the composed text of each row.
    void SetSearchMode(int on);
    void EnterSearch();
    void SearchStep();
    void ClickSearch();
    void ClickSearchBox();
    void SearchEnter();
    void SetSearchBoxText(const std::string& text);
    bool SearchOpenDialogue(const NoCaseFinder& finder);
    bool SearchAllDialogues(const NoCaseFinder& finder);
    bool SearchFixedLibrary(const NoCaseFinder& finder);
    bool FindSearchText(const NoCaseFinder& finder);
    void ShowHit();
    void EndWalk(const char* notFound);
    std::string SearchHoverText() const;

    // Stepping and window modes.
    void SetStepButtons(bool on);
    void Step(int by);
    void SetWindowLayout(int mode);
    void PlaceText(int top, int height);
    void ClickWindow();
    void CycleFontStep();
    void ApplyFontStep();
    int SplitListHeight() const;
    int ExpandedListHeight() const;
    bool ListIsSplit() const;
    void HelpKey();

    // Hover help and focus.
    void MarkHover(ReaderControl button);
    std::string WindowHoverText() const;
    void NoteHover();
    void BackgroundMove();
    void BackgroundPress();
    void ShowNote();

    // Layout at load.
    void ScaleReader();

    // The four action buttons: Mark Exit, Print or Merge, File and Delete.
    void ClickMarkExit();
    void ClickPrint();
    void PrintOpenDialogue();
    void MergeSection();
    void FileOpenDialogue();
    void DeleteOpenDialogue();
    void Yield();

    MessageAnswer Message(const std::string& title, const std::string& text);
    void Paint();
    bool IsDialogueLibrary() const;

    Control& C(ReaderControl control) { return controls_[control]; }
    const Control& C(ReaderControl control) const { return controls_[control]; }

    ReaderWorld world_;
    std::function<void()> painter_;
    ReaderControls controls_;
    ReaderState state_;
    HoverHelp<ReaderControls, ReaderControl> hover_;
    int windowWidth_ = 0;
    int windowHeight_ = 0;
};

} // namespace veyrant
