#include "core/KeyCodes.h"
#include "core/Text.h"
#include "dialogue/MirrorDriver.h"

#include <cmath>
#include <gtest/gtest.h>

namespace veyrant::testing {
namespace {

const std::string Prefix{Tab, OpenQuote};
const std::string Entry = "What would rest look like this week?";

// The count lags one key behind the text: it is taken before the key lands.
TEST(MirrorKeys, MarkAndInstructionFollowTheLaggingCount) {
    const struct {
        int Method; // 1 Converse, 4 Comment
        int Typed;
        const char* Mark; // lblRem, nullptr when hidden
        Colour Ink;
        EntryLength EntryFit;
        std::string Note = {}; // the instruction, when the row checks it
    } cases[] = {
        {1, 1, "X", Colour::InkWarn, EntryLength::TooShort,
         "Type to reach the minimum number of words. Then press 'Enter' when your question or "
         "statement is ready."},
        {1, 18, "X", Colour::InkWarn, EntryLength::TooShort},
        {1, 19, nullptr, Colour::Black, EntryLength::Fits,
         "Ready to enter your question or statement. Continue typing, or press 'Enter' to advance "
         "the cycle of conversation."},
        {1, 91, nullptr, Colour::Black, EntryLength::Fits},
        {1, 92, "8", Colour::InkNear, EntryLength::Fits,
         "Limit on word count is near. There is space for about 8 more words. Press 'Enter' when "
         "ready."},
        {1, 135, "1", Colour::InkNear, EntryLength::Fits},
        {1, 142, "X", Colour::InkOver, EntryLength::TooLong,
         "Over the maximum text limit. Delete words until this display status changes. Or click "
         "'Rewrite' to erase the text."},
        {4, 5, "X", Colour::InkWarn, EntryLength::TooShort},
        {4, 6, nullptr, Colour::Black, EntryLength::Fits},
        {4, 201, nullptr, Colour::Black, EntryLength::Fits},
        {4, 202, "13", Colour::InkNear, EntryLength::Fits},
        {4, 282, "X", Colour::InkOver, EntryLength::TooLong}};
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.Method) + ", " + std::to_string(c.Typed) + " typed");
        MirrorDriver driver;
        driver.mirror->StartWindow();
        driver.Click(c.Method == 4 ? cmdNotate : cmdConverse);
        driver.Type(std::string(static_cast<std::size_t>(c.Typed), 'a'));
        EXPECT_EQ(driver.Shown("lblRem"), c.Mark ? "lblRem: \"" + std::string(c.Mark) + "\"" : "");
        EXPECT_EQ(driver.Box(txtNote).Ink, c.Ink);
        EXPECT_EQ(driver.State().EntryFit, c.EntryFit);
        if (!c.Note.empty()) {
            EXPECT_EQ(driver.Text(txtNote), c.Note);
        }
    }
}

// Over the limit only Backspace works, and typing takes a ">>" message away only once the count
// is back within the limit.
TEST(MirrorKeys, OverTheLimitOnlyBackspaceWorks) {
    MirrorDriver driver;
    driver.StartConverse();
    const std::string direction = driver.State().DirectionText;
    driver.Type(std::string(142, 'a'));
    driver.Enter();
    const std::string tooLong = driver.Text(txtResponse);
    ASSERT_EQ(tooLong.substr(0, 26), ">> Your entry is too long.");
    driver.Type(std::string(18, 'a'));
    // 141 typed: the 142nd press counts 140 and is the first one dropped.
    EXPECT_EQ(driver.Text(txtMirror).size(), 2u + 141u);
    EXPECT_EQ(driver.Text(txtResponse), tooLong);
    driver.Backspace();
    driver.Backspace();
    EXPECT_EQ(driver.Text(txtMirror).size(), 2u + 139u);
    EXPECT_EQ(driver.State().EntryFit, EntryLength::Fits);
    // The count of a Backspace is one less than the next typed key will take.
    EXPECT_EQ(driver.State().EntryCount, 137);
    EXPECT_EQ(driver.Text(txtResponse), direction);
    EXPECT_EQ(driver.Box(txtResponse).Background, Colour::ColourReady);
}

TEST(MirrorKeys, ProtectedHeadAndCaretMoves) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.Type("abcdefghij"); // caret at 12, length 12
    driver.Press(KeyCode::Home);
    EXPECT_EQ(driver.Box(txtMirror).Caret, 2);
    driver.Backspace();
    driver.Press(KeyCode::Left);
    EXPECT_EQ(driver.Text(txtMirror), Prefix + "abcdefghij");
    EXPECT_EQ(driver.Box(txtMirror).Caret, 2);
    const std::pair<int, long> moves[] = {
        {KeyCode::Down, 7}, {KeyCode::Down, 9}, {KeyCode::Up, 5}, {KeyCode::End, 12}};
    for (const auto& [key, caret] : moves) {
        driver.Press(key);
        EXPECT_EQ(driver.Box(txtMirror).Caret, caret);
    }
    driver.Type("\t");
    EXPECT_EQ(driver.Text(txtMirror), Prefix + "abcdefghij");
    driver.Press(KeyCode::Control);
    EXPECT_EQ(driver.Titles(), "Invalid Key;");
    EXPECT_EQ(driver.Layer.Boxes[0].Text, "Use of the control key is not allowed.");
}

