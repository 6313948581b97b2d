#include "shell/Backdrop.h"

#include "support/FakeWindowLayer.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

// The hint shows three times in one life, each time the pointer rests; a click removes the
// backdrop and a click on the border restores it, but never on a narrow screen.
TEST(Backdrop, HintShowsThreeTimesAndAClickRemovesIt) {
    FakeWindowLayer windows;
    Backdrop back{windows};
    windows.ShowWindow(WindowId::Back);
    back.Load();
    for (const bool shown : {true, true, true, false}) {
        back.MouseMove();
        EXPECT_EQ(windows.Timers.at(TimerId::BackTimer), 500);
        back.TimerFired();
        EXPECT_EQ(back.HintShowing(), shown);
        back.TimerFired();
        EXPECT_FALSE(back.HintShowing());
        EXPECT_EQ(windows.Timers.count(TimerId::BackTimer), 0u);
    }
    back.MouseDown();
    EXPECT_FALSE(windows.IsWindowVisible(WindowId::Back) || back.BackVisible());
    EXPECT_TRUE(back.RestoreFromBorder());
    EXPECT_TRUE(windows.IsWindowVisible(WindowId::Back) && back.BackVisible());
    // Shown already: nothing to bring back.
    EXPECT_FALSE(back.RestoreFromBorder());
    back.MouseDown();
    windows.ScreenWidth = 11985;
    EXPECT_FALSE(back.RestoreFromBorder());
    EXPECT_FALSE(windows.IsWindowVisible(WindowId::Back));
}

} // namespace
} // namespace veyrant::testing
