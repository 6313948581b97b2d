#include "shell/Backdrop.h"

#include "support/FakeWindowLayer.h"

#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

class BackdropTest : public ::testing::Test {
protected:
    BackdropTest() {
        Windows.ShowWindow(WindowId::Back);
        Back.Load();
    }
    // The pointer rests on the backdrop until its hint has come and gone.
    bool HintAfterRest() {
        Back.MouseMove();
        EXPECT_EQ(Windows.Timers.at(TimerId::BackTimer), 500);
        Back.TimerFired();
        const bool shown = Back.HintShowing();
        Back.TimerFired();
        EXPECT_FALSE(Back.HintShowing());
        EXPECT_EQ(Windows.Timers.count(TimerId::BackTimer), 0u);
        return shown;
    }

    FakeWindowLayer Windows;
    Backdrop Back{Windows};
};

TEST_F(BackdropTest, HintShowsThreeTimesInOneLife) {
    EXPECT_TRUE(HintAfterRest());
    EXPECT_TRUE(HintAfterRest());
    EXPECT_TRUE(HintAfterRest());
    EXPECT_FALSE(HintAfterRest());
}

TEST_F(BackdropTest, ClickRemovesAndBorderClickRestores) {
    Back.MouseDown();
    EXPECT_FALSE(Windows.IsWindowVisible(WindowId::Back));
    EXPECT_FALSE(Back.BackVisible());
    EXPECT_TRUE(Back.RestoreFromBorder());
    EXPECT_TRUE(Windows.IsWindowVisible(WindowId::Back));
    EXPECT_TRUE(Back.BackVisible());
    // Shown already: nothing to bring back.
    EXPECT_FALSE(Back.RestoreFromBorder());
}

TEST_F(BackdropTest, NarrowScreenNeverShowsIt) {
    Back.MouseDown();
    Windows.ScreenWidth = 11985;
    EXPECT_FALSE(Back.RestoreFromBorder());
    EXPECT_FALSE(Windows.IsWindowVisible(WindowId::Back));
}

} // namespace
} // namespace veyrant::testing
