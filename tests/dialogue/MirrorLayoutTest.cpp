#include "core/KeyCodes.h"
#include "dialogue/MirrorDriver.h"

#include <cmath>
#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

TEST(MirrorLayout, ArrangementsMoveTheBoxesByTheScaledTable) {
    struct Case {
        int Option;
        double Factor;
    };
    for (const Case c : {Case{0, 0.9}, Case{1, 1.0}, Case{2, 1.21}, Case{3, 1.45}}) {
        MirrorDriver driver(c.Option);
        const auto top = [&driver](MirrorControl control) { return driver.Box(control).Top; };
        const auto scaled = [&c](int twips) {
            return static_cast<int>(std::lround(twips * c.Factor));
        };
        driver.mirror->StartWindow();
        EXPECT_EQ(top(MirrorControl::txtResponse), scaled(960));
        EXPECT_EQ(driver.Box(MirrorControl::txtResponse).Height, scaled(1820));
        EXPECT_EQ(top(MirrorControl::txtSaved), scaled(2760));
        driver.mirror->Click(MirrorControl::cmdConverse);
        EXPECT_EQ(top(MirrorControl::txtMirror), scaled(2280));
        EXPECT_EQ(top(MirrorControl::lblRem), scaled(2760));
        EXPECT_EQ(driver.Box(MirrorControl::txtSaved).Height, scaled(2175));
        driver.Converse("How do I begin again after a long silence?");
        EXPECT_EQ(top(MirrorControl::txtMirror), scaled(960));
        EXPECT_EQ(top(MirrorControl::txtResponse), scaled(1680));
        EXPECT_EQ(top(MirrorControl::lblRem), scaled(1440));
        driver.mirror->Click(MirrorControl::cmdDisplay);
        EXPECT_EQ(top(MirrorControl::txtSaved), scaled(960));
        EXPECT_EQ(driver.Box(MirrorControl::txtSaved).Height, scaled(4215));
        EXPECT_EQ(driver.Box(MirrorControl::cmdNew).FontSize, driver.App.Scale.ButtonFontSize);
    }
}

TEST(MirrorLayout, EscapeByMethod) {
    {
        MirrorDriver driver;
        driver.StartConverse();
        driver.Press(KeyCode::Escape);
        EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::None); // Cancel in an empty Converse
    }
    {
        MirrorDriver driver;
        driver.StartConverse();
        driver.Converse("What would rest look like this week?");
        driver.Press(KeyCode::Escape);
        EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "New"); // Finish
    }
    {
        MirrorDriver driver;
        driver.StartConverse();
        driver.Converse("What would rest look like this week?");
        driver.Enter();
        driver.mirror->Click(MirrorControl::cmdNotate);
        driver.Press(KeyCode::Escape);
        EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Converse); // Cancel back to Converse
        EXPECT_EQ(driver.Text(MirrorControl::cmdNew), "Finish");
        EXPECT_TRUE(driver.Box(MirrorControl::cmdConverse).PressedIn);
    }
    {
        MirrorDriver driver;
        driver.mirror->StartWindow();
        driver.Press(KeyCode::Escape); // nothing running: nothing to cancel
        EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::None);
        EXPECT_TRUE(driver.Layer.Boxes.empty());
    }
}

TEST(MirrorLayout, FunctionKeysActOnTheirButtonsUnlessGuarded) {
    MirrorDriver driver;
    driver.mirror->StartWindow();
    driver.Press(KeyCode::Function(7));
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Comment);
    driver.Press(KeyCode::Function(5));
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Converse);
    const std::string converse = driver.mirror->Dump();
    driver.Press(KeyCode::Function(5)); // pressed in already
    EXPECT_EQ(driver.mirror->Dump(), converse);
    driver.Press(KeyCode::Function(10)); // "Edit" is disabled
    driver.Press(KeyCode::Function(9));  // nothing typed, Rewrite disabled
    driver.Press(KeyCode::Function(8));  // no job
    EXPECT_EQ(driver.mirror->Dump(), converse);

    driver.Converse("Why does the morning feel so crowded?");
    driver.Press(KeyCode::Function(10));
    EXPECT_EQ(driver.Text(MirrorControl::cmdRemove), "Keep");
    driver.Press(KeyCode::Function(11));
    EXPECT_EQ(driver.State().DisplayFull, 0); // nothing kept, Display disabled
    driver.Press(KeyCode::Function(10));
    driver.Press(KeyCode::Function(11));
    EXPECT_EQ(driver.State().DisplayFull, 1);
    driver.Press(KeyCode::Function(11));
    EXPECT_EQ(driver.State().DisplayFull, 0);
    driver.Press(KeyCode::Function(12));
    EXPECT_EQ(driver.Text(MirrorControl::cmdDisplay), "File");
    driver.Press(KeyCode::Function(11)); // "File" is not a view switch
    driver.Press(KeyCode::Function(10)); // nor is "Continue" an edit
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::None);
}

TEST(MirrorLayout, FullViewKeysScrollTheDialogue) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.Converse("Which promise to myself have I kept?");
    driver.mirror->Click(MirrorControl::cmdDisplay);
    EXPECT_EQ(driver.Box(MirrorControl::txtSaved).Caret, 0);
    driver.Press(KeyCode::PageDown);
    EXPECT_EQ(driver.Box(MirrorControl::txtSaved).Caret,
              static_cast<long>(driver.Text(MirrorControl::txtSaved).size()));
    driver.Press(KeyCode::Home);
    EXPECT_EQ(driver.Box(MirrorControl::txtSaved).Caret, 0);
}

TEST(MirrorLayout, NoKeyReachesTheWindowBeforeItStarts) {
    MirrorDriver driver;
    EXPECT_EQ(driver.mirror->KeyDown(KeyCode::Function(5)), 0);
    EXPECT_EQ(driver.mirror->KeyPress('a'), 0);
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::NotStarted);
}

TEST(MirrorLayout, DumpShowsAWholeStateInAFewLines) {
    MirrorDriver driver;
    driver.StartConverse();
    const std::string dump = driver.mirror->Dump();
    EXPECT_NE(dump.find("cmdConverse: \"Converse\" pressed\n"), std::string::npos);
    EXPECT_NE(dump.find("cmdRemove: \"Edit\" disabled\n"), std::string::npos);
    EXPECT_NE(dump.find("txtMirror: \"\\t\xe2\x80\x9c\" back=Yellow focus\n"), std::string::npos);
    EXPECT_NE(dump.find("lblRem: \"X\"\n"), std::string::npos);
}

} // namespace
} // namespace veyrant::testing
