#include "ReaderFixture.h"
#include "dialogue/Mirror.h"

namespace veyrant::testing {
namespace {

using RC = ReaderControl;
using MC = MirrorControl;

const std::string RestoreHelp = "Click to restore the background that surrounds the window.";

// The pointer on the bare background of the Write or the Read window, with the backdrop hidden
// or up; each window's note must tell how to bring a hidden backdrop back, and say nothing of it
// when it is up.
class BackgroundHelp : public ReaderFixture, public ::testing::WithParamInterface<bool> {
protected:
    bool OnReader() const { return GetParam(); }
    TimerId Timer() const { return OnReader() ? TimerId::ReadHover : TimerId::MirrorHover; }
    void MoveOverBackground() {
        if (OnReader()) {
            Read().MouseMove(RC::Window);
        } else {
            App.Write->MouseMove(MC::Panel1);
        }
    }
    void Tick() {
        if (OnReader()) {
            Read().TimerFired(TimerId::ReadHover);
        } else {
            App.Write->TimerFired(TimerId::MirrorHover);
        }
    }
    std::string Note() {
        return OnReader() ? Read().Controls()[RC::txtNote].Text
                          : App.Write->Controls()[MC::txtNote].Text;
    }
    void SetUp() override {
        App.Back.Load();
        Windows.ShowWindow(WindowId::Back);
        if (OnReader()) {
            Open(3);
        }
    }
};

TEST_P(BackgroundHelp, TellsHowToRestoreAHiddenBackdrop) {
    const std::string instruction = Note();
    App.Back.MouseDown();
    ASSERT_FALSE(Windows.IsWindowVisible(WindowId::Back));

    MoveOverBackground();
    EXPECT_EQ(Windows.Timers.at(Timer()), 1250);
    Tick();
    EXPECT_EQ(Note(), RestoreHelp);
    // Further moves over the same place neither restart the count nor the help.
    const auto starts = Windows.TimerStarts[Timer()];
    MoveOverBackground();
    EXPECT_EQ(Windows.TimerStarts[Timer()], starts);
    EXPECT_EQ(Note(), RestoreHelp);
    for (int tick = 0; tick < 7; ++tick) {
        Tick();
    }
    EXPECT_EQ(Note(), instruction);
}

TEST_P(BackgroundHelp, SaysNothingWhileTheBackdropShowsAndSilencesItsHint) {
    const std::string instruction = Note();
    App.Back.MouseMove();
    App.Back.TimerFired();
    ASSERT_TRUE(App.Back.HintShowing());

    MoveOverBackground();
    EXPECT_EQ(Note(), instruction);
    EXPECT_FALSE(App.Back.HintShowing());
    Tick();
    EXPECT_EQ(Note(), instruction);
}

TEST_P(BackgroundHelp, AnyButtonOnTheBackgroundRestoresTheBackdrop) {
    for (const auto button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle}) {
        App.Back.MouseDown();
        if (OnReader()) {
            Read().MouseDown(RC::Window, button);
        } else {
            App.Write->MouseDown(MC::Window, button);
        }
        EXPECT_TRUE(Windows.IsWindowVisible(WindowId::Back));
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, BackgroundHelp, ::testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Read" : "Write"; });

} // namespace
} // namespace veyrant::testing
