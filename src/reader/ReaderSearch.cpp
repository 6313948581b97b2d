// The search: a plain piece of text found one hit at a time by a walk, row by row, through the
// composed text of each row of the open library, through every Dialogue latest first, or through
// the Dialogue on view. There is no index. cmdSearch's caption is the search's state and is read
// back here; txtSearch holds the text sought.

#include "core/Cp1252.h"
#include "core/Text.h"
#include "reader/Reader.h"
#include "reader/ReaderTexts.h"

#include <string_view>

namespace veyrant {

namespace {

const char* const SearchCaption = "Search";
const char* const EnterCaption = "Enter >>";
const char* const GoCaption = "< Go >";
const char* const NextCaption = "< Next >";
const char* const NewCaption = "New";

// Written with their curly quotation marks and held in Windows-1252, as every text is.
std::string Cp(std::string_view utf8) {
    return Utf8ToCp1252(utf8).Text;
}

std::string SearchInstructions(LibraryId library) {
    constexpr std::string_view StepsDialogue =
        "Type the search text. Include leading or trailing spaces to individualize words. Click "
        "the text to erase it and begin again. Click ‘Go’ or press ‘Enter’ to find the first "
        "instance, then click ‘Next’ or press ‘Enter’ again for additional instances.";
    constexpr std::string_view StepsInformation =
        "Type the search text. For interface-type information, do not include leading or "
        "trailing spaces. For content-type information, you may include spaces to individualize "
        "words. Click the search text to erase it and begin again. Click ‘Go’ or press ‘Enter’ "
        "to find the first instance, then click ‘Next’ or press ‘Enter’ again for additional "
        "instances.";
    constexpr std::string_view StepsKnowledge =
        "Type the search text. You may include leading or trailing spaces to individualize "
        "words. Click the search text to erase it and begin again. Click ‘Go’ or press ‘Enter’ "
        "to find the first instance, then click ‘Next’ or press ‘Enter’ again for additional "
        "instances.";
    constexpr std::string_view RestartDialogue =
        "If you click the search text during a search, or click ‘New’ after a completed search, "
        "you will exit the current search to begin another.";
    constexpr std::string_view RestartLibrary =
        "If you click the text during a search, or click ‘New’ after a completed search, you "
        "will exit the current search to begin another.";
    constexpr std::string_view Leaving =
        "Click ‘Cancel’ to end the search and leave the window as it is. The text will remain in "
        "position at the last found instance, if any.";

    std::string text = "Search Dialogues";
    std::string scope = "When you start a search with only the Index and not a Dialogue "
                        "displayed, all Dialogues are searched latest-to-earliest. If the search "
                        "text is found, that Dialogue is displayed. When you start a search with "
                        "a Dialogue already displayed, only that Dialogue will be searched.";
    std::string_view steps = StepsDialogue;
    std::string_view restart = RestartDialogue;
    if (library != LibraryId::Dialogue) {
        text = "Search " + LibraryShortName(library);
        scope = "The " + LibraryHeading(library) +
                " is searched top-to-bottom. When text is found, that Topic is displayed and the "
                "Index opened.";
        steps = library == LibraryId::Information ? StepsInformation : StepsKnowledge;
        restart = RestartLibrary;
    }
    for (const std::string_view paragraph : {std::string_view(scope), steps, restart, Leaving}) {
        text += "\r\n\t";
        text += Cp(paragraph);
    }
    return text;
}

} // namespace

void Reader::SetSearchMode(int on) {
    if (on == 1) {
        state_.SearchActive = true;
        EnterSearch();
        return;
    }
    state_.SearchActive = false;
    auto& box = C(ReaderControl::txtSearch);
    box.Enabled = false;
    box.Ink = Colour::IndexText;
    box.Background = Colour::ListEmpty;
    SetSearchBoxText("Search not active");
    C(ReaderControl::cmdSearch).Text = SearchCaption;
}

void Reader::EnterSearch() {
    state_.HitPos = 0;
    state_.HitCount = 0;
    state_.SearchRow = 0;
    state_.SearchLoaded = 0;
    state_.HitStart = 0;
    state_.HitLength = 0;

    C(ReaderControl::cmdSearch).Text = EnterCaption;
    SetSearchBoxText("");
    auto& box = C(ReaderControl::txtSearch);
    box.Enabled = true;
    box.Ink = Colour::Black;
    box.Background = Colour::IndexText;
    controls_.Focus = ReaderControl::txtSearch;

    // With a Dialogue open, that Dialogue stays on view and is all that is searched.
    if (IsDialogueLibrary() && !state_.DialogueIndexShown) {
        return;
    }
    // A search always starts on the full list.
    if (IsDialogueLibrary()) {
        FillDialogueList();
    } else {
        state_.IndexMode = IndexView::EveryRow;
        FillFixedList(OpenLibrary());
    }
    // A list filled afresh shows from its first row.
    controls_.List.TopRow = 0;
    auto& spin = C(ReaderControl::txtSpin);
    spin.Text = SearchInstructions(world_.Values.ReadLibrary);
    spin.Background = Colour::IndexText;
    controls_.Title = world_.Values.LibraryName + " -- Search Text";
}

// The program's own changes of the box's text count as changes, as the user's do.
void Reader::SetSearchBoxText(const std::string& text) {
    if (C(ReaderControl::txtSearch).Text != text) {
        SearchTextChanged(text);
    }
}

void Reader::SearchTextChanged(const std::string& text) {
    C(ReaderControl::txtSearch).Text = text;
    state_.SearchText = text;
    C(ReaderControl::cmdSearch).Text = text.empty() ? EnterCaption : GoCaption;
}

void Reader::ClickSearch() {
    hover_.End();
    const std::string caption = C(ReaderControl::cmdSearch).Text;
    // The list, or a fixed library, is searched whole and shows split; an open Dialogue keeps its
    // layout.
    const bool wholeLibrary = !IsDialogueLibrary() || state_.DialogueIndexShown;
    if (caption == EnterCaption) {
        controls_.Focus = ReaderControl::txtSearch;
    }
    if (caption == NewCaption && state_.SearchActive) {
        state_.SearchActive = false;
        C(ReaderControl::txtSpin).SelectionLength = 0;
    }
    if (!state_.SearchActive) {
        SetSearchMode(1);
        SetButtons(4);
        if (wholeLibrary) {
            SetWindowLayout(2);
        }
        return;
    }
    if (caption == GoCaption || caption == NextCaption) {
        SearchStep();
        if (C(ReaderControl::cmdSearch).Text == NewCaption && wholeLibrary) {
            SetWindowLayout(2);
        }
    }
}

void Reader::ClickSearchBox() {
    const std::string caption = C(ReaderControl::cmdSearch).Text;
    if (caption == GoCaption) {
        SetSearchBoxText("");
    } else if (caption == NewCaption) {
        ClickSearch();
    } else if (caption == NextCaption) {
        // The search under way is left, and a new one begins.
        C(ReaderControl::cmdSearch).Text = NewCaption;
        ClickSearch();
    }
}

void Reader::SearchEnter() {
    const std::string& caption = C(ReaderControl::cmdSearch).Text;
    if (caption == GoCaption || caption == NextCaption) {
        ClickSearch();
    }
}

void Reader::SearchStep() {
    // No hover text may overwrite what the step shows.
    hover_.Stop();
    C(ReaderControl::cmdSelect).Enabled = false;
    // The search text is made ready once for the whole walk.
    const NoCaseFinder finder(state_.SearchText);
    if (!IsDialogueLibrary()) {
        SearchFixedLibrary(finder);
    } else if (state_.DialogueIndexShown) {
        SearchAllDialogues(finder);
    } else {
        SearchOpenDialogue(finder);
    }
    C(ReaderControl::cmdSelect).Enabled = true;
}

// The next hit after the last one; overlapping hits count, since the next start is one past the
// last hit's first character.
bool Reader::FindSearchText(const NoCaseFinder& finder) {
    // As FindNoCase(DisplayText, SearchText, HitPos + 1) finds it.
    state_.HitPos = finder.Find(state_.DisplayText, state_.HitPos + 1);
    return state_.HitPos != 0;
}

bool Reader::SearchOpenDialogue(const NoCaseFinder& finder) {
    state_.DisplayText = C(ReaderControl::txtSpin).Text;
    if (FindSearchText(finder)) {
        ++state_.HitCount;
        ShowHit();
        return true;
    }
    EndWalk("No Text found");
    // The walks show the closing words on their way out; so does the Dialogue on view.
    ShowNote();
    return false;
}

bool Reader::SearchAllDialogues(const NoCaseFinder& finder) {
    const int count = world_.Library.Listing().LibraryCount;
    while (true) {
        if (state_.SearchRow >= count) {
            ShowNote();
            return false;
        }
        // Each Dialogue is read once for the walk and not kept; steps inside it read nothing.
        if (state_.SearchLoaded <= state_.SearchRow) {
            state_.SearchLoaded = state_.SearchRow;
            LoadDialogue(state_.SearchRow + 1);
            ++state_.SearchLoaded;
        }
        ComposeDialogueText(state_.DisplayText);
        if (FindSearchText(finder)) {
            break;
        }
        ++state_.SearchRow;
        state_.HitPos = 0;
        if (state_.SearchRow == count) {
            EndWalk("No Text found");
        }
    }
    ++state_.HitCount;
    state_.ListPos = state_.SearchRow;
    // In search mode the selection only records the position.
    SelectRow(state_.SearchRow);
    ScrollList();
    ShowDialogue(state_.ListPos + 1);
    C(ReaderControl::List1).Background = Colour::IndexText;
    ShowHit();
    C(ReaderControl::cmdExitM).Enabled = true;
    return true;
}

bool Reader::SearchFixedLibrary(const NoCaseFinder& finder) {
    const FixedLibrary& library = OpenLibrary();
    while (true) {
        if (state_.SearchRow > library.LastRow) {
            ShowNote();
            return false;
        }
        ComposeRowText(library, state_.SearchRow, state_.DisplayText);
        if (FindSearchText(finder)) {
            break;
        }
        ++state_.SearchRow;
        state_.HitPos = 0;
        if (state_.SearchRow > library.LastRow) {
            EndWalk("No text found");
        }
    }
    ++state_.HitCount;
    state_.ListPos = state_.SearchRow;
    // In search mode the selection sets the caption and the library's current row, not the text.
    SelectRow(state_.SearchRow);
    ScrollList();
    auto& spin = C(ReaderControl::txtSpin);
    // A Section found by the search reads as a Topic does.
    spin.Background = Colour::ReadingText;
    C(ReaderControl::List1).Background = Colour::IndexText;
    spin.Text = state_.DisplayText;
    ShowHit();
    C(ReaderControl::cmdExitM).Enabled = true;
    return true;
}

void Reader::ShowHit() {
    auto& spin = C(ReaderControl::txtSpin);
    spin.Caret = state_.HitPos - 1;
    spin.SelectionLength = static_cast<long>(state_.SearchText.size());
    C(ReaderControl::cmdSearch).Text = NextCaption;
    controls_.Focus = ReaderControl::txtSearch;
    state_.HitStart = spin.Caret;
    state_.HitLength = spin.SelectionLength;
    state_.NoteText = "Click 'Next' or press 'Enter' to search for the next instance. Click the "
                      "text for a new search. Click 'Cancel' to exit search mode.";
    ShowNote();
    C(ReaderControl::cmdSelect).Enabled = true;
}

void Reader::EndWalk(const char* notFound) {
    SetSearchBoxText("Search complete");
    state_.NoteText = "The search is complete with " + std::to_string(state_.HitCount) +
                      " instances found, the last displayed. Click 'Cancel' to exit search mode.";
    if (state_.HitCount == 0) {
        SetSearchBoxText(notFound);
        state_.NoteText = "The search is complete. The text was not found. Click 'New' for a new "
                          "search. Click 'Cancel' to exit search mode.";
    }
    controls_.Focus = ReaderControl::txtCursor;
    C(ReaderControl::cmdSearch).Text = NewCaption;
}

std::string Reader::SearchHoverText() const {
    const std::string& caption = C(ReaderControl::cmdSearch).Text;
    if (state_.SearchActive) {
        if (caption == EnterCaption) {
            return "Ready to enter the search text. Then click 'Go' or press 'Enter' to start the "
                   "search. Or click 'Cancel' to exit search mode.";
        }
        if (caption == GoCaption) {
            return "Begin the search. You may also press 'Enter'. Or click the search text to "
                   "erase it and begin again.";
        }
        if (caption == NextCaption) {
            return "Find the next instance. You may also press 'Enter'. Or click the search text "
                   "to cancel and begin another search.";
        }
        if (caption == NewCaption) {
            return "Clear the search text box to begin another search. Or click 'Cancel' to exit "
                   "the search.";
        }
        return {};
    }
    if (IsDialogueLibrary()) {
        return state_.DialogueIndexShown
                   ? "Search for words or phrases within all the Dialogues. Starting with the "
                     "latest, Dialogues are opened as the search text is found."
                   : "Search for words or phrases within only the displayed Dialogue. Click "
                     "'Index' to search all Dialogues, latest to earliest.";
    }
    // Before the first library opens there is nothing to search.
    if (world_.Values.ReadLibrary == LibraryId::None) {
        return {};
    }
    // The doubled "text text" stands as the program has it.
    return "Search for words or phrases within all " + LibraryShortName(world_.Values.ReadLibrary) +
           ". The list opens, and Topics are displayed as the search text text is found.";
}

} // namespace veyrant
