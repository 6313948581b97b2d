#include "ReaderFixture.h"

namespace veyrant::testing {
namespace {

using MC = MirrorControl;

// Each library button opens its library with the Write window minimised behind the Reader and the
// backdrop kept, and bringing the Write window back closes the Reader and releases the button.
TEST_F(ReaderFixture, LibraryButtonsOpenTheReaderAndRestoringClosesIt) {
    const struct {
        MC Button;
        MouseButton Mouse;
        const char* Title;
        LibraryId ReadLibrary;
    } cases[] = {
        {MC::cmdHelp, MouseButton::Left, "Veyrant Information Library", LibraryId::Information},
        {MC::cmdKnow, MouseButton::Left, "Veyrant Knowledge Library", LibraryId::Knowledge},
        {MC::cmdKnow, MouseButton::Right, "Veyrant Advanced Knowledge Library",
         LibraryId::Advanced},
        {MC::cmdRetrieve, MouseButton::Left, "Veyrant Dialogue Library -- No Dialogues Saved",
         LibraryId::Dialogue},
    };
    const auto pressed = [&](MC button) { return App.Write->Controls()[button].PressedIn; };
    Windows.ShowWindow(WindowId::Back);
    App.Back.Load();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Title);
        Press(c.Button, c.Mouse);
        EXPECT_EQ(Title(), c.Title);
        EXPECT_EQ(App.Write->State().ReadLibrary, c.ReadLibrary);
        EXPECT_TRUE(App.Reading.ReaderOpen == ReaderOpenState::Open && pressed(c.Button) &&
                    Windows.IsWindowMinimised(WindowId::Mirror) &&
                    Windows.IsWindowVisible(WindowId::Read) &&
                    Windows.IsWindowVisible(WindowId::Back) && !Windows.Busy);
        // The same library is not opened twice.
        const auto events = Windows.WindowEvents.size();
        Press(c.Button, c.Mouse);
        EXPECT_EQ(Windows.WindowEvents.size(), events);
        // The user brings the Write window back.
        Windows.RestoreWindow(WindowId::Mirror);
        App.Write->WindowStateChanged(false);
        EXPECT_TRUE(App.Reading.ReaderOpen == ReaderOpenState::Closed && !pressed(c.Button) &&
                    !Windows.IsWindowVisible(WindowId::Read) &&
                    App.Write->State().ReadLibrary == LibraryId::None);
    }
    // Closing the Reader's own window brings the Write window back from minimised.
    Press(MC::cmdKnow);
    App.Links.CloseLibrary();
    EXPECT_FALSE(Windows.IsWindowMinimised(WindowId::Mirror) || pressed(MC::cmdKnow) ||
                 App.Write->State().ReadLibrary != LibraryId::None);
    // The backdrop goes when the user minimises the Write window, and comes back with it; while
    // a library is open it stays behind the Read window.
    App.Write->WindowStateChanged(true);
    EXPECT_FALSE(Windows.IsWindowVisible(WindowId::Back));
    App.Write->WindowStateChanged(false);
    EXPECT_TRUE(Windows.IsWindowVisible(WindowId::Back) &&
                Windows.WindowEvents.back() == "show Mirror");
    Press(MC::cmdHelp);
    App.Write->WindowStateChanged(true);
    EXPECT_TRUE(Windows.IsWindowVisible(WindowId::Back));
    // A backdrop the user clicked away stays away when the Write window comes back.
    App.Back.MouseDown();
    Windows.RestoreWindow(WindowId::Mirror);
    App.Write->WindowStateChanged(false);
    EXPECT_FALSE(Windows.IsWindowVisible(WindowId::Back));
}

// The pointer on the bare background of the Write or the Read window: with the backdrop hidden
// each window's note tells how to bring it back, for seven ticks; with the backdrop up it says
// nothing of it and silences the backdrop's own hint. Any button there restores the backdrop.
TEST(BackgroundHelp, TellsHowToRestoreAHiddenBackdropOnEitherWindow) {
    for (const bool onReader : {false, true}) {
        SCOPED_TRACE(onReader ? "Read" : "Write");
        ReaderFixture t;
        t.App.Back.Load();
        t.Windows.ShowWindow(WindowId::Back);
        if (onReader) {
            t.Open(3);
        }
        const TimerId timer = onReader ? TimerId::ReadHover : TimerId::MirrorHover;
        const auto move = [&] {
            onReader ? t.Read().MouseMove(RC::Window) : t.App.Write->MouseMove(MC::Panel1);
        };
        const auto tick = [&] {
            onReader ? t.Read().TimerFired(timer) : t.App.Write->TimerFired(timer);
        };
        const auto note = [&] {
            return onReader ? t.Read().Controls()[RC::txtNote].Text
                            : t.App.Write->Controls()[MC::txtNote].Text;
        };
        const std::string instruction = note();
        t.App.Back.MouseMove();
        t.App.Back.TimerFired();
        ASSERT_TRUE(t.App.Back.HintShowing());
        move();
        EXPECT_FALSE(t.App.Back.HintShowing());
        tick();
        EXPECT_EQ(note(), instruction);
        t.App.Back.MouseDown();
        ASSERT_FALSE(t.Windows.IsWindowVisible(WindowId::Back));
        move();
        EXPECT_EQ(t.Windows.Timers.at(timer), 1250);
        tick();
        EXPECT_EQ(note(), "Click to restore the background that surrounds the window.");
        // Further moves over the same place neither restart the count nor the help.
        const auto starts = t.Windows.TimerStarts[timer];
        move();
        EXPECT_EQ(t.Windows.TimerStarts[timer], starts);
        for (int ticks = 0; ticks < 7; ++ticks) {
            tick();
        }
        EXPECT_EQ(note(), instruction);
        for (const auto button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle}) {
            t.App.Back.MouseDown();
            onReader ? t.Read().MouseDown(RC::Window, button)
                     : t.App.Write->MouseDown(MC::Window, button);
            EXPECT_TRUE(t.Windows.IsWindowVisible(WindowId::Back));
        }
    }
}

} // namespace
} // namespace veyrant::testing
