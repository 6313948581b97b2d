// The four action buttons along the foot of the Read window: Mark Exit keeps the place in the
// library on show and closes; Print hands the open Dialogue to the printer, or Merge shows a whole
// Section as one essay; File hands the Dialogue to the editor; Delete removes it from the Library.

#include "core/Text.h"
#include "printing/ExportText.h"
#include "printing/PrintDialogue.h"
#include "printing/PrintTexts.h"
#include "reader/Reader.h"
#include "storage/DialogueFile.h"

namespace veyrant {

namespace {

// What a Section's Topics and the next Section's row may come to, titles included, before a
// merge is refused.
constexpr std::size_t MergeLimit = 62000;
// The most the text box shows at once; the merge limit keeps the authored essays well below it.
constexpr std::size_t TextBoxCapacity = 65535;

} // namespace

void Reader::Yield() {
    Paint();
    world_.Windows.Yield();
}

void Reader::ClickMarkExit() {
    hover_.End();
    // Only the library on show is marked. A selected Dialogue has written its position already;
    // a fixed library's shown row becomes its mark.
    const LibraryId library = world_.Values.ReadLibrary;
    std::int16_t& mark = world_.Marks.MarkRows[library];
    if (IsDialogueLibrary() ? mark >= 0 : CurrentRow() >= 0) {
        if (!IsDialogueLibrary()) {
            mark = CurrentRow();
        }
        world_.Marks.OpenFlags[library] = OpenFlag::Marked;
    }
    world_.Host.UnloadReader();
}

void Reader::ClickPrint() {
    hover_.End();
    world_.Windows.SetBusyPointer(true);
    // Disabled first, so that a click arriving while the screen catches up cannot enter twice.
    C(ReaderControl::cmdPrint).Enabled = false;
    Yield();
    if (C(ReaderControl::cmdPrint).Text == "Print") {
        PrintOpenDialogue();
    } else {
        MergeSection();
    }
    world_.Windows.SetBusyPointer(false);
}

void Reader::PrintOpenDialogue() {
    LoadShownDialogue();
    PrintDialogue(world_.Windows, state_.DialogueDate, state_.InspirationBody,
                  WithoutLead(state_.DialogueBody), std::string(PrintTexts::WriteWindowTitle));
    C(ReaderControl::cmdPrint).Enabled = true;
}

void Reader::MergeSection() {
    const FixedLibrary& library = OpenLibrary();
    const int section = state_.ListPos;
    auto& spin = C(ReaderControl::txtSpin);
    const std::string shownText = spin.Text;
    const std::string shownTitle = controls_.Title;
    controls_.Title =
        world_.Values.LibraryName +
        (world_.Values.ReadLibrary == LibraryId::Information ? " -- Merged Section -- "
                                                             : " -- Merged Essay -- ") +
        Trim(library.Titles[static_cast<std::size_t>(section)]);
    // A refused merge leaves the Section as it was, caption and all.
    const auto cannotMerge = [&] {
        controls_.Title = shownTitle;
        world_.Windows.SetBusyPointer(false);
        Message("Cannot Merge", "This Essay is too long to be merged.");
    };

    // The next Section's own row counts towards the size, though it is not merged.
    std::size_t size = 0;
    for (int row = section + 1; row <= library.LastRow; ++row) {
        const auto index = static_cast<std::size_t>(row);
        size += TrimmedRecord(library, row).size() + library.Titles[index].size();
        if (library.RowKind[index] == RowKinds::Section) {
            break;
        }
    }
    if (size > MergeLimit) {
        cannotMerge();
        return;
    }
    spin.Text = "Merging Essay . . .";
    Yield();

    std::string merged;
    for (int row = section + 1; row <= library.LastRow &&
                                library.RowKind[static_cast<std::size_t>(row)] != RowKinds::Section;
         ++row) {
        merged += CleanTitle(library.Titles[static_cast<std::size_t>(row)]) + std::string(CrLf) +
                  std::string(CrLf) + TrimmedRecord(library, row) + std::string(CrLf);
    }
    if (merged.size() > TextBoxCapacity) {
        spin.Text = shownText;
        cannotMerge();
        return;
    }
    state_.DisplayText = merged;
    spin.Text = merged;
    spin.Background = Colour::ReadingText;
    SetButtons(3);
    // The merged essay always shows expanded; the library's saved mode stays as it was.
    SetWindowLayout(1);
    controls_.Focus = ReaderControl::txtSpin;
    FocusGained(ReaderControl::txtSpin);
}

// A search walk reads every Dialogue after the last hit, so what was read last may not be what
// is on show: Print, File and Delete all take the Dialogue at the list position.
void Reader::LoadShownDialogue() {
    LoadDialogue(state_.ListPos + 1);
}

void Reader::FileOpenDialogue() {
    hover_.End();
    LoadShownDialogue();
    ExportToEditor(world_.Windows, state_.DialogueDate,
                   "Inspiration" + std::string(CrLf) + std::string(CrLf) + state_.InspirationBody +
                       std::string(CrLf) + std::string(CrLf) + "Dialogue" + state_.DialogueBody);
}

void Reader::DeleteOpenDialogue() {
    hover_.End();
    Paint();
    const auto& listing = world_.Library.Listing();
    const int index = state_.LibraryListOrder[static_cast<std::size_t>(state_.ListPos + 1)];
    const std::string fileName = listing.LibraryFiles[static_cast<std::size_t>(index)];
    // The Library deletes the pair as one change. On a failure it has shown its box and
    // scanned the disk again: the list is made anew only when the Dialogue is no longer there,
    // so that it never offers one that is gone.
    if (!world_.Library.DeleteDialogue(fileName) && world_.Library.Holds(fileName)) {
        return;
    }
    ShowLibrary();
    world_.Host.LibraryChanged();
}

} // namespace veyrant
