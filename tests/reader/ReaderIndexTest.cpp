#include "ReaderFixture.h"
#include "app/SettingsFiles.h"
#include "core/KeyCodes.h"

#include <sstream>

namespace veyrant::testing {
namespace {

using RC = ReaderControl;

// A Section of Index-1 opens Index-2 at its row, split, whatever the saved mode; a Topic then
// shows in the saved mode, and the next Section's row is split again.
TEST_F(ReaderFixture, SectionsShowSplitAndTopicsInTheSavedMode) {
    App.UserSettings.WindowMode[LibraryId::Knowledge] = 1;
    Open(3);
    EXPECT_EQ(Title() + " | " + Lines({RC::List1, RC::cmdSelect, RC::cmdNext, RC::cmdPrior}),
              "Veyrant Knowledge Library | 3 rows, selected -1, top 0, split back=ListInUse | \"< "
              "Index 1 >\" | \"First\" | \"<< Prior\" disabled");
    const std::string second = "Veyrant Knowledge Library -- 5/6/7 -- < Second >";
    const std::string c = "Veyrant Knowledge Library -- 6/6/7 -- C";
    const std::string cShown = "(hidden) | high \"C |  | \\tText of row 5. | \" back=ReadingText | "
                               "\"Next >>\" | \"Merge\" disabled | \"< Index >\"";
    const std::string third = "Veyrant Knowledge Library -- 7/7/7 -- < Third >";
    const std::string thirdShown =
        "7 rows, selected 6, top 3, split back=ListInUse | low \"< Third > |  | \\tText of row 6. "
        "| \" back=IndexText | \"Next >>\" disabled | \"Merge\" | \"< Index >\"";
    const struct {
        int Key;                  // 0: a click on Section 2
        std::string Title, Shown; // Shown: List1 | txtSpin | cmdNext | cmdPrint | cmdSelect
    } steps[] = {
        {0, second,
         "7 rows, selected 4, top 1, split back=ListInUse | low \"< Second > |  | \\tText of row "
         "4. | \" back=IndexText | \"Next >>\" | \"Merge\" | \"< Index >\""},
        {KeyCode::Down, c, cShown},
        {KeyCode::Down, third, thirdShown},
        {KeyCode::PageDown, third, thirdShown}, // at the end
        {KeyCode::Up, c, cShown},
    };
    for (const auto& step : steps) {
        SCOPED_TRACE(step.Title);
        step.Key == 0 ? Read().ListRowClicked(1) : Key(step.Key);
        EXPECT_EQ(Title() + " | " +
                      Lines({RC::List1, RC::txtSpin, RC::cmdNext, RC::cmdPrint, RC::cmdSelect}),
                  step.Title + " | " + step.Shown);
    }
    EXPECT_EQ(App.Reading.CurRow[LibraryId::Knowledge], 5);
}

// The index button toggles Index-1 and Index-2 by its caption, and from an open row goes back to
// Index-1.
TEST_F(ReaderFixture, IndexButtonTogglesTheLists) {
    App.UserSettings.WindowMode[LibraryId::Knowledge] = 1;
    Open(3);
    Key(KeyCode::Enter);
    // Index-2 with nothing open fills the window with the list in the expanded mode.
    EXPECT_EQ(Lines({RC::cmdSelect, RC::List1, RC::txtSpin, RC::txtNote}),
              "\"< Index 2 >\" | 7 rows, selected -1, top 0, expanded back=ListInUse | (hidden) | "
              "\"Select a Topic. Or click 'Index 2' to collapse the list, then select a Section. "
              "Click 'Window' to show or remove the instructions.\"");
    Read().MouseMove(RC::cmdSelect);
    Read().TimerFired(TimerId::ReadHover);
    EXPECT_EQ(Line(RC::txtNote), "\"Collapse the list to show only the Sections.\" ink=HelpInk");
    const std::string index1 = "\"< Index 1 >\" | 3 rows, selected -1, top 0, split back=ListInUse";
    Read().Click(RC::cmdSelect);
    EXPECT_EQ(Lines({RC::cmdSelect, RC::List1}), index1);
    Read().ListRowClicked(0);
    Key(KeyCode::Down);
    EXPECT_EQ(App.Reading.CurRow[LibraryId::Knowledge], 1);
    Key(KeyCode::Escape);
    EXPECT_EQ(Title() + " | " + Lines({RC::cmdSelect, RC::List1}),
              "Veyrant Knowledge Library | " + index1);
    // The first row of the Information Library names its place among 185 rows and its
    // Section's fourteen.
    App.Links.CloseLibrary();
    Open(2);
    Read().Click(RC::cmdNext);
    EXPECT_EQ(Title() + " | " + Lines({RC::cmdPrior, RC::List1}),
              "Veyrant Information Library -- 1/14/185 -- < Introduction for the New User > | \"<< "
              "Prior\" disabled | 185 rows, selected 0, top 0, split back=ListInUse");
}

// Index-1 keeps the window split: Space explains instead of toggling. A Topic toggles, and the
// mode is kept for that library. F1 explains the window, and typing goes nowhere.
TEST_F(ReaderFixture, WindowModeTogglesOnlyWithinASection) {
    Open(4);
    Key(KeyCode::Space);
    EXPECT_EQ(Line(RC::List1), "1 rows, selected -1, top 0, split back=ListInUse");
    Read().ListRowClicked(0);
    Key(KeyCode::Down);
    EXPECT_EQ(Line(RC::txtSpin), "low \"X |  | \\tText of row 1. | \" back=ReadingText");
    Read().Click(RC::txtSpin);
    EXPECT_EQ(App.UserSettings.WindowMode[LibraryId::Advanced], 1);
    EXPECT_EQ(Lines({RC::txtSpin, RC::List1}),
              "high \"X |  | \\tText of row 1. | \" back=ReadingText | (hidden)");
    Key(KeyCode::Space);
    EXPECT_EQ(App.UserSettings.WindowMode[LibraryId::Advanced], 0);
    EXPECT_EQ(Line(RC::List1), "3 rows, selected 1, top 0, split back=IndexText");
    Key(KeyCode::F1);
    EXPECT_EQ(BoxTitles(), (std::vector<std::string>{"Split Window Mode for Section Display",
                                                     "Veyrant Sagrel Help"}));
    EXPECT_EQ(Windows.Boxes[1].Text.substr(0, 46),
              "The Read Window instructions are available whe");
    EXPECT_EQ(Read().KeyPress('a', RC::txtCursor) + Read().KeyPress('a', RC::txtSpin), 0);
}

// Each right-click in the text box moves the font one step on, back to the list; the release
// that follows is no window toggle.
TEST_F(ReaderFixture, RightClickCyclesTheFontSteps) {
    Open(3);
    Read().ListRowClicked(0);
    Read().Click(RC::cmdNext);
    // Step, size, bold, list height.
    for (const auto& step : {"2 13.5 0 2430", "3 15 0 2340", "1 12 1 2595"}) {
        Read().MouseDown(RC::txtSpin, MouseButton::Right);
        Read().Click(RC::txtSpin);
        const auto& spin = Read().Controls()[RC::txtSpin];
        std::ostringstream shown;
        shown << App.UserSettings.ReaderFontStep << " " << spin.FontSize << " " << spin.FontBold
              << " " << Read().Controls()[RC::List1].Height;
        EXPECT_EQ(shown.str(), step);
        EXPECT_EQ(Title(), "Veyrant Knowledge Library");
    }
    EXPECT_EQ(BoxTitles(), std::vector<std::string>(3, "Change Font Size"));
    SaveSettings(App);
    EXPECT_EQ(ReadWholeFile(Folder.Exe() / "Tolmira.ini").substr(0, 10), " 1 \r\n 1 \r\n");
    // Where the step's box took the right button's release, the next left click still counts.
    Read().MouseDown(RC::txtSpin, MouseButton::Right);
    Read().MouseDown(RC::txtSpin, MouseButton::Left);
    Read().Click(RC::txtSpin);
    EXPECT_EQ(Windows.Boxes.back().Title, "Split Window Mode for Section Display");
}

// Hover help marks the button and comes one tick after the pointer; over the note it names the
// function keys. How long it stands is the same on every window (BackgroundHelp).
TEST_F(ReaderFixture, HoverHelpMarksTheButtonAndNamesTheKeys) {
    Open(3);
    Read().MouseMove(RC::cmdNext);
    EXPECT_EQ(Line(RC::cmdNext), "\"First\" ink=HoverInk");
    Read().TimerFired(TimerId::ReadHover);
    EXPECT_EQ(Line(RC::txtNote), "\"Display the first Section content. You may also press the "
                                 "'Down' arrow or page key.\" ink=HelpInk");
    Read().MouseMove(RC::txtNote);
    EXPECT_EQ(Line(RC::txtNote), "\"Function key alternates for mouse clicks.\" ink=HelpInk");
    Read().TimerFired(TimerId::ReadHover);
    EXPECT_EQ(Line(RC::txtNote), "\"F1=Help  SpaceBar=Window  Page/ArrowUp=Prior  "
                                 "Page/ArrowDown=Next  Esc=Index/Cancel\" ink=HelpInk");
}

} // namespace
} // namespace veyrant::testing
