// The Read window's search as the user drives it: type into the search box, click Go or press
// Enter, step with Next, click the box to start over, Cancel or Esc to leave.

#include "ReaderFixture.h"
#include "core/KeyCodes.h"

namespace veyrant::testing {
namespace {

class ReaderSearch : public ReaderFixture {
protected:
    void Search(const std::string& text) {
        Read().Click(RC::cmdSearch);
        Go(text);
    }
    void Go(const std::string& text) {
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
    bool Selected(const std::string& selection) {
        return Read().Dump().find("Selection: " + selection) != std::string::npos;
    }
    // The hover help of a button the pointer comes onto and leaves again.
    std::string Hover(RC button = RC::cmdSearch) {
        Read().MouseMove(RC::List1);
        Read().MouseMove(button);
        const std::string text = Read().Hover().Text();
        Read().MouseMove(RC::List1);
        return text;
    }
};

// With a Dialogue open only that Dialogue is searched, and it stays on view. A search of all
// Dialogues runs latest to earliest and opens the Dialogue it finds; Cancel leaves it on view, and
// the next search again walks them all. A Dialogue whose dlg/ file is gone
// is reported as the walk reads it, and its Inspiration is still searched.
TEST_F(ReaderSearch, AllDialoguesLandOnTheThird) {
    SaveThree();
    Open(1);
    Read().Click(RC::cmdNext);
    // Hover help names what Search, File and Print reach from here, and in each fixed library.
    EXPECT_TRUE(Hover(RC::cmdPrint).starts_with("Print the displayed Dialogue") &&
                Hover(RC::cmdFile).starts_with("Write the displayed Dialogue") &&
                Hover().starts_with("Search for words or phrases within only the displayed"));
    const std::string title = Title();
    Search("REPLY");
    EXPECT_EQ(Title(), title);
    EXPECT_NE(Read().Dump().find("+5 \"reply\""), std::string::npos) << Read().Dump();
    EXPECT_TRUE(Line(RC::txtNote).starts_with("\"Click 'Next' or press 'Enter'"));
    Read().Click(RC::cmdSearch);
    EXPECT_NE(Line(RC::txtNote).find("complete with 1 instances found"), std::string::npos);
    // A new search finds nothing there: the heron is in another Dialogue.
    Read().Click(RC::txtSearch);
    EXPECT_EQ(Line(RC::cmdSearch), "\"Enter >>\"");
    Go("heron");
    EXPECT_EQ(Line(RC::txtSearch), "\"No Text found\"");
    Read().Click(RC::cmdSelect);
    EXPECT_EQ(Shows({RC::cmdSelect}), title + " | \"< Index >\"");
    Read().Click(RC::cmdSelect);
    EXPECT_TRUE(Hover().starts_with("Search for words or phrases within all the Dialogues."));
    Read().Click(RC::cmdSearch);
    EXPECT_EQ(Shows({RC::cmdSearch}), "Veyrant Dialogue Library -- Search Text | \"Enter >>\"");
    EXPECT_TRUE(Line(RC::txtSpin).starts_with("low \"Search Dialogues | ") &&
                Line(RC::txtNote).starts_with("\"Search all Dialogues."));
    Go("HERON");
    const std::string heron =
        "Veyrant Dialogue -- 1/3 -- Thursday, 9:05 am, November 12, 2026 -- 10/21 Days Old/Max";
    EXPECT_EQ(Shows({RC::List1}), heron + " | 3 rows, selected 2, top 0, split back=IndexText");
    EXPECT_TRUE(Selected("63+5 \"heron\"")) << Read().Dump();
    Read().Click(RC::cmdSearch);
    EXPECT_EQ(Line(RC::txtSearch), "\"Search complete\"");
    Key(KeyCode::Escape);
    EXPECT_EQ(Shows({RC::txtSearch, RC::cmdSelect, RC::cmdPrint}),
              heron + " | \"Search not active\" disabled ink=IndexText | \"< Index >\" | "
                      "\"Print\"");
    Read().Click(RC::cmdSearch);
    EXPECT_EQ(Title(), "Veyrant Dialogue Library -- Search Text");
    std::filesystem::remove(Folder.Dlg() / MakeFileName({2026, 11, 15, 10, 0, 0}));
    Go("lake");
    EXPECT_EQ(Title().substr(0, 26), "Veyrant Dialogue -- 2/3 --");
    EXPECT_TRUE(Windows.Boxes.at(0).Text.starts_with("Error 53 attempting to retrieve"));
    for (const auto& [library, name] :
         {std::pair{2, "Information"}, {3, "Knowledge"}, {4, "Advanced Knowledge"}}) {
        Reopen(library);
        EXPECT_NE(Hover().find("within all " + std::string(name) + ". The list"),
                  std::string::npos);
    }
}

// "aa" stands twice in "Aaa"; Next after the last hit ends the walk with the count shown. Cancel
// keeps a found Topic on view; with nothing found it returns to the list. With no Dialogue saved
// the search cannot start; elsewhere Enter in the box is always taken, and Esc leaves the search
// from any of its states. A click on the search box: with text waiting it empties the box; during
// a search or after it, it starts a new search on the full list. The hover help of Search follows
// its caption.
TEST_F(ReaderSearch, HitsCountTheBoxStartsOverAndCancelKeepsWhatWasFound) {
    App.Libraries[LibraryId::Advanced] = LibraryOf({"< Aaa >", "\tX"});
    Open(4);
    Search("aa");
    EXPECT_TRUE(Selected("2+2 \"Aa\"") && Read().State().HitCount == 1) << Read().Dump();
    Read().Click(RC::cmdSearch);
    EXPECT_TRUE(Selected("3+2 \"aa\"") && Read().State().HitCount == 2) << Read().Dump();
    EnterInBox();
    EXPECT_EQ(Line(RC::txtSearch), "\"Search complete\"");
    EXPECT_NE(Line(RC::txtNote).find("complete with 2 instances"), std::string::npos);
    // The last hit stays on view and selected; Enter at the end does nothing more.
    EXPECT_TRUE(Selected("3+2 \"aa\""));
    EnterInBox();
    EXPECT_EQ(Line(RC::cmdSelect), "\"Cancel\"");
    Reopen(1);
    EXPECT_EQ(Line(RC::cmdSearch), "\"Search\" disabled");
    Reopen(2);
    Read().Click(RC::cmdSearch);
    EXPECT_EQ(Line(RC::txtSpin).substr(0, 46), "low \"Search Information | \\tThe Information Li");
    EXPECT_TRUE(Hover().starts_with("Ready to enter the search text."));
    EXPECT_EQ(Read().KeyPress(KeyCode::Enter, RC::txtSearch), 0);
    EXPECT_EQ(Line(RC::cmdSearch), "\"Enter >>\"");
    EXPECT_EQ(Read().KeyPress('w', RC::txtSearch), 'w');
    Key(KeyCode::Escape);
    EXPECT_EQ(Shows({RC::cmdSearch}), "Veyrant Information Library | \"Search\"");
    Reopen(3);
    Search("row 3");
    Read().Click(RC::cmdSelect);
    EXPECT_EQ(Shows({RC::List1}), "Veyrant Knowledge Library -- 4/4/7 -- B | 7 rows, selected -1, "
                                  "top 0, split back=IndexText");
    EXPECT_FALSE(Selected(""));
    Search("zebra");
    EXPECT_TRUE(Line(RC::txtNote).starts_with("\"The search is complete. The text was not found."));
    Key(KeyCode::Escape);
    EXPECT_EQ(Shows({RC::cmdSearch}), "Veyrant Knowledge Library | \"Search\"");
    App.Links.CloseLibrary();
    const struct {
        std::string Before, Caption, Hover;
    } cases[] = {
        {"typed", "\"< Go >\"", "Begin the search."},
        {"hit", "\"< Next >\"", "Find the next instance."},
        {"ended", "\"New\"", "Clear the search text box"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Before);
        Open(3);
        Read().Click(RC::cmdSearch);
        Read().SearchTextChanged(c.Before == "ended" ? "zebra" : "row");
        if (c.Before != "typed") {
            Read().Click(RC::cmdSearch);
        }
        EXPECT_EQ(Line(RC::cmdSearch), c.Caption);
        EXPECT_TRUE(Hover().starts_with(c.Hover)) << Hover();
        Read().Click(RC::txtSearch);
        EXPECT_EQ(Shows({RC::cmdSearch, RC::txtSearch}),
                  "Veyrant Knowledge Library -- Search Text | \"Enter >>\" | \"\" focus");
        EXPECT_FALSE(Selected(""));
        // The new search starts again from row 0.
        Go("row");
        EXPECT_EQ(Title(), "Veyrant Knowledge Library -- 1/4/7 -- < First >");
        App.Links.CloseLibrary();
    }
    // The Dialogue list comes back when a search of all Dialogues found nothing.
    SaveThree();
    Open(1);
    Search("zebra");
    Read().Click(RC::cmdSelect);
    EXPECT_EQ(Line(RC::cmdNext), "\"Latest\"");
    EXPECT_EQ(Title().substr(0, 31), "Veyrant Dialogue Library -- 3/3");
}

} // namespace
} // namespace veyrant::testing
