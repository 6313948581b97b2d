#include "core/KeyCodes.h"
#include "dialogue/MirrorDriver.h"

#include <cmath>
#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

const std::string Entry = "What would rest look like this week?";

TEST(MirrorLayout, ArrangementsMoveTheBoxesByTheScaledTable) {
    for (const auto& [option, factor] :
         std::initializer_list<std::pair<int, double>>{{0, 0.9}, {1, 1.0}, {2, 1.21}, {3, 1.45}}) {
        MirrorDriver driver(option);
        const auto top = [&driver](MirrorControl control) { return driver.Box(control).Top; };
        const auto scaled = [factor](int twips) {
            return static_cast<int>(std::lround(twips * factor));
        };
        driver.mirror->StartWindow();
        EXPECT_EQ(top(txtResponse), scaled(960));
        EXPECT_EQ(driver.Box(txtResponse).Height, scaled(1820));
        EXPECT_EQ(top(txtSaved), scaled(2760));
        driver.Click(cmdConverse);
        EXPECT_EQ(top(txtMirror), scaled(2280));
        EXPECT_EQ(top(lblRem), scaled(2760));
        EXPECT_EQ(driver.Box(txtSaved).Height, scaled(2175));
        driver.Converse(Entry);
        EXPECT_EQ(top(txtMirror), scaled(960));
        EXPECT_EQ(top(txtResponse), scaled(1680));
        EXPECT_EQ(top(lblRem), scaled(1440));
        driver.Click(cmdDisplay);
        EXPECT_EQ(top(txtSaved), scaled(960));
        EXPECT_EQ(driver.Box(txtSaved).Height, scaled(4215));
        EXPECT_EQ(driver.Box(cmdNew).FontSize, driver.App.Scale.ButtonFontSize);
    }
}

// Esc clicks Cancel or Finish, whichever the window offers, and nothing when nothing runs.
TEST(MirrorLayout, EscapeByMethod) {
    MirrorDriver idle;
    idle.mirror->StartWindow();
    idle.Press(KeyCode::Escape);
    EXPECT_EQ(idle.State().ActiveMethod, WriteMethod::None);
    EXPECT_TRUE(idle.Layer.Boxes.empty());

    MirrorDriver driver;
    driver.StartConverse();
    driver.Press(KeyCode::Escape); // Cancel in an empty Converse
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::None);
    EXPECT_EQ(driver.mirror->Controls().Title, "Veyrant Sagrel -- New Dialogue");
    EXPECT_EQ(driver.Engine.Inspirations, 2);
    driver.Click(cmdConverse);
    driver.Converse(Entry);
    driver.Enter();
    driver.Click(cmdNotate);
    driver.Press(KeyCode::Escape); // Cancel back to Converse
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Converse);
    EXPECT_EQ(driver.Text(cmdNew), "Finish");
    EXPECT_TRUE(driver.Box(cmdConverse).PressedIn);
    driver.Press(KeyCode::Escape); // Finish
    EXPECT_EQ(driver.Text(cmdNew), "New");
}

TEST(MirrorLayout, FunctionKeysActOnTheirButtonsUnlessGuarded) {
    MirrorDriver driver;
    // No key reaches the window before it starts.
    EXPECT_EQ(driver.mirror->KeyDown(KeyCode::Function(5)), 0);
    EXPECT_EQ(driver.mirror->KeyPress('a'), 0);
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::NotStarted);
    driver.mirror->StartWindow();
    driver.Press(KeyCode::Function(7));
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Comment);
    driver.Press(KeyCode::Function(5));
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::Converse);
    const std::string converse = driver.mirror->Dump();
    EXPECT_NE(converse.find("txtMirror: \"\\t\xe2\x80\x9c\" back=Yellow focus\n"),
              std::string::npos);
    driver.Press(KeyCode::Function(5));  // pressed in already
    driver.Press(KeyCode::Function(10)); // "Edit" is disabled
    driver.Press(KeyCode::Function(9));  // nothing typed, Rewrite disabled
    driver.Press(KeyCode::Function(8));  // no job
    EXPECT_EQ(driver.mirror->Dump(), converse);

    driver.Converse("Why does the morning feel so crowded?");
    driver.Press(KeyCode::Function(10));
    EXPECT_EQ(driver.Text(cmdRemove), "Keep");
    driver.Press(KeyCode::Function(11));
    EXPECT_EQ(driver.State().DisplayFull, 0); // nothing kept, Display disabled
    driver.Press(KeyCode::Function(10));
    driver.Press(KeyCode::Function(11));
    EXPECT_EQ(driver.State().DisplayFull, 1);
    // The full view's keys scroll the Dialogue.
    EXPECT_EQ(driver.Box(txtSaved).Caret, 0);
    driver.Press(KeyCode::PageDown);
    EXPECT_EQ(driver.Box(txtSaved).Caret, static_cast<long>(driver.Text(txtSaved).size()));
    driver.Press(KeyCode::Home);
    EXPECT_EQ(driver.Box(txtSaved).Caret, 0);
    driver.Press(KeyCode::Function(11));
    EXPECT_EQ(driver.State().DisplayFull, 0);
    driver.Press(KeyCode::Function(12));
    EXPECT_EQ(driver.Text(cmdDisplay), "File");
    driver.Press(KeyCode::Function(11)); // "File" is not a view switch
    driver.Press(KeyCode::Function(10)); // nor is "Continue" an edit
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::None);
}

} // namespace
} // namespace veyrant::testing