TEST(MirrorKeys, RewriteAndAClickEraseTheEntryUntilItIsAnswered) {
    MirrorDriver driver;
    driver.StartConverse();
    EXPECT_FALSE(driver.Box(cmdClear).Enabled);
    driver.Type("Something I meant");
    EXPECT_TRUE(driver.Box(cmdClear).Enabled);
    driver.Click(cmdClear);
    EXPECT_EQ(driver.Text(txtMirror), Prefix);
    EXPECT_FALSE(driver.Box(cmdClear).Enabled);
    EXPECT_EQ(driver.Text(txtNote), "Type your entry again. Then press 'Enter' to continue.");
    driver.Type("Another start");
    driver.Click(txtMirror);
    EXPECT_EQ(driver.Text(txtMirror), Prefix);

    // Once the entry is answered a key or a click only explains how to go on.
    driver.Converse("What would change if I said no this time?");
    const std::string shown = driver.Text(txtMirror);
    driver.Type("x");
    driver.Click(txtMirror);
    EXPECT_EQ(driver.Text(txtMirror), shown);
    EXPECT_EQ(driver.State().PairCount, 1);
    EXPECT_EQ(driver.Titles(), "Veyrant Sagrel Help;Veyrant Sagrel Help;");
    EXPECT_EQ(driver.Layer.Boxes[0].Text.substr(0, 29), "Press 'Enter' to continue. In");
    EXPECT_EQ(driver.Layer.Boxes[1].Text.substr(0, 40), "In this part of the cycle, you must pres");
    EXPECT_EQ(driver.Box(txtMirror).Caret, 0);
    driver.Enter();
    EXPECT_EQ(driver.Text(txtMirror), Prefix);
}

TEST(MirrorKeys, TheKeyRecordTakesTimeAndCodeOfEveryKeyButEnterAndBackspace) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.Clock.Seconds = 100.5f;
    driver.Type("Hi");
    driver.Backspace();
    driver.Clock.Seconds = 101.25f;
    driver.Type("\xe9");
    driver.Enter();
    EXPECT_EQ(driver.Engine.KeyCodes, (std::vector<int>{'H', 'i', 0xe9}));
    EXPECT_EQ(driver.Engine.KeyTimes, (std::vector<float>{100.5f, 100.5f, 101.25f}));
}

// Focus returns to the entry box, a mouse release leaves nothing selected, and a right press
// toggles the Write font.
TEST(MirrorKeys, TheEntryBoxKeepsFocusNoSelectionAndTogglesItsFont) {
    MirrorDriver driver;
    driver.StartConverse();
    driver.mirror->FocusGained(txtSaved);
    EXPECT_EQ(driver.mirror->Controls().Focus, txtMirror);
    driver.mirror->FocusLost(txtMirror);
    EXPECT_EQ(driver.mirror->Controls().Focus, txtMirror);

    driver.Type("select me");
    driver.mirror->CaretMoved(txtMirror, 4, 5);
    driver.mirror->MouseUp(txtMirror, MouseButton::Left);
    EXPECT_EQ(driver.Box(txtMirror).SelectionLength, 0);

    EXPECT_EQ(driver.Box(txtMirror).FontSize, 12);
    EXPECT_TRUE(driver.Box(txtMirror).FontBold);
    driver.mirror->MouseDown(txtMirror, MouseButton::Right);
    EXPECT_EQ(driver.Layer.Boxes.back().Title, "Change Font Size");
    EXPECT_EQ(driver.App.UserSettings.WriteFontStep, 2);
    EXPECT_EQ(driver.Box(txtSaved).FontSize, 13.5);
    EXPECT_FALSE(driver.Box(txtResponse).FontBold);

    // The focus rule stands down while the program is ending.
    driver.App.ClosingState = ClosingStates::Exiting;
    driver.mirror->FocusGained(txtSaved);
    EXPECT_EQ(driver.mirror->Controls().Focus, txtSaved);
}

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
        EXPECT_EQ(top(txtSaved), scaled(2760));
        driver.Click(cmdConverse);
        EXPECT_EQ(top(txtMirror), scaled(2280));
        driver.Converse(Entry);
        EXPECT_EQ(top(txtMirror), scaled(960));
        EXPECT_EQ(top(txtResponse), scaled(1680));
        EXPECT_EQ(top(lblRem), scaled(1440));
        driver.Click(cmdDisplay);
        EXPECT_EQ(top(txtSaved), scaled(960));
        EXPECT_EQ(driver.Box(txtSaved).Height, scaled(4215));
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
    EXPECT_FALSE(driver.State().DisplayFull); // nothing kept, Display disabled
    driver.Press(KeyCode::Function(10));
    driver.Press(KeyCode::Function(11));
    EXPECT_TRUE(driver.State().DisplayFull);
    // The full view's keys scroll the Dialogue.
    EXPECT_EQ(driver.Box(txtSaved).Caret, 0);
    driver.Press(KeyCode::PageDown);
    EXPECT_EQ(driver.Box(txtSaved).Caret, static_cast<long>(driver.Text(txtSaved).size()));
    driver.Press(KeyCode::Home);
    EXPECT_EQ(driver.Box(txtSaved).Caret, 0);
    driver.Press(KeyCode::Function(11));
    EXPECT_FALSE(driver.State().DisplayFull);
    driver.Press(KeyCode::Function(12));
    EXPECT_EQ(driver.Text(cmdDisplay), "File");
    driver.Press(KeyCode::Function(11)); // "File" is not a view switch
    driver.Press(KeyCode::Function(10)); // nor is "Continue" an edit
    EXPECT_EQ(driver.State().ActiveMethod, WriteMethod::None);
}

} // namespace
} // namespace veyrant::testing
