#include "ReaderFixture.h"
#include "app/SettingsFiles.h"

namespace veyrant::testing {
namespace {

using RC = ReaderControl;

class ReaderMarks : public ReaderFixture {
protected:
    std::string ReadIni() { return ReadWholeFile(Folder.Exe() / "Read.ini"); }
    void PutReadIni(const std::string& text) { WriteWholeFile(Folder.Exe() / "Read.ini", text); }
};

// A mark saved for another library is read with the opening and written back untouched; the
// library opened without its mark forgets its place.
TEST_F(ReaderMarks, MarksOfOtherLibrariesSurviveTheClose) {
    PutReadIni(" 0  7 \r\n 0  3 \r\n 1  5 \r\n 0  0 \r\n");
    Open(2);
    EXPECT_EQ(Title(), "Veyrant Information Library");
    App.Links.CloseLibrary();
    EXPECT_EQ(ReadIni(), " 0 -1 \r\n 0 -1 \r\n 1  5 \r\n 0  0 \r\n");
    EXPECT_EQ(App.Reading.ReaderOpen, ReaderOpenState::Closed);
    EXPECT_FALSE(Windows.IsWindowVisible(WindowId::Read));
}

// A marked library opens at its mark in Index-2; the mark serves once.
TEST_F(ReaderMarks, MarkedLibraryReopensAtItsRow) {
    PutReadIni(" 0 -1 \r\n 0 -1 \r\n 1  3 \r\n 0  0 \r\n");
    Open(3);
    EXPECT_EQ(Title(), "Veyrant Knowledge Library -- 4/4/7 -- B");
    EXPECT_EQ(Line(RC::List1), "7 rows, selected 3, top 0, split back=IndexText");
    App.Links.CloseLibrary();
    EXPECT_EQ(ReadIni(), " 0 -1 \r\n 0 -1 \r\n 0 -1 \r\n 0  0 \r\n");
}

// A mark standing in the Advanced Knowledge Library wins over the library asked for, and is
// kept by the close.
TEST_F(ReaderMarks, AdvancedMarkOutlivesTheClose) {
    PutReadIni(" 0 -1 \r\n 0 -1 \r\n 0 -1 \r\n 1  2 \r\n");
    Open(3);
    EXPECT_EQ(Title(), "Veyrant Knowledge Library");
    App.Links.CloseLibrary();
    EXPECT_EQ(App.ReaderSettings.OpenFlags[LibraryId::Advanced], OpenFlag::Marked);
    Open(2);
    EXPECT_EQ(Title(), "Veyrant Advanced Knowledge Library -- 3/3/3 -- Y");
    App.Links.CloseLibrary();
    EXPECT_EQ(ReadIni().substr(ReadIni().size() - 8), " 0  2 \r\n");
}

// Each right-click in the text box moves the font one step on, back to the list; the release
// that follows is no window toggle.
TEST_F(ReaderMarks, RightClickCyclesTheFontSteps) {
    Open(3);
    Read().ListRowClicked(0);
    Read().Click(RC::cmdNext);
    const struct {
        int Step;
        double Size;
        bool Bold;
        int ListHeight;
    } steps[] = {{2, 13.5, false, 2430}, {3, 15, false, 2340}, {1, 12, true, 2595}};
    for (const auto& step : steps) {
        Read().MouseDown(RC::txtSpin, MouseButton::Right);
        Read().Click(RC::txtSpin);
        const auto& spin = Read().Controls()[RC::txtSpin];
        EXPECT_EQ(App.UserSettings.ReaderFontStep, step.Step);
        EXPECT_EQ(spin.FontSize, step.Size) << step.Step;
        EXPECT_EQ(spin.FontBold, step.Bold) << step.Step;
        EXPECT_EQ(Read().Controls()[RC::List1].Height, step.ListHeight) << step.Step;
        EXPECT_EQ(Title(), "Veyrant Knowledge Library") << step.Step;
        EXPECT_EQ(App.UserSettings.WindowMode[LibraryId::Knowledge], 0) << step.Step;
        EXPECT_EQ(Windows.Boxes.back().Title, "Change Font Size");
    }
    EXPECT_EQ(Windows.Boxes.size(), 3u);
    SaveSettings(App);
    EXPECT_EQ(ReadWholeFile(Folder.Exe() / "Tolmira.ini").substr(0, 10), " 1 \r\n 1 \r\n");
    // Where the step's box took the right button's release, the next left click still counts.
    Read().MouseDown(RC::txtSpin, MouseButton::Right);
    Read().MouseDown(RC::txtSpin, MouseButton::Left);
    Read().Click(RC::txtSpin);
    EXPECT_EQ(Windows.Boxes.back().Title, "Split Window Mode for Section Display");
}

// Hover help comes one tick after the pointer and gives way at the eighth tick.
TEST_F(ReaderMarks, HoverHelpStandsSevenTicks) {
    Open(3);
    Read().MouseMove(RC::cmdNext);
    EXPECT_EQ(Windows.Timers.at(TimerId::ReadHover), 1250);
    EXPECT_EQ(Line(RC::cmdNext), "\"First\" ink=HoverInk");
    const std::string help = "\"Display the first Section content. You may also press the "
                             "'Down' arrow or page key.\" ink=HelpInk";
    for (int tick = 1; tick <= 7; ++tick) {
        Read().TimerFired(TimerId::ReadHover);
        EXPECT_EQ(Line(RC::txtNote), help) << tick;
    }
    Read().TimerFired(TimerId::ReadHover);
    EXPECT_EQ(Line(RC::txtNote), "\"Select a Section to display its contents. Or click 'Index 1' "
                                 "to expand the list of Topics, then select a Topic.\"");
    EXPECT_EQ(Windows.Timers.count(TimerId::ReadHover), 0u);

    Read().MouseMove(RC::txtNote);
    EXPECT_EQ(Line(RC::txtNote), "\"Function key alternates for mouse clicks.\" ink=HelpInk");
    Read().TimerFired(TimerId::ReadHover);
    EXPECT_EQ(Line(RC::txtNote), "\"F1=Help  SpaceBar=Window  Page/ArrowUp=Prior  "
                                 "Page/ArrowDown=Next  Esc=Index/Cancel\" ink=HelpInk");
}

} // namespace
} // namespace veyrant::testing
