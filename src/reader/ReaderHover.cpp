// The hover help of the Read window: the button under the pointer is marked and, a tick later,
// its help stands in txtNote for seven ticks before the instruction comes back.

#include "core/Text.h"
#include "reader/Reader.h"

#include <utility>

namespace veyrant {

namespace {

const char* const RestoreBackgroundText =
    "Click to restore the background that surrounds the window.";

std::string NextHelp(const std::string& caption) {
    if (caption == "Latest") {
        return "Display the latest Dialogue. You may also press the 'Down' arrow or page key.";
    }
    if (caption == "First") {
        return "Display the first Section content. You may also press the 'Down' arrow or page "
               "key.";
    }
    if (caption == "Next >>") {
        return "Display the next Topic down the list. You may also press the 'Down' arrow or page "
               "key.";
    }
    return "Display the earlier Dialogue down the list. You may also press the 'Down' arrow or "
           "page key.";
}

std::string PriorHelp(const std::string& caption) {
    if (caption == "<< Later") {
        return "Display the later Dialogue up the list. You may also press the 'Up' arrow or page "
               "key.";
    }
    return "Display the prior Topic up the list. You may also press the 'Up' arrow or page key.";
}

} // namespace

std::string Reader::WindowHoverText() const {
    if (state_.SearchActive) {
        return "Change the temporary mode of display. During search, the Read window will make "
               "visible both the list and text boxes.";
    }
    if (!IsDialogueLibrary() && state_.IndexMode == IndexView::Sections) {
        return "The window mode cannot be changed when you open this Library or reset its main "
               "Index.";
    }
    if (world_.UserSettings.WindowMode[world_.Values.ReadLibrary] == 1) {
        return "Set the window to the normal mode. This will display both the list and text in "
               "their normal views.";
    }
    return C(ReaderControl::txtSpin).Background == Colour::ReadingText
               ? "Set the window to the expanded mode. This will display only the text in the "
                 "expanded view."
               : "Set the window to the expanded mode. This will display only the list in the "
                 "expanded view.";
}

std::string Reader::HoverTextFor(ReaderControl button) const {
    const std::string& caption = C(button).Text;
    switch (button) {
    case ReaderControl::cmdExitM:
        return IsDialogueLibrary()
                   ? "Save the displayed Dialogue position and close the Library. You will return "
                     "to this position when the Dialogue Library is opened."
                   : "Save the displayed position and close the Library. You will return to this "
                     "position when the " +
                         Mid(world_.Values.LibraryName, 9) + " is opened.";
    case ReaderControl::cmdFile:
        return "Write the displayed Dialogue into the program's text editor. Then you may save it "
               "as a text file.";
    case ReaderControl::cmdPrint:
        return caption == "Print" ? "Print the displayed Dialogue. The pages are laid out for "
                                    "'Letter' paper."
                                  : "Merge the display of all the Topics within the selected < "
                                    "Section >.";
    case ReaderControl::cmdDelete:
        return "Delete the displayed Dialogue from the Library.";
    case ReaderControl::cmdNext:
        return NextHelp(caption);
    case ReaderControl::cmdPrior:
        return PriorHelp(caption);
    case ReaderControl::cmdSelect:
        if (caption == "< Index 1 >") {
            return "Expand the list to show all the Topics.";
        }
        if (caption == "< Index 2 >") {
            return "Collapse the list to show only the Sections.";
        }
        if (caption == "< Index >") {
            return IsDialogueLibrary() ? "Clear the display and reset the list of Dialogues."
                                       : "Clear the display and reset the list of Sections. Click "
                                         "'Index' again to expand the list.";
        }
        return IsDialogueLibrary() ? "Exit the search mode with the current Dialogue displayed. "
                                     "Click 'Index' to reset the list of Dialogues."
                                   : "Exit the search mode with the current Topic displayed. Then "
                                     "click 'Index' to reset list of Sections.";
    case ReaderControl::cmdWindow:
        return WindowHoverText();
    case ReaderControl::cmdSearch:
        return SearchHoverText();
    default:
        return {};
    }
}

void Reader::MarkHover(ReaderControl button) {
    const auto marked = hover_.Marked();
    if (marked && C(button).Text == C(*marked).Text && C(button).Ink != Colour::Black) {
        return;
    }
    std::string help = HoverTextFor(button);
    if (!help.empty()) {
        hover_.Mark(button, std::move(help));
    }
}

void Reader::NoteHover() {
    auto& note = C(ReaderControl::txtNote);
    if (note.Text == state_.KeyHint) {
        return;
    }
    note.Text = "Function key alternates for mouse clicks.";
    note.Ink = Colour::HelpInk;
    hover_.Unmark();
    hover_.Start(state_.KeyHint);
}

void Reader::BackgroundMove() {
    hover_.Unmark();
    const auto& note = C(ReaderControl::txtNote);
    if (!world_.Windows.IsWindowVisible(WindowId::Back)) {
        if (note.Text != RestoreBackgroundText) {
            hover_.Start(RestoreBackgroundText);
        }
        return;
    }
    if (note.Text != state_.NoteText) {
        ShowNote();
    }
    hover_.End();
    world_.Back.HideHint();
}

void Reader::BackgroundPress() {
    if (world_.Back.RestoreFromBorder()) {
        world_.Windows.ShowWindow(WindowId::Read);
    }
}

void Reader::CameToFront() {
    // With the Write window minimised this is the program's one window: it shows itself again,
    // lets the screen catch up, and takes the keys.
    if (!world_.Windows.IsWindowMinimised(WindowId::Mirror)) {
        return;
    }
    world_.Windows.RestoreWindow(WindowId::Read);
    Yield();
    controls_.Focus = !state_.SearchActive ? ReaderControl::txtCursor : ReaderControl::txtSearch;
}

void Reader::FocusGained(ReaderControl control) {
    if (control != ReaderControl::List1 && control != ReaderControl::txtSpin) {
        return;
    }
    if (world_.Windows.IsWindowVisible(WindowId::Banner) ||
        world_.Values.ReaderOpen == ReaderOpenState::Closed) {
        return;
    }
    if (!state_.SearchActive) {
        controls_.Focus = ReaderControl::txtCursor;
    } else if (control == ReaderControl::txtSpin || C(ReaderControl::txtSearch).Enabled) {
        controls_.Focus = ReaderControl::txtSearch;
    }
}

} // namespace veyrant
