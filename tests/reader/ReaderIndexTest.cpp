#include "ReaderFixture.h"
#include "app/SettingsFiles.h"
#include "core/KeyCodes.h"

#include <sstream>

namespace veyrant::testing {
namespace {

// The index button toggles Index-1 and Index-2 by its caption, and from an open row goes back to
// Index-1. A Section of Index-1 opens Index-2 at its row, split, whatever the saved mode; a Topic
// then shows in the saved mode, and the next Section's row is split again.
TEST_F(ReaderFixture, IndexButtonTogglesTheListsSectionsShowSplitAndRightClickCyclesTheFont) {
    App.UserSettings.WindowMode[LibraryId::Knowledge] = 1;
    Open(3);
    Key(KeyCode::Enter);
    // Index-2 with nothing open fills the window with the list in the expanded mode.
    EXPECT_EQ(Lines({RC::cmdSelect, RC::List1, RC::txtSpin}),
              "\"< Index 2 >\" | 7 rows, selected -1, top 0, expanded back=ListInUse | (hidden)");
    EXPECT_TRUE(Line(RC::txtNote).starts_with("\"Select a Topic."));
    Read().MouseMove(RC::cmdSelect);
    Read().TimerFired(TimerId::ReadHover);
    EXPECT_TRUE(Line(RC::txtNote).starts_with("\"Collapse the list"));
    const std::string index1 = "\"< Index 1 >\" | 3 rows, selected -1, top 0, split back=ListInUse";
    Read().Click(RC::cmdSelect);
    EXPECT_EQ(Lines({RC::cmdSelect, RC::List1}), index1);
    Read().ListRowClicked(0);
    Key(KeyCode::Down);
    EXPECT_EQ(App.Reading.CurRow[LibraryId::Knowledge], 1);
    Key(KeyCode::Escape);
    EXPECT_EQ(Shows({RC::cmdSelect, RC::List1, RC::cmdNext, RC::cmdPrior}),
              "Veyrant Knowledge Library | " + index1 + " | \"First\" | \"<< Prior\" disabled");
    const std::string c = "6/6/7 -- C | (hidden) | \"Next >>\" | \"Merge\" disabled";
    const std::string third =
        "7/7/7 -- < Third > | 7 rows, selected 6, top 3, split back=ListInUse | "
        "\"Next >>\" disabled | \"Merge\"";
    const struct {
        int Key;           // 0: a click on Section 2
        std::string Shown; // the title's place and name | List1 | cmdNext | cmdPrint
    } steps[] = {
        {0, "5/6/7 -- < Second > | 7 rows, selected 4, top 1, split back=ListInUse | \"Next >>\" | "
            "\"Merge\""},
        {KeyCode::Down, c},
        {KeyCode::Down, third},
        {KeyCode::PageDown, third}, // at the end
        {KeyCode::Up, c},
    };
    for (const auto& step : steps) {
        SCOPED_TRACE(step.Shown);
        step.Key == 0 ? Read().ListRowClicked(1) : Key(step.Key);
        EXPECT_EQ(Shows({RC::List1, RC::cmdNext, RC::cmdPrint}),
                  "Veyrant Knowledge Library -- " + step.Shown);
    }
    EXPECT_EQ(App.Reading.CurRow[LibraryId::Knowledge], 5);
    // Hover help marks the button and comes one tick after the pointer; over the note it names the
    // function keys. How long it stands is the same on every window (BackgroundHelp).
    Reopen(2);
    Read().MouseMove(RC::cmdNext);
    EXPECT_EQ(Line(RC::cmdNext), "\"First\" ink=HoverInk");
    Read().TimerFired(TimerId::ReadHover);
    EXPECT_TRUE(Line(RC::txtNote).starts_with("\"Display the first Section") &&
                Line(RC::txtNote).ends_with("\" ink=HelpInk"));
    Read().MouseMove(RC::txtNote);
    EXPECT_TRUE(Line(RC::txtNote).starts_with("\"Function key alternates"));
    Read().TimerFired(TimerId::ReadHover);
    EXPECT_TRUE(Line(RC::txtNote).starts_with("\"F1=Help"));
    // The first row of the Information Library names its place among 185 rows and its Section's
    // fourteen.
    Read().Click(RC::cmdNext);
    EXPECT_EQ(Shows({RC::cmdPrior}), "Veyrant Information Library -- 1/14/185 -- < Introduction "
                                     "for the New User > | \"<< Prior\" disabled");
    // Index-1 keeps the window split: Space explains instead of toggling. A Topic toggles, and the
    // mode is kept for that library. F1 explains the window, and typing goes nowhere. Each
    // right-click in the text box then moves the font one step on, back to the list; the release
    // that follows is no window toggle.
    Reopen(4);
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
    EXPECT_EQ(Read().KeyPress('a', RC::txtCursor) + Read().KeyPress('a', RC::txtSpin), 0);
    // Step, size, bold, list height.
    for (const auto& step : {"2 13.5 0 2430", "3 15 0 2340", "1 12 1 2595"}) {
        Read().MouseDown(RC::txtSpin, MouseButton::Right);
        Read().Click(RC::txtSpin);
        const auto& spin = Read().Controls()[RC::txtSpin];
        std::ostringstream shown;
        shown << App.UserSettings.ReaderFontStep << " " << spin.FontSize << " " << spin.FontBold
              << " " << Read().Controls()[RC::List1].Height;
        EXPECT_EQ(shown.str(), step);
        EXPECT_EQ(Title(), "Veyrant Advanced Knowledge Library");
    }
    EXPECT_EQ(BoxTitles(), (std::vector<std::string>{"Split Window Mode for Section Display",
                                                     "Veyrant Sagrel Help", "Change Font Size",
                                                     "Change Font Size", "Change Font Size"}));
    SaveSettings(App);
    EXPECT_EQ(ReadWholeFile(Folder.Exe() / "Tolmira.ini").substr(0, 10), " 1 \r\n 1 \r\n");
    // Where the step's box took the right button's release, the next left click still counts.
    Read().MouseDown(RC::txtSpin, MouseButton::Right);
    Read().MouseDown(RC::txtSpin, MouseButton::Left);
    Read().Click(RC::txtSpin);
    EXPECT_EQ(Windows.Boxes.back().Title, "Split Window Mode for Section Display");
}

// The list runs latest first; a damaged inspiration lists as a format error, a long one is cut;
// Latest opens the newest Dialogue with its age, and stepping goes on to the earlier one.
TEST_F(ReaderFixture, ListsLatestFirstAndStepsIntoDialogues) {
    SaveDialogue({2026, 11, 12, 9, 5, 0}, "no tab here");
    SaveDialogue({2026, 11, 20, 15, 30, 0}, "\tA calm lake.");
    SaveDialogue({2026, 11, 10, 8, 0, 0}, "\t" + std::string(200, 'w'));
    Open(1);
    EXPECT_EQ(Title(), "Veyrant Dialogue Library -- 3/30 Saved/Max -- Latest, Nov 20 -- Earliest, "
                       "Nov 10 -- 12/21 Days Old/Max");
    const auto& rows = Read().Controls().List.Rows;
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0] + " | " + rows[1], "26-11-20 -- A calm lake. | 26-11-12 -- < format error >");
    // Rows too wide for the list are cut and marked; those that fit stand whole.
    EXPECT_TRUE(rows[2].starts_with("26-11-10 -- www") && rows[2].ends_with("w...")) << rows[2];
    const int listWidth = Read().Controls()[RC::List1].Width;
    EXPECT_LE(Windows.TextWidthTwips("", 12, true, false, "<" + rows[2]), listWidth);
    EXPECT_GT(Windows.TextWidthTwips("", 12, true, false, "<" + rows[2] + "ww"), listWidth);
    EXPECT_EQ(Lines({RC::cmdNext, RC::cmdSearch}), "\"Latest\" | \"Search\"");
    Read().Click(RC::cmdNext);
    EXPECT_EQ(Title(),
              "Veyrant Dialogue -- 3/3 -- Friday, 3:30 pm, November 20, 2026 -- 2/21 Days Old/Max");
    EXPECT_EQ(Read().Controls()[RC::txtSpin].Text,
              "Friday, 3:30 pm, November 20, 2026\r\n\r\nInspiration\r\n\r\n\tA calm "
              "lake.\r\n\r\nDialogue\r\n\r\n\t\x93Hello.\x94\r\n\tA reply.");
    EXPECT_EQ(Lines({RC::cmdNext, RC::cmdPrior}), "\"Earlier >>\" | \"<< Later\" disabled");
    EXPECT_EQ(App.ReaderSettings.MarkRows[LibraryId::Dialogue], 0);
    Key(KeyCode::PageDown);
    EXPECT_TRUE(Title().starts_with("Veyrant Dialogue -- 2/3 -- Thursday, 9:05 am, November 12"));
    Key(KeyCode::PageDown);
    EXPECT_EQ(Line(RC::cmdNext), "\"Earlier >>\" disabled");
    Key(KeyCode::Escape);
    EXPECT_EQ(Line(RC::cmdNext), "\"Latest\"");
    EXPECT_EQ(App.ReaderSettings.MarkRows[LibraryId::Dialogue], -1);
}

} // namespace
} // namespace veyrant::testing
