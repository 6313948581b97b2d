// Opening and closing the Reader: which library comes up, its list and its instructions, and the
// marks written to Read.ini on the way out.

#include "reader/Reader.h"
#include "reader/ReaderTexts.h"

#include <array>
#include <utility>

namespace veyrant {

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

std::int16_t& Reader::OpenFlag(int library) {
    auto& marks = world_.Marks;
    switch (library) {
    case ReadLibraries::Dialogue:
        return marks.OpenFlagDialogue;
    case ReadLibraries::Information:
        return marks.OpenFlagInfo;
    case ReadLibraries::Knowledge:
        return marks.OpenFlagKnow;
    default:
        return marks.OpenFlagAdv;
    }
}

std::int16_t& Reader::MarkRow(int library) {
    auto& marks = world_.Marks;
    switch (library) {
    case ReadLibraries::Dialogue:
        return marks.MarkRowDialogue;
    case ReadLibraries::Information:
        return marks.MarkRowInfo;
    case ReadLibraries::Knowledge:
        return marks.MarkRowKnow;
    default:
        return marks.MarkRowAdv;
    }
}

void Reader::RequestLibrary(int library) {
    std::int16_t& flag = OpenFlag(library);
    // A Dialogue's mark is a list position, so a new request always stands; a fixed library's
    // mark is kept when one is waiting.
    if (library == ReadLibraries::Dialogue || flag == OpenFlags::None) {
        flag = OpenFlags::Requested;
    }
}

void Reader::SetReader() {
    world_.Values.ReaderOpen = ReaderOpenStates::Open;
    // A mark waiting anywhere wins over a request: that is how a marked library reopens.
    static constexpr std::array<int, 4> Order{ReadLibraries::Dialogue, ReadLibraries::Information,
                                              ReadLibraries::Knowledge, ReadLibraries::Advanced};
    for (const std::int16_t wanted : {OpenFlags::Marked, OpenFlags::Requested}) {
        for (const int library : Order) {
            if (OpenFlag(library) == wanted) {
                world_.Values.ReadLibrary = static_cast<std::int16_t>(library);
                if (wanted == OpenFlags::Requested) {
                    world_.Host.LoadReadSettings();
                }
                ShowLibrary();
                return;
            }
        }
    }
}

bool Reader::IsDialogueLibrary() const {
    return world_.Values.ReadLibrary == ReadLibraries::Dialogue;
}

const FixedLibrary& Reader::OpenLibrary() const {
    switch (world_.Values.ReadLibrary) {
    case ReadLibraries::Information:
        return world_.Libraries.InfoLib;
    case ReadLibraries::Knowledge:
        return world_.Libraries.KnowLib;
    default:
        return world_.Libraries.AdvLib;
    }
}

std::int16_t& Reader::CurrentRow() {
    switch (world_.Values.ReadLibrary) {
    case ReadLibraries::Information:
        return world_.Values.CurRowInfo;
    case ReadLibraries::Knowledge:
        return world_.Values.CurRowKnow;
    default:
        return world_.Values.CurRowAdv;
    }
}

void Reader::ShowLibrary() {
    C(ReaderControl::cmdSelect).Enabled = true;
    C(ReaderControl::List1).Ink = Colour::Black;
    ApplyFontStep();
    C(ReaderControl::List1).Height = ListIsSplit() ? SplitListHeight() : ExpandedListHeight();
    SetSearchMode(0);
    state_.ListPos = -1;
    state_.HitCount = 0;
    state_.IndexMode = 0;
    const int library = world_.Values.ReadLibrary;
    std::int16_t& flag = OpenFlag(library);
    const bool marked = flag == OpenFlags::Marked;
    if (IsDialogueLibrary()) {
        C(ReaderControl::cmdPrint).Text = "Print";
        state_.KeyHint = KeyHintDialogue;
        world_.Library.ScanLibrary();
        BuildDialogueList();
        OpenDialogueList();
    } else {
        C(ReaderControl::cmdPrint).Text = "Merge";
        state_.KeyHint = KeyHintLibrary;
        state_.IndexMode = marked ? 1 : 0;
        OpenFixedList();
    }
    if (marked) {
        SelectRow(MarkRow(library));
    }
    flag = OpenFlags::None;
    controls_.Focus = ReaderControl::txtCursor;
    Paint();
    world_.Windows.ShowWindow(WindowId::Read);
}

void Reader::FillFixedList(const FixedLibrary& library) {
    auto& rows = controls_.List.Rows;
    rows.clear();
    controls_.List.Selected = -1;
    if (state_.IndexMode == 0) {
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
    const int library = world_.Values.ReadLibrary;
    FillFixedList(OpenLibrary());
    world_.Values.LibraryName = LibraryLongName(library);
    controls_.Title = world_.Values.LibraryName;
    C(ReaderControl::txtSpin).Text = ReadInstructions(library);
    C(ReaderControl::txtSpin).Background = Colour::IndexText;
    state_.ReopenKind = static_cast<std::int16_t>(library + 2);
    state_.ListPos = -1;
    SetButtons(1);
    C(ReaderControl::cmdNext).Enabled = true;
    C(ReaderControl::cmdNext).Text = "First";
    if (state_.IndexMode == 0) {
        state_.NoteText = "Select a Section to display its contents. Or click 'Index 1' to expand "
                          "the list of Topics, then select a Topic.";
        SetWindowLayout(0);
    } else {
        state_.NoteText = "Select a Topic. Or click 'Index 2' to collapse the list, then select a "
                          "Section. Click 'Window' to show or remove the instructions.";
        SetWindowLayout(world_.UserSettings.WindowMode[static_cast<std::size_t>(library)]);
    }
    ShowNote();
}

void Reader::CloseReader() {
    auto& marks = world_.Marks;
    // A library opened without its mark being taken forgets its place; the Advanced Knowledge
    // Library keeps both, so a mark there outlives the close.
    if (marks.OpenFlagInfo == OpenFlags::None) {
        marks.MarkRowInfo = -1;
    }
    if (marks.OpenFlagKnow == OpenFlags::None) {
        marks.MarkRowKnow = -1;
    }
    if (marks.OpenFlagDialogue == OpenFlags::None) {
        marks.MarkRowDialogue = -1;
    }
    world_.Host.SaveReadSettings();
    // The window's hover timer goes with it; left running, its ticks would blank the
    // instruction line of the next opening.
    world_.Windows.StopTimer(TimerId::ReadHover);
    world_.Windows.HideWindow(WindowId::Read);
    world_.Values.ReaderOpen = ReaderOpenStates::Closed;
    marks.OpenFlagInfo = OpenFlags::None;
    marks.OpenFlagKnow = OpenFlags::None;
    marks.OpenFlagDialogue = OpenFlags::None;
    // The rows on show go with the window, so that no later Mark Exit takes an old place.
    world_.Values.CurRowInfo = -1;
    world_.Values.CurRowKnow = -1;
    world_.Values.CurRowAdv = -1;
    world_.Host.LibraryClosed();
}

void Reader::ShowNote() {
    C(ReaderControl::txtNote).Text = state_.NoteText;
    C(ReaderControl::txtNote).Ink = state_.NoteColor;
}

} // namespace veyrant
