// The Read window's search as the user drives it: type into the search box, click Go or press
// Enter, step with Next, click the box to start over, Cancel or Esc to leave.

#include "ReaderFixture.h"
#include "core/KeyCodes.h"
#include "storage/LibraryLock.h"

#include <filesystem>
#include <sodium.h>

namespace veyrant::testing {
namespace {

using RC = ReaderControl;

class ReaderSearch : public ReaderFixture {
protected:
    void Search(const std::string& text) {
        Read().Click(RC::cmdSearch);
        Read().SearchTextChanged(text);
        Read().Click(RC::cmdSearch);
    }
    // Enter typed in the search box: the window lets it by, the box's key press takes it.
    void EnterInBox() {
        if (Read().KeyDown(KeyCode::Enter) != 0) {
            EXPECT_EQ(Read().KeyPress(KeyCode::Enter, RC::txtSearch), 0);
        }
    }
    void SaveThree() {
        SaveDialogue({2026, 11, 12, 9, 5, 0}, "\tA grey heron waits.");
        SaveDialogue({2026, 11, 15, 10, 0, 0}, "\tA calm lake.");
        SaveDialogue({2026, 11, 20, 15, 30, 0}, "\tStones in the river.");
    }
    std::string Note() { return Line(RC::txtNote); }
};

const char* const NextNote =
    "\"Click 'Next' or press 'Enter' to search for the next instance. Click the text for a new "
    "search. Click 'Cancel' to exit search mode.\"";
const char* const NotFoundNote =
    "\"The search is complete. The text was not found. Click 'New' for a new search. Click "
    "'Cancel' to exit search mode.\"";

// A fixed library is walked from row 0 through the composed text of each row, title included,
// without regard to case; a Section found reads in the reading colour; leading blanks count.
TEST_F(ReaderSearch, FixedLibraryWalksTitlesAndTexts) {
    const struct {
        const char* Text;
        const char* Title;
        const char* Spin;
        const char* List;
        const char* Selection;
    } cases[] = {
        {"a1", "Veyrant Knowledge Library -- 3/4/7 -- A1",
         "low \"A1 |  | \\tText of row 2. | \" back=ReadingText",
         "7 rows, selected 2, top 0, split back=IndexText", "Selection: 0+2 \"A1\""},
        {"ROW 5", "Veyrant Knowledge Library -- 6/6/7 -- C",
         "low \"C |  | \\tText of row 5. | \" back=ReadingText",
         "7 rows, selected 5, top 2, split back=IndexText", "Selection: 14+5 \"row 5\""},
        // A Section found by the search shows as a Topic does, not in the index colour.
        {"second", "Veyrant Knowledge Library -- 5/6/7 -- < Second >",
         "low \"< Second > |  | \\tText of row 4. | \" back=ReadingText",
         "7 rows, selected 4, top 1, split back=IndexText", "Selection: 2+6 \"Second\""},
    };
    for (const auto& c : cases) {
        Open(3);
        Search(c.Text);
        EXPECT_EQ(Title(), c.Title) << c.Text;
        EXPECT_EQ(Line(RC::txtSpin), c.Spin) << c.Text;
        EXPECT_EQ(Line(RC::List1), c.List) << c.Text;
        EXPECT_NE(Read().Dump().find(c.Selection), std::string::npos) << Read().Dump();
        EXPECT_EQ(Line(RC::txtSearch), "\"" + std::string(c.Text) + "\" focus");
        EXPECT_EQ(Line(RC::cmdSelect), "\"Cancel\"") << c.Text;
        App.Links.CloseLibrary();
    }
}

// Nothing found: the words differ in case between the libraries, as designed; a leading blank is
// kept, so " text" is not found where every "Text" follows a tab.
TEST_F(ReaderSearch, NothingFoundHasEachLibrarysWords) {
    SaveThree();
    const struct {
        int Library;
        const char* Text;
        const char* Words;
    } cases[] = {
        {3, "zebra", "\"No text found\""},
        {3, " text", "\"No text found\""},
        {4, "zebra", "\"No text found\""},
        {1, "zebra", "\"No Text found\""},
    };
    for (const auto& c : cases) {
        Open(c.Library);
        Read().Click(RC::cmdSearch);
        Read().SearchTextChanged(c.Text);
        EXPECT_EQ(Line(RC::cmdSearch), "\"< Go >\"");
        EnterInBox();
        EXPECT_EQ(Line(RC::txtSearch), std::string(c.Words)) << c.Text;
        EXPECT_EQ(Note(), NotFoundNote) << c.Text;
        // The list is on view again, split, for the next search.
        EXPECT_NE(Line(RC::List1).find("split back=ListInUse"), std::string::npos) << c.Text;
        App.Links.CloseLibrary();
    }
}

// "aa" stands twice in "Aaa"; Next after the last hit ends the walk with the count shown.
TEST_F(ReaderSearch, OverlappingHitsCountAndTheWalkEnds) {
    App.Libraries[LibraryId::Advanced] = LibraryOf({"< Aaa >", "\tX"});
    Open(4);
    Search("aa");
    EXPECT_NE(Read().Dump().find("Selection: 2+2 \"Aa\""), std::string::npos) << Read().Dump();
    EXPECT_EQ(Read().State().HitCount, 1);
    Read().Click(RC::cmdSearch);
    EXPECT_NE(Read().Dump().find("Selection: 3+2 \"aa\""), std::string::npos) << Read().Dump();
    EXPECT_EQ(Read().State().HitCount, 2);
    EnterInBox();
    EXPECT_EQ(Line(RC::txtSearch), "\"Search complete\"");
    EXPECT_EQ(Note(), "\"The search is complete with 2 instances found, the last displayed. "
                      "Click 'Cancel' to exit search mode.\"");
    // The last hit stays on view and selected.
    EXPECT_NE(Read().Dump().find("Selection: 3+2 \"aa\""), std::string::npos);
    // Enter at the end does nothing more, and never reaches cmdSelect.
    EnterInBox();
    EXPECT_EQ(Line(RC::cmdSelect), "\"Cancel\"");
}

// A search of all Dialogues runs latest to earliest and opens the Dialogue it finds; Cancel
// leaves it on view, and the next search again walks them all.
TEST_F(ReaderSearch, AllDialoguesLandOnTheThird) {
    SaveThree();
    Open(1);
    Read().Click(RC::cmdSearch);
    EXPECT_EQ(Title(), "Veyrant Dialogue Library -- Search Text");
    EXPECT_EQ(Line(RC::txtSpin),
              "low \"Search Dialogues | \\tWhen you start a search with only the "
              "Ind\" back=IndexText");
    EXPECT_EQ(Note(), "\"Search all Dialogues. Enter the text, then click 'Go' or press 'Enter'. "
                      "Click 'Cancel' to exit the search.\"");
    EXPECT_EQ(Line(RC::cmdSearch), "\"Enter >>\"");
    Read().SearchTextChanged("HERON");
    Read().Click(RC::cmdSearch);
    EXPECT_EQ(Title(), "Veyrant Dialogue -- 1/3 -- Thursday, 9:05 am, November 12, 2026 -- 10/21 "
                       "Days Old/Max");
    EXPECT_EQ(Line(RC::List1), "3 rows, selected 2, top 0, split back=IndexText");
    EXPECT_NE(Read().Dump().find("Selection: 63+5 \"heron\""), std::string::npos) << Read().Dump();
    Read().Click(RC::cmdSearch);
    EXPECT_EQ(Line(RC::txtSearch), "\"Search complete\"");
    Key(KeyCode::Escape);
    EXPECT_EQ(Title(), "Veyrant Dialogue -- 1/3 -- Thursday, 9:05 am, November 12, 2026 -- 10/21 "
                       "Days Old/Max");
    EXPECT_EQ(Line(RC::txtSearch), "\"Search not active\" disabled ink=IndexText");
    EXPECT_EQ(Line(RC::cmdSelect), "\"< Index >\"");
    Read().Click(RC::cmdSearch);
    EXPECT_EQ(Title(), "Veyrant Dialogue Library -- Search Text");

    // Past the last hit the walk reads the earliest; Print and File still take the one on show.
    Read().SearchTextChanged("calm");
    for (int click = 0; click < 2; ++click) {
        Read().Click(RC::cmdSearch);
    }
    Key(KeyCode::Escape);
    Read().Click(RC::cmdPrint);
    Read().Click(RC::cmdFile);
    ASSERT_EQ(Windows.Printed.size(), 1u);
    EXPECT_EQ(Windows.Printed[0].Inspiration, "\tA calm lake.");
    EXPECT_NE(Windows.EditorTexts.at(0).Text.find("calm lake"), std::string::npos);

    // Locked, the walk opens the sealed files and the page text is the same.
    TurnLockOn(App.Folder, "lantern", {crypto_pwhash_OPSLIMIT_MIN, crypto_pwhash_MEMLIMIT_MIN});
    App.Links.CloseLibrary();
    Open(1);
    Search("calm");
    EXPECT_EQ(Title().substr(0, 26), "Veyrant Dialogue -- 2/3 --");
    Key(KeyCode::Escape);
    Read().Click(RC::cmdPrint);
    ASSERT_EQ(Windows.Printed.size(), 2u);
    EXPECT_EQ(Windows.Printed[1].Inspiration, Windows.Printed[0].Inspiration);
    EXPECT_EQ(Windows.Printed[1].Dialogue, Windows.Printed[0].Dialogue);
}

// With a Dialogue open only that Dialogue is searched, and it stays on view.
TEST_F(ReaderSearch, OpenDialogueAloneIsSearched) {
    SaveThree();
    Open(1);
    Read().Click(RC::cmdNext);
    const std::string title = Title();
    Search("REPLY");
    EXPECT_EQ(Title(), title);
    EXPECT_NE(Read().Dump().find("+5 \"reply\""), std::string::npos) << Read().Dump();
    EXPECT_EQ(Note(), NextNote);
    Read().Click(RC::cmdSearch);
    EXPECT_EQ(Note(), "\"The search is complete with 1 instances found, the last displayed. "
                      "Click 'Cancel' to exit search mode.\"");
    // A new search finds nothing there: the heron is in another Dialogue.
    Read().Click(RC::txtSearch);
    EXPECT_EQ(Line(RC::cmdSearch), "\"Enter >>\"");
    Read().SearchTextChanged("heron");
    Read().Click(RC::cmdSearch);
    EXPECT_EQ(Line(RC::txtSearch), "\"No Text found\"");
    Read().Click(RC::cmdSelect);
    EXPECT_EQ(Title(), title);
    EXPECT_EQ(Line(RC::cmdSelect), "\"< Index >\"");
}

// Cancel keeps a found Topic on view; with nothing found it returns to the list.
TEST_F(ReaderSearch, CancelKeepsWhatWasFound) {
    Open(3);
    Search("row 3");
    Read().Click(RC::cmdSelect);
    EXPECT_EQ(Title(), "Veyrant Knowledge Library -- 4/4/7 -- B");
    EXPECT_EQ(Line(RC::txtSpin), "low \"B |  | \\tText of row 3. | \" back=ReadingText");
    EXPECT_EQ(Line(RC::List1), "7 rows, selected -1, top 0, split back=IndexText");
    EXPECT_EQ(Read().Dump().find("Selection:"), std::string::npos);

    Search("zebra");
    Key(KeyCode::Escape);
    EXPECT_EQ(Title(), "Veyrant Knowledge Library");
    EXPECT_EQ(Line(RC::cmdSearch), "\"Search\"");

    // The Dialogue list comes back when a search of all Dialogues found nothing.
    App.Links.CloseLibrary();
    SaveThree();
    Open(1);
    Search("zebra");
    Read().Click(RC::cmdSelect);
    EXPECT_EQ(Line(RC::cmdNext), "\"Latest\"");
    EXPECT_EQ(Title().substr(0, 31), "Veyrant Dialogue Library -- 3/3");
}

// A click on the search box: with text waiting it empties the box; during a search or after
// it, it starts a new search on the full list.
TEST_F(ReaderSearch, ClickOnTheBoxStartsOver) {
    const struct {
        const char* Before; // what has been done
        const char* CaptionBefore;
    } cases[] = {{"typed", "\"< Go >\""}, {"hit", "\"< Next >\""}, {"ended", "\"New\""}};
    for (const auto& c : cases) {
        Open(3);
        Read().Click(RC::cmdSearch);
        Read().SearchTextChanged(std::string(c.Before) == "ended" ? "zebra" : "row");
        if (std::string(c.Before) != "typed") {
            Read().Click(RC::cmdSearch);
        }
        EXPECT_EQ(Line(RC::cmdSearch), c.CaptionBefore) << c.Before;
        Read().Click(RC::txtSearch);
        EXPECT_EQ(Line(RC::cmdSearch), "\"Enter >>\"") << c.Before;
        EXPECT_EQ(Line(RC::txtSearch), "\"\" focus") << c.Before;
        EXPECT_EQ(Title(), "Veyrant Knowledge Library -- Search Text") << c.Before;
        EXPECT_EQ(Read().Dump().find("Selection:"), std::string::npos) << c.Before;
        // The new search starts again from row 0.
        Read().SearchTextChanged("row");
        Read().Click(RC::cmdSearch);
        EXPECT_EQ(Title(), "Veyrant Knowledge Library -- 1/4/7 -- < First >") << c.Before;
        App.Links.CloseLibrary();
    }
}

// A Dialogue whose dlg/ file is gone is reported each time the walk reads it; what could be read,
// its Inspiration, is still searched, and the walk goes on past it.
TEST_F(ReaderSearch, UnreadableDialogueDoesNotStopTheWalk) {
    SaveThree();
    std::filesystem::remove(Folder.Dlg() / MakeFileName({2026, 11, 15, 10, 0, 0}));
    Open(1);
    Search("lake");
    EXPECT_EQ(Title().substr(0, 26), "Veyrant Dialogue -- 2/3 --");
    ASSERT_EQ(Windows.Boxes.size(), 1u);
    EXPECT_EQ(Windows.Boxes[0].Text.substr(0, 60),
              "Error 53 attempting to retrieve a file from the Dialogue Lib");

    Read().Click(RC::txtSearch);
    Read().SearchTextChanged("heron");
    Read().Click(RC::cmdSearch);
    EXPECT_EQ(Title().substr(0, 26), "Veyrant Dialogue -- 1/3 --");
    EXPECT_EQ(Windows.Boxes.size(), 2u);
}

// With no Dialogue saved the search cannot start; elsewhere Enter in the box is always taken.
TEST_F(ReaderSearch, SearchButtonStatesAndEnter) {
    Open(1);
    EXPECT_EQ(Line(RC::cmdSearch), "\"Search\" disabled");
    App.Links.CloseLibrary();
    Open(2);
    Read().Click(RC::cmdSearch);
    EXPECT_EQ(Line(RC::txtSpin).substr(0, 46), "low \"Search Information | \\tThe Information Li");
    EXPECT_EQ(Read().KeyPress(KeyCode::Enter, RC::txtSearch), 0);
    EXPECT_EQ(Line(RC::cmdSearch), "\"Enter >>\"");
    EXPECT_EQ(Read().KeyPress('w', RC::txtSearch), 'w');
    // Esc leaves the search from any of its states.
    Key(KeyCode::Escape);
    EXPECT_EQ(Line(RC::cmdSearch), "\"Search\"");
    EXPECT_EQ(Title(), "Veyrant Information Library");
}

// The hover help of cmdSearch follows the library outside search and the caption inside it; File
// and Print tell where the text goes on this system.
TEST_F(ReaderSearch, HoverTextsFollowTheState) {
    SaveThree();
    const auto hover = [&](RC button = RC::cmdSearch) {
        Read().MouseMove(RC::List1);
        Read().MouseMove(button);
        return Read().Hover().Text();
    };
    Open(1);
    EXPECT_EQ(hover(), "Search for words or phrases within all the Dialogues. Starting with the "
                       "latest, Dialogues are opened as the search text is found.");
    Read().Click(RC::cmdNext);
    EXPECT_EQ(hover(), "Search for words or phrases within only the displayed Dialogue. Click "
                       "'Index' to search all Dialogues, latest to earliest.");
    EXPECT_EQ(hover(RC::cmdFile), "Write the displayed Dialogue into the program's text editor. "
                                  "Then you may save it as a text file.");
    EXPECT_EQ(hover(RC::cmdPrint),
              "Print the displayed Dialogue. The pages are laid out for 'Letter' paper.");
    App.Links.CloseLibrary();
    const struct {
        int Library;
        const char* Name;
    } libraries[] = {{2, "Information"}, {3, "Knowledge"}, {4, "Advanced Knowledge"}};
    for (const auto& library : libraries) {
        Open(library.Library);
        EXPECT_EQ(hover(), "Search for words or phrases within all " + std::string(library.Name) +
                               ". The list opens, and Topics are displayed as the search text "
                               "text is found.");
        App.Links.CloseLibrary();
    }
    Open(3);
    Read().Click(RC::cmdSearch);
    EXPECT_EQ(hover(), "Ready to enter the search text. Then click 'Go' or press 'Enter' to start "
                       "the search. Or click 'Cancel' to exit search mode.");
    Read().SearchTextChanged("row");
    EXPECT_EQ(hover(), "Begin the search. You may also press 'Enter'. Or click the search text to "
                       "erase it and begin again.");
    Read().Click(RC::cmdSearch);
    EXPECT_EQ(hover(), "Find the next instance. You may also press 'Enter'. Or click the search "
                       "text to cancel and begin another search.");
    Read().Click(RC::txtSearch);
    Read().SearchTextChanged("zebra");
    Read().Click(RC::cmdSearch);
    EXPECT_EQ(hover(), "Clear the search text box to begin another search. Or click 'Cancel' to "
                       "exit the search.");
}

} // namespace
} // namespace veyrant::testing
