// What selecting a list row shows, the index button whose caption is its state, and which
// buttons each state of the Reader offers.

#include "reader/Reader.h"

namespace veyrant {

namespace {

const char* const IndexCaption = "< Index >";
const char* const IndexOneCaption = "< Index 1 >";
const char* const IndexTwoCaption = "< Index 2 >";
const char* const CancelCaption = "Cancel";

} // namespace

void Reader::SelectRow(int row) {
    // A row the list does not hold selects nothing: a Dialogue's mark beyond a Library that has
    // shrunk since names a Dialogue that is gone, and the list is the honest place to open.
    const bool held = row >= 0 && row < static_cast<int>(controls_.List.Rows.size());
    controls_.List.Selected = held ? row : -1;
    ListClick();
}

void Reader::ListRowClicked(int row) {
    hover_.End();
    SelectRow(row);
}

void Reader::ListClick() {
    const int position = controls_.List.Selected;
    if (position < 0 || position >= static_cast<int>(controls_.List.Rows.size())) {
        return;
    }
    if (IsDialogueLibrary()) {
        SelectDialogue(position);
    } else {
        SelectFixedRow(position);
    }
}

void Reader::ScrollList() {
    controls_.List.TopRow = state_.ListPos < 3 ? 0 : state_.ListPos - 3;
}

void Reader::SelectDialogue(int position) {
    state_.ReopenLibrary = LibraryId::Dialogue;
    state_.ListPos = static_cast<std::int16_t>(position);
    world_.Marks.MarkRows[LibraryId::Dialogue] = static_cast<std::int16_t>(position);
    if (state_.SearchActive) {
        return;
    }
    LoadDialogue(position + 1);
    ShowDialogue(position + 1);
    state_.DialogueIndexShown = false;
    SetButtons(2);
    SetWindowLayout(world_.UserSettings.WindowMode[LibraryId::Dialogue]);
    ScrollList();
}

void Reader::SelectFixedRow(int position) {
    const FixedLibrary& library = OpenLibrary();
    state_.ReopenLibrary = world_.Values.ReadLibrary;
    state_.ListPos = static_cast<std::int16_t>(position);
    if (state_.IndexMode == IndexView::Sections) {
        // A Section of Index-1 opens Index-2 at that Section's row; the selection there does
        // the showing.
        const int row = library.SectionRow[static_cast<std::size_t>(position)];
        state_.IndexMode = IndexView::EveryRow;
        FillFixedList(library);
        state_.ListPos = static_cast<std::int16_t>(row);
        SelectRow(row);
        return;
    }
    const auto row = static_cast<std::size_t>(position);
    CurrentRow() = static_cast<std::int16_t>(position);
    controls_.Title = world_.Values.LibraryName + " -- " + std::to_string(position + 1) + "/" +
                      std::to_string(library.SectionEnd[row] + 1) + "/" +
                      std::to_string(library.LastRow + 1) + " -- " +
                      CleanTitle(library.Titles[row]);
    state_.DisplayText = ComposeRowText(library, position);
    if (!state_.SearchActive) {
        auto& spin = C(ReaderControl::txtSpin);
        spin.Text = state_.DisplayText;
        SetButtons(2);
        if (library.RowKind[row] < RowKinds::Section) {
            spin.Background = Colour::ReadingText;
        }
        if (library.RowKind[row] == RowKinds::Section) {
            spin.Background = Colour::IndexText;
            C(ReaderControl::cmdPrint).Enabled = true;
        }
        // A Section always shows split; a Topic in the library's own mode.
        SetWindowLayout(library.RowKind[row] >= RowKinds::Section
                            ? 0
                            : world_.UserSettings.WindowMode[world_.Values.ReadLibrary]);
    }
    ScrollList();
}

void Reader::ClickSelect() {
    hover_.End();
    const std::string caption = C(ReaderControl::cmdSelect).Text;
    const LibraryId library = world_.Values.ReadLibrary;
    if (caption == CancelCaption) {
        SetSearchMode(0);
        if (state_.ListPos >= 0) {
            controls_.List.Selected = -1;
        }
        C(ReaderControl::txtSpin).SelectionLength = 0;
        // What a search found stays on view; only a search from the bare index goes back to it.
        const bool foundShows = IsDialogueLibrary()
                                    ? !(state_.DialogueIndexShown && state_.HitCount == 0)
                                    : state_.HitCount != 0;
        if (foundShows) {
            state_.HitCount = 0;
            SetButtons(2);
            SetWindowLayout(world_.UserSettings.WindowMode[library]);
            return;
        }
        state_.ReopenLibrary = library;
        state_.HitCount = 0;
    } else if (!IsDialogueLibrary()) {
        state_.ReopenLibrary = library;
        if (state_.IndexMode == IndexView::Sections && caption == IndexOneCaption) {
            state_.IndexMode = IndexView::EveryRow;
        } else if (state_.IndexMode == IndexView::EveryRow && caption == IndexTwoCaption) {
            state_.IndexMode = IndexView::Sections;
        }
    }
    if (caption == IndexCaption) {
        state_.IndexMode = IndexView::Sections;
    }
    ReopenList();
}

void Reader::ReopenList() {
    if (state_.ReopenLibrary == LibraryId::Dialogue) {
        world_.Marks.MarkRows[LibraryId::Dialogue] = -1;
        OpenDialogueList();
        return;
    }
    CurrentRow() = -1;
    OpenFixedList();
}

void Reader::SetButtons(int buttonState) {
    auto& select = C(ReaderControl::cmdSelect);
    select.Enabled = true;
    for (auto control : {ReaderControl::cmdPrint, ReaderControl::cmdFile, ReaderControl::cmdExitM,
                         ReaderControl::cmdDelete}) {
        C(control).Enabled = false;
    }
    const bool search = buttonState == 4;
    select.Text = search ? CancelCaption : IndexCaption;
    bool steps = false;
    bool searchButton = true;
    if (IsDialogueLibrary()) {
        const bool open = buttonState == 2;
        steps = !search;
        switch (buttonState) {
        case 1:
            select.Enabled = false;
            searchButton = world_.Library.Listing().LibraryCount > 0;
            state_.NoteText =
                "Click 'Latest' to open your last Dialogue. Or select one on the list.";
            break;
        case 2:
            state_.NoteText = "Step into the Dialogues by clicking 'Later, Earlier' or by pressing "
                              "the 'Up, Down' arrow or page key. Click 'Index' to reset the list.";
            break;
        default:
            state_.NoteText =
                std::string(state_.DialogueIndexShown ? "Search all Dialogues."
                                                      : "Search this Dialogue only.") +
                " Enter the text, then click 'Go' or press 'Enter'. Click 'Cancel' "
                "to exit the search.";
            break;
        }
        for (auto control : {ReaderControl::cmdPrint, ReaderControl::cmdFile,
                             ReaderControl::cmdExitM, ReaderControl::cmdDelete}) {
            C(control).Enabled = open;
        }
    } else {
        switch (buttonState) {
        case 1:
            select.Text =
                state_.IndexMode == IndexView::Sections ? IndexOneCaption : IndexTwoCaption;
            state_.NoteText = "Click 'First' to open the first Section, or click a Section on the "
                              "list to open the Index.";
            break;
        case 2:
            steps = true;
            state_.NoteText = "Step into Topics by clicking 'Prior, Next' or by pressing the 'Up, "
                              "Down' arrow or page key. Click 'Index' or press 'Enter' to reset "
                              "the list.";
            break;
        case 3:
            state_.NoteText = "Click 'Window' or the text to split the window and show the index. "
                              "Click 'Index' to clear the window and reset the list.";
            break;
        default:
            state_.NoteText = "Enter the text, then click 'Go' or press 'Enter'. Click 'Cancel' "
                              "to exit the search.";
            break;
        }
        C(ReaderControl::cmdExitM).Enabled = buttonState == 2 || buttonState == 3;
    }
    SetStepButtons(steps);
    SetSearchButton(searchButton);
    ShowNote();
}

void Reader::SetSearchButton(bool on) {
    C(ReaderControl::cmdSearch).Enabled = on;
}

} // namespace veyrant
