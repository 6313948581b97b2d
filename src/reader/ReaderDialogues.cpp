// The Dialogue Library in the Reader: the list of saved Dialogues, latest first, each row cut
// to the list's width, and one Dialogue read from its two files.

#include "core/DateFormat.h"
#include "core/ProgramError.h"
#include "core/Text.h"
#include "reader/Reader.h"
#include "reader/ReaderTexts.h"
#include "storage/DialogueFile.h"
#include "storage/LibraryFileName.h"
#include "storage/LockedFileError.h"
#include "storage/StorageFailure.h"

#include <algorithm>

namespace veyrant {

namespace {

constexpr long LongestListText = 110;
constexpr long ShortestCut = 10;

// What follows the first tab of an inspiration file.
std::string ListedInspiration(const std::string& file) {
    const auto tab = file.find('\t');
    return tab == std::string::npos ? "< format error >" : file.substr(tab + 1);
}

} // namespace

std::string Reader::FitToList(const std::string& text) const {
    const auto& list = C(ReaderControl::List1);
    const auto width = [&](const std::string& shown) {
        return world_.Windows.TextWidthTwips(world_.Fonts.Main, list.FontSize, list.FontBold, false,
                                             shown);
    };
    if (width("<") + width(text) <= list.Width) {
        return text;
    }
    long keep = std::min<long>(static_cast<long>(text.size()), LongestListText);
    std::string cut = text;
    while (true) {
        cut = Left(cut, keep);
        if (width("...<") + width(cut) <= list.Width) {
            return Trim(cut) + "...";
        }
        keep -= 2;
        if (keep <= ShortestCut) {
            return cut;
        }
    }
}

void Reader::BuildDialogueList() {
    const auto& listing = world_.Library.Listing();
    const int count = listing.LibraryCount;
    if (count < 1) {
        return;
    }
    state_.LibraryListText.assign(static_cast<std::size_t>(count) + 1, std::string());
    for (int index = 1; index <= count; ++index) {
        const auto slot = static_cast<std::size_t>(index);
        std::string inspiration;
        try {
            inspiration =
                DialogueFile::SavedInspiration(world_.Folder, listing.LibraryFiles[slot]).Read();
        } catch (const ProgramError&) {
            // A file gone since the scan lists as a damaged one would.
        }
        state_.LibraryListText[slot] =
            FitToList(listing.LibrarySortDates[slot] + " -- " + ListedInspiration(inspiration));
    }
}

// The list runs latest first; LibraryListOrder maps a list position from 1 to the Library's
// tables.
void Reader::FillDialogueList() {
    const int count = world_.Library.Listing().LibraryCount;
    auto& rows = controls_.List.Rows;
    rows.clear();
    controls_.List.Selected = -1;
    state_.LibraryListOrder.assign(static_cast<std::size_t>(count) + 1, 0);
    for (int index = count; index >= 1; --index) {
        state_.LibraryListOrder[static_cast<std::size_t>(count - index + 1)] = index;
        rows.push_back(state_.LibraryListText[static_cast<std::size_t>(index)]);
    }
}

void Reader::OpenDialogueList() {
    const auto& listing = world_.Library.Listing();
    const auto& limits = world_.UserSettings;
    const int count = listing.LibraryCount;
    FillDialogueList();
    C(ReaderControl::txtSpin).Text = ReadInstructions(LibraryId::Dialogue);
    C(ReaderControl::txtSpin).Background = Colour::IndexText;

    const auto label = [&](int index) {
        return listing.LibraryLabels[static_cast<std::size_t>(index)];
    };
    if (count == 0) {
        controls_.Title = "Veyrant Dialogue Library -- No Dialogues Saved";
    } else {
        const std::string labels = count > 1 ? label(count) + " -- " + label(1) : label(1);
        controls_.Title = "Veyrant Dialogue Library -- " + std::to_string(count) + "/" +
                          std::to_string(limits.MaxLibraryFiles) + " Saved/Max -- " + labels +
                          " -- " + std::to_string(listing.OldestAge) + "/" +
                          std::to_string(limits.MaxLibraryDays) + " Days Old/Max";
    }
    world_.Values.LibraryName = LibraryLongName(LibraryId::Dialogue);
    state_.ReopenLibrary = LibraryId::Dialogue;
    state_.ListPos = -1;
    state_.DialogueIndexShown = true;
    SetButtons(1);
    C(ReaderControl::cmdNext).Text = "Latest";
    if (count < 1) {
        C(ReaderControl::txtSpin).Text = EmptyLibraryInstructions();
        SetWindowLayout(0);
        state_.NoteText = "There are no Dialogues saved in the Library.";
        C(ReaderControl::List1).Background = Colour::ListEmpty;
    } else {
        SetWindowLayout(world_.UserSettings.WindowMode[LibraryId::Dialogue]);
        state_.NoteText =
            "Select a Dialogue. It will be displayed in the currently-set window mode.";
    }
    ShowNote();
}

void Reader::LoadDialogue(int position) {
    const auto& listing = world_.Library.Listing();
    const std::string& name = listing.LibraryFiles[static_cast<std::size_t>(
        state_.LibraryListOrder[static_cast<std::size_t>(position)])];
    // A part that cannot be read shows empty, never the text of the Dialogue shown before.
    state_.InspirationBody.clear();
    state_.DialogueBody.clear();
    try {
        state_.DialogueDate = FileDateValue(ParseFileName(name).FileDateText);
        state_.InspirationBody = DialogueFile::SavedInspiration(world_.Folder, name).Read();
        state_.DialogueBody = DialogueFile::SavedDialogue(world_.Folder, name).Read();
    } catch (const LockedFileError& error) {
        Paint();
        world_.Windows.ShowMessage(LockedFileBox(error.File()));
    } catch (const ProgramError& error) {
        Paint();
        world_.Windows.ShowMessage(LibraryCorruptedBox(
            "Dialogue Library Corrupted -- Cannot Retrieve", error.Number(), "retrieve a file"));
    }
    state_.DialogueAge = static_cast<std::int16_t>(
        RoundDays(DayNumber(world_.Clock.Now()) - DayNumber(state_.DialogueDate)));
}

void Reader::ShowDialogue(int position) {
    const auto& listing = world_.Library.Listing();
    const int index = state_.LibraryListOrder[static_cast<std::size_t>(position)];
    controls_.Title = "Veyrant Dialogue -- " + std::to_string(index) + "/" +
                      std::to_string(listing.LibraryCount) + " -- " +
                      listing.LibraryDates[static_cast<std::size_t>(index)] + " -- " +
                      std::to_string(state_.DialogueAge) + "/" +
                      std::to_string(world_.UserSettings.MaxLibraryDays) + " Days Old/Max";
    auto& spin = C(ReaderControl::txtSpin);
    ComposeDialogueText(spin.Text);
    spin.Background = Colour::ReadingText;
}

void Reader::ComposeDialogueText(std::string& text) const {
    // Written into the caller's string, so that a search of all Dialogues keeps one buffer.
    text.assign(FormatDate(state_.DialogueDate, "dddd, h:nn am/pm, mmmm d, yyyy"));
    text += "\r\n\r\nInspiration\r\n\r\n";
    text += state_.InspirationBody;
    text += "\r\n\r\nDialogue";
    text += state_.DialogueBody;
}

} // namespace veyrant
