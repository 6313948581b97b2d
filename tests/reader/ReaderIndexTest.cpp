#include "ReaderFixture.h"
#include "core/KeyCodes.h"

namespace veyrant::testing {
namespace {

using RC = ReaderControl;

class ReaderIndex : public ReaderFixture {};

// A Section of Index-1 opens Index-2 at its row, split, whatever the saved mode; a Topic then
// shows in the saved mode, and the next Section's row is split again.
TEST_F(ReaderIndex, SectionsShowSplitAndTopicsInTheSavedMode) {
    App.UserSettings.WindowMode[LibraryId::Knowledge] = 1;
    Open(3);
    EXPECT_EQ(Title(), "Veyrant Knowledge Library");
    EXPECT_EQ(Line(RC::List1), "3 rows, selected -1, top 0, split back=ListInUse");
    EXPECT_EQ(Line(RC::cmdSelect), "\"< Index 1 >\"");
    EXPECT_EQ(Line(RC::cmdNext), "\"First\"");
    EXPECT_EQ(Line(RC::cmdPrior), "\"<< Prior\" disabled");

    const struct {
        const char* Action;
        const char* Title;
        const char* List;
        const char* Text;
        const char* Next;
        const char* Print;
    } steps[] = {
        {"click Section 2", "Veyrant Knowledge Library -- 5/6/7 -- < Second >",
         "7 rows, selected 4, top 1, split back=ListInUse",
         "low \"< Second > |  | \\tText of row 4. | \" back=IndexText", "\"Next >>\"", "\"Merge\""},
        {"down", "Veyrant Knowledge Library -- 6/6/7 -- C", "(hidden)",
         "high \"C |  | \\tText of row 5. | \" back=ReadingText", "\"Next >>\"",
         "\"Merge\" disabled"},
        {"down", "Veyrant Knowledge Library -- 7/7/7 -- < Third >",
         "7 rows, selected 6, top 3, split back=ListInUse",
         "low \"< Third > |  | \\tText of row 6. | \" back=IndexText", "\"Next >>\" disabled",
         "\"Merge\""},
        {"page down at the end", "Veyrant Knowledge Library -- 7/7/7 -- < Third >",
         "7 rows, selected 6, top 3, split back=ListInUse",
         "low \"< Third > |  | \\tText of row 6. | \" back=IndexText", "\"Next >>\" disabled",
         "\"Merge\""},
        {"up", "Veyrant Knowledge Library -- 6/6/7 -- C", "(hidden)",
         "high \"C |  | \\tText of row 5. | \" back=ReadingText", "\"Next >>\"",
         "\"Merge\" disabled"},
    };
    for (const auto& step : steps) {
        const std::string action = step.Action;
        if (action == "click Section 2") {
            Read().ListRowClicked(1);
        } else if (action == "down") {
            Key(KeyCode::Down);
        } else if (action == "up") {
            Key(KeyCode::Up);
        } else {
            Key(KeyCode::PageDown);
        }
        EXPECT_EQ(Title(), step.Title) << action;
        EXPECT_EQ(Line(RC::List1), step.List) << action;
        EXPECT_EQ(Line(RC::txtSpin), step.Text) << action;
        EXPECT_EQ(Line(RC::cmdNext), step.Next) << action;
        EXPECT_EQ(Line(RC::cmdPrint), step.Print) << action;
        EXPECT_EQ(Line(RC::cmdSelect), "\"< Index >\"") << action;
    }
    EXPECT_EQ(App.Reading.CurRow[LibraryId::Knowledge], 5);
}

// The index button toggles Index-1 and Index-2 by its caption, and from an open row goes back to
// Index-1.
TEST_F(ReaderIndex, IndexButtonTogglesTheLists) {
    App.UserSettings.WindowMode[LibraryId::Knowledge] = 1;
    Open(3);
    Read().Click(RC::cmdSelect);
    EXPECT_EQ(Line(RC::cmdSelect), "\"< Index 2 >\"");
    // Index-2 with nothing open fills the window with the list in the expanded mode.
    EXPECT_EQ(Line(RC::List1), "7 rows, selected -1, top 0, expanded back=ListInUse");
    EXPECT_EQ(Line(RC::txtSpin), "(hidden)");
    EXPECT_EQ(Line(RC::txtNote),
              "\"Select a Topic. Or click 'Index 2' to collapse the list, then select a Section. "
              "Click 'Window' to show or remove the instructions.\"");

    Read().Click(RC::cmdSelect);
    EXPECT_EQ(Line(RC::cmdSelect), "\"< Index 1 >\"");
    EXPECT_EQ(Line(RC::List1), "3 rows, selected -1, top 0, split back=ListInUse");

    Read().ListRowClicked(0);
    Key(KeyCode::Down);
    EXPECT_EQ(App.Reading.CurRow[LibraryId::Knowledge], 1);
    Key(KeyCode::Escape);
    EXPECT_EQ(Title(), "Veyrant Knowledge Library");
    EXPECT_EQ(Line(RC::List1), "3 rows, selected -1, top 0, split back=ListInUse");
}

// The first row of the Information Library names its place among 185 rows and its Section's
// fourteen.
TEST_F(ReaderIndex, InformationCaptionCountsRowSectionAndLibrary) {
    Open(2);
    Read().Click(RC::cmdNext);
    EXPECT_EQ(Title(),
              "Veyrant Information Library -- 1/14/185 -- < Introduction for the New User >");
    EXPECT_EQ(Line(RC::cmdPrior), "\"<< Prior\" disabled");
    EXPECT_EQ(Line(RC::List1), "185 rows, selected 0, top 0, split back=ListInUse");
}

// Index-1 keeps the window split: Space explains instead of toggling. A Topic toggles, and the
// mode is kept for that library.
TEST_F(ReaderIndex, WindowModeTogglesOnlyWithinASection) {
    Open(4);
    Key(KeyCode::Space);
    ASSERT_EQ(Windows.Boxes.size(), 1u);
    EXPECT_EQ(Windows.Boxes[0].Title, "Split Window Mode for Section Display");
    EXPECT_EQ(Line(RC::List1), "1 rows, selected -1, top 0, split back=ListInUse");

    Read().ListRowClicked(0);
    Key(KeyCode::Down);
    EXPECT_EQ(Line(RC::txtSpin), "low \"X |  | \\tText of row 1. | \" back=ReadingText");
    Read().Click(RC::txtSpin);
    EXPECT_EQ(App.UserSettings.WindowMode[LibraryId::Advanced], 1);
    EXPECT_EQ(Line(RC::txtSpin), "high \"X |  | \\tText of row 1. | \" back=ReadingText");
    EXPECT_EQ(Line(RC::List1), "(hidden)");
    Key(KeyCode::Space);
    EXPECT_EQ(App.UserSettings.WindowMode[LibraryId::Advanced], 0);
    EXPECT_EQ(Line(RC::List1), "3 rows, selected 1, top 0, split back=IndexText");
    EXPECT_EQ(Windows.Boxes.size(), 1u);
}

TEST_F(ReaderIndex, FunctionKeyOneExplainsTheWindow) {
    Open(3);
    Key(KeyCode::F1);
    ASSERT_EQ(Windows.Boxes.size(), 1u);
    EXPECT_EQ(Windows.Boxes[0].Title, "Veyrant Sagrel Help");
    EXPECT_EQ(Windows.Boxes[0].Text.substr(0, 46),
              "The Read Window instructions are available whe");
    // Typing goes nowhere: the text is never edited.
    EXPECT_EQ(Read().KeyPress('a', RC::txtCursor), 0);
    EXPECT_EQ(Read().KeyPress('a', RC::txtSpin), 0);
}

} // namespace
} // namespace veyrant::testing
