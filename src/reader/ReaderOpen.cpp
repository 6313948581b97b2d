// Opening and closing the Reader: which library comes up, its list and its instructions, and the
// marks written to Read.ini on the way out.

#include "reader/Reader.h"
#include "reader/ReaderTexts.h"

#include <utility>

namespace veyrant {

namespace {

// A library opened without its mark being taken forgets its place; the Advanced Knowledge
// Library keeps both, so a mark there outlives the close.
bool KeepsMarkOnClose(LibraryId library) {
    return library == LibraryId::Advanced;
}

} // namespace

Reader::Reader(ReaderWorld world)
    : world_(world), hover_(world.Windows, TimerId::ReadHover, controls_, ReaderControl::txtNote) {
    ScaleReader();
    state_.NoteColor = Colour::Black;
    C(ReaderControl::txtCursor).Visible = false;
    C(ReaderControl::cmdExitM).Text = "Mark Exit";
    C(ReaderControl::cmdFile).Text = "File";
    C(ReaderControl::cmdDelete).Text = "Delete";
    C(ReaderControl::cmdWindow).Text = "Window";
    C(ReaderControl::cmdPrint).Text = "Print";
    for (int index = 0; index < ReaderControlCount; ++index) {
        const auto control = static_cast<ReaderControl>(index);
        if (IsReaderButton(control) || control == ReaderControl::txtNote ||
            control == ReaderControl::Window) {
            C(control).Background = Colour::WindowGrey;
        }
    }
    C(ReaderControl::Panel1).Background = Colour::PanelGrey;
    SetSearchMode(0);
}

void Reader::RequestLibrary(LibraryId library) {
    OpenFlag& flag = world_.Marks.OpenFlags[library];
    // A Dialogue's mark is a list position, so a new request always stands; a fixed library's
    // mark is kept when one is waiting.
    if (library == LibraryId::Dialogue || flag == OpenFlag::None) {
        flag = OpenFlag::Requested;
    }
}

void Reader::SetReader() {
    world_.Values.ReaderOpen = ReaderOpenState::Open;
    // A mark waiting anywhere wins over a request: that is how a marked library reopens.
    for (const OpenFlag wanted : {OpenFlag::Marked, OpenFlag::Requested}) {
        for (const LibraryId library : AllLibraries) {
            if (world_.Marks.OpenFlags[library] == wanted) {
                world_.Values.ReadLibrary = library;
                if (wanted == OpenFlag::Requested) {
                    world_.Host.LoadReadSettings();
                }
                ShowLibrary();
                return;
            }
        }
    }
}

bool Reader::IsDialogueLibrary() const {
    return world_.Values.ReadLibrary == LibraryId::Dialogue;
}

const FixedLibrary& Reader::OpenLibrary() const {
    return world_.Libraries[world_.Values.ReadLibrary];
}

std::int16_t& Reader::CurrentRow() {
    return world_.Values.CurRow[world_.Values.ReadLibrary];
}

void Reader::ShowLibrary() {
    C(ReaderControl::cmdSelect).Enabled = true;
    C(ReaderControl::List1).Ink = Colour::Black;
    ApplyFontStep();
    C(ReaderControl::List1).Height = ListIsSplit() ? SplitListHeight() : ExpandedListHeight();
    SetSearchMode(0);
    state_.ListPos = -1;
    state_.HitCount = 0;
    state_.IndexMode = IndexView::Sections;
    const LibraryId library = world_.Values.ReadLibrary;
    OpenFlag& flag = world_.Marks.OpenFlags[library];
    const bool marked = flag == OpenFlag::Marked;
    if (IsDialogueLibrary()) {
        C(ReaderControl::cmdPrint).Text = "Print";
        state_.KeyHint = KeyHintDialogue;
        world_.Library.ScanLibrary();
        BuildDialogueList();
        OpenDialogueList();
    } else {
        C(ReaderControl::cmdPrint).Text = "Merge";
        state_.KeyHint = KeyHintLibrary;
        state_.IndexMode = marked ? IndexView::EveryRow : IndexView::Sections;
        OpenFixedList();
    }
    if (marked) {
        SelectRow(world_.Marks.MarkRows[library]);
    }
    flag = OpenFlag::None;
    controls_.Focus = ReaderControl::txtCursor;
    Paint();
    world_.Windows.ShowWindow(WindowId::Read);
}

void Reader::FillFixedList(const FixedLibrary& library) {
    auto& rows = controls_.List.Rows;
    rows.clear();
    controls_.List.Selected = -1;
    if (state_.IndexMode == IndexView::Sections) {
        for (int section = 0; section <= library.LastSection; ++section) {
            const int row = library.SectionRow[static_cast<std::size_t>(section)];
            rows.push_back(std::to_string(row + 1) + "\t" +
                           library.Titles[static_cast<std::size_t>(row)]);
        }
        return;
    }
    for (int row = 0; row <= library.LastRow; ++row) {
        rows.push_back(std::to_string(row + 1) + "\t" +
                       library.Titles[static_cast<std::size_t>(row)]);
    }
}

void Reader::OpenFixedList() {
    const LibraryId library = world_.Values.ReadLibrary;
    FillFixedList(OpenLibrary());
    world_.Values.LibraryName = LibraryLongName(library);
    controls_.Title = world_.Values.LibraryName;
    C(ReaderControl::txtSpin).Text = ReadInstructions(library);
    C(ReaderControl::txtSpin).Background = Colour::IndexText;
    state_.ReopenLibrary = library;
    state_.ListPos = -1;
    SetButtons(1);
    C(ReaderControl::cmdNext).Enabled = true;
    C(ReaderControl::cmdNext).Text = "First";
    if (state_.IndexMode == IndexView::Sections) {
        state_.NoteText = "Select a Section to display its contents. Or click 'Index 1' to expand "
                          "the list of Topics, then select a Topic.";
        SetWindowLayout(0);
    } else {
        state_.NoteText = "Select a Topic. Or click 'Index 2' to collapse the list, then select a "
                          "Section. Click 'Window' to show or remove the instructions.";
        SetWindowLayout(world_.UserSettings.WindowMode[library]);
    }
    ShowNote();
}

void Reader::CloseReader() {
    auto& marks = world_.Marks;
    for (const LibraryId library : AllLibraries) {
        if (!KeepsMarkOnClose(library) && marks.OpenFlags[library] == OpenFlag::None) {
            marks.MarkRows[library] = -1;
        }
    }
    world_.Host.SaveReadSettings();
    // The window's hover timer goes with it; left running, its ticks would blank the
    // instruction line of the next opening.
    world_.Windows.StopTimer(TimerId::ReadHover);
    world_.Windows.HideWindow(WindowId::Read);
    world_.Values.ReaderOpen = ReaderOpenState::Closed;
    for (const LibraryId library : AllLibraries) {
        if (!KeepsMarkOnClose(library)) {
            marks.OpenFlags[library] = OpenFlag::None;
        }
    }
    // The rows on show go with the window, so that no later Mark Exit takes an old place.
    world_.Values.CurRow = PerFixedLibrary<std::int16_t>::Filled(-1);
    world_.Host.LibraryClosed();
}

void Reader::ShowNote() {
    C(ReaderControl::txtNote).Text = state_.NoteText;
    C(ReaderControl::txtNote).Ink = state_.NoteColor;
}

} // namespace veyrant
